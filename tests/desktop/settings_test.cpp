// SPDX-License-Identifier: MIT
// Settings that could make the program wait.
#include "desktop/settings_file.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace vanzer::desktop {
namespace {

TEST(Settings, ThatArentAFileAreLeftAlone) {
    const QTemporaryDir folder;
    ASSERT_TRUE(QDir(folder.path()).mkdir(QStringLiteral("Vanzer")));
    const QString own = folder.filePath(QStringLiteral("Vanzer/Vanzer.conf"));
    const QString company = folder.filePath(QStringLiteral("Vanzer.conf"));
    EXPECT_EQ(impostazioniIllegibili(folder.path()), QString());
    ASSERT_TRUE(QFile(own).open(QIODevice::WriteOnly));
    EXPECT_EQ(impostazioniIllegibili(folder.path()), QString());
    ASSERT_EQ(::mkfifo(QFile::encodeName(company).constData(), 0600), 0);
    EXPECT_EQ(impostazioniIllegibili(folder.path()), company);
    ASSERT_TRUE(QFile::remove(own) && QFile::link(QStringLiteral("/dev/zero"), own));
    EXPECT_EQ(impostazioniIllegibili(folder.path()), own);
}

} // namespace
} // namespace vanzer::desktop
