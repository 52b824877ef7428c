// SPDX-License-Identifier: MIT
// Names of files for others that lead to the archive or its companions. Files without an end.
#include "store/outside_files.h"

#include <filesystem>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "batch/interpreter.h"
#include "core/disk.h"
#include "store/archive.h"
#include "store/safe_files.h"

namespace vanzer::store {
namespace {

using namespace Qt::StringLiterals;

class OutsideFiles : public testing::Test {
  protected:
    void SetUp() override {
        for (const char* folder : {"casa/Copie/dentro", "dati", "fuori"})
            ASSERT_TRUE(QDir(home.path()).mkpath(QString::fromLatin1(folder)));
    }

    [[nodiscard]] QString at(const char* name) const { return home.filePath(QString::fromLatin1(name)); }
    void write(const char* name, const QByteArray& bytes = "x") const {
        QFile file(at(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }
    void link(const char* target, const char* name) const {
        ASSERT_TRUE(QFile::link(QString::fromLatin1(target), at(name))) << name;
    }
    void hardLink(const char* file, const char* name) const {
        std::filesystem::create_hard_link(at(file).toStdString(), at(name).toStdString());
    }
    [[nodiscard]] std::string read(const char* name) const {
        QFile file(at(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : "none";
    }

    QTemporaryDir home;
};

TEST_F(OutsideFiles, LeaveTheArchiveAndItsCopiesAlone) {
    write("dati/Mio.mdb");
    link("../dati/Mio.mdb", "casa/Vanzer.mdb");
    write("casa/Copie/Vanzer 2026-05-01.mdb");
    write("fuori/giro.csv");
    link("../casa", "fuori/casa");
    link("../casa/Copie", "fuori/copie");
    link("../casa/Vanzer.mdb-journal", "fuori/verso.csv");
    link("../dati/Mio.mdb", "fuori/archivio.csv");
    hardLink("dati/Mio.mdb", "fuori/duro.csv");
    hardLink("casa/Copie/Vanzer 2026-05-01.mdb", "fuori/copia.csv");
    ASSERT_EQ(::mkfifo(at("fuori/tubo.csv").toLocal8Bit().constData(), 0600), 0);
    const QString archive = u"è l'archivio: scegliere un altro nome."_s;
    const QString copy = u"è una copia dell'archivio: scegliere un altro nome."_s;
    const struct {
        const char* name;
        QString reason;
    } cases[] = {
        {"casa/Vanzer.mdb", archive},
        {"casa/./VANZER.MDB", archive},
        {"fuori/casa/Vanzer.mdb-journal", archive},
        {"dati/Mio.mdb-journal", archive},
        {"casa/DBTemp.mdb", archive},
        {"casa/DBTemp.mdb-journal", archive},
        {"fuori/archivio.csv", archive},
        {"fuori/duro.csv", archive},
        {"fuori/verso.csv", archive},
        {"casa/Copie/giro.csv", copy},
        {"casa/Copie/dentro/giro.csv", copy},
        {"fuori/copie/Vanzer 2026-05-01.mdb", copy},
        {"fuori/copia.csv", copy},
        {"fuori/tubo.csv", u"non è un file normale."_s},
        {"casa/Vanzer.mdb.csv", {}},
        {"fuori/Vanzer.mdb", {}},
        {"fuori/giro.csv", {}},
        {"fuori/nuovo.csv", {}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(motivoRiservato(at(c.name), at("casa/Vanzer.mdb")), c.reason);
        EXPECT_EQ(writeForOthers(at(c.name), "giro", at("casa/Vanzer.mdb")), c.reason);
    }
    EXPECT_EQ(read("dati/Mio.mdb") + read("casa/Copie/Vanzer 2026-05-01.mdb"), "xx");
    EXPECT_EQ(read("fuori/giro.csv"), "giro");
}

TEST_F(OutsideFiles, AreReadOnlyWhereTheyEnd) {
    write("lista.txt", "Roma\n");
    QFile large(at("grande.txt"));
    ASSERT_TRUE(large.open(QIODevice::WriteOnly) && large.resize(fileMassimo + 1));
    ASSERT_EQ(::mkfifo(at("tubo.txt").toLocal8Bit().constData(), 0600), 0);
    link("tubo.txt", "verso.txt");
    const QString odd = u"non è un file normale."_s;
    const struct {
        QString path;
        const char* contents;
        QString error;
    } cases[] = {
        {at("lista.txt"), "Roma\n", {}}, {at("nessuno.txt"), "", {}},       {at("grande.txt"), "", u"supera 512 MB."_s},
        {at("tubo.txt"), "", odd},       {at("verso.txt"), "", odd},        {home.path(), "", odd},
        {u"/dev/zero"_s, "", odd},       {u"/proc/self/status"_s, "", odd},
    };
    for (const auto& c : cases) {
        const FileLetto read = readFile(c.path);
        EXPECT_EQ(read.contenuto.toStdString(), c.contents) << c.path.toStdString();
        EXPECT_EQ(read.errore, c.error) << c.path.toStdString();
    }
}

/// Whether another program finds the file locked.
bool isLocked(const QString& file) {
    const pid_t other = ::fork();
    if (other == 0) {
        struct flock lock {};
        lock.l_type = F_WRLCK;
        lock.l_whence = SEEK_SET;
        const int handle = ::open(file.toLocal8Bit().constData(), O_RDWR);
        ::_exit(handle >= 0 && ::fcntl(handle, F_GETLK, &lock) == 0 && lock.l_type != F_UNLCK ? 1 : 0);
    }
    int status = 0;
    return ::waitpid(other, &status, 0) == other && WEXITSTATUS(status) == 1;
}

TEST_F(OutsideFiles, AreNoWayIntoTheArchiveForReaders) {
    batch::Interpreter program({.directory = at("casa"), .decimalMark = u'.', .versione = {}});
    const auto failure = [&program](const QString& line) { return program.run(line)->value(u"error").toString(); };
    ASSERT_EQ(failure(u"start"_s), u"");
    hardLink("casa/Vanzer.mdb", "casa/nota.txt");
    ASSERT_EQ(::mkfifo(at("casa/tubo.txt").toLocal8Bit().constData(), 0600), 0);
    EXPECT_TRUE(failure(u"cat nota.txt"_s).startsWith(u"[Errno 13]"));
    EXPECT_TRUE(isLocked(at("casa/Vanzer.mdb")));
    EXPECT_TRUE(failure(u"cat tubo.txt"_s).startsWith(u"[Errno 22]")) << "and nobody waits for it";
}

TEST_F(OutsideFiles, AFolderWhoseNameIsNoTextIsWorkedIn) {
    const QByteArray folder = QFile::encodeName(at("caff")) + "\xE8";
    ASSERT_TRUE(std::filesystem::create_directory(folder.constData()));
    const std::string option = "--dir=" + folder.toStdString();
    const char* const arguments[] = {"vanzer", option.c_str(), "--now=x", "roma.iei"};
    const QStringList asText = argomentiComeTesto(4, arguments);
    EXPECT_EQ(asText[2] + asText[3], u"--now=xroma.iei");
    const QString directory = asText[1].sliced(6);
    for (const bool first : {true, false}) {
        batch::Interpreter program({.directory = directory, .decimalMark = u'.', .versione = {}});
        EXPECT_FALSE(program.run(u"start"_s)->contains(u"boxes"_s)) << first;
    }
    EXPECT_TRUE(std::filesystem::exists((folder + "/Vanzer.mdb").constData()));
    EXPECT_EQ(nomeComeTesto(folder.chopped(1)), at("caff")) << "nothing is there";
    std::filesystem::remove_all(folder.constData());
}

TEST_F(OutsideFiles, TakeTheirPlaceBehindALinkOnAnyDisk) {
    QTemporaryDir otherDisk(u"/dev/shm/vanzer-XXXXXX"_s);
    const QString disks[] = {at("dati"), otherDisk.path()};
    for (const QString& disk : disks) {
        if (!QDir(disk).exists())
            continue;
        const QString behind = disk + u"/vero.mdb"_s;
        ASSERT_TRUE(QFile(behind).open(QIODevice::WriteOnly));
        QFile::remove(at("casa/Vanzer.mdb"));
        ASSERT_TRUE(QFile::link(behind, at("casa/Vanzer.mdb")));
        ASSERT_EQ(::chmod(behind.toLocal8Bit().constData(), 0600), 0);
        copyRights(at("casa/Vanzer.mdb"), at("casa/DBTemp.mdb"));
        write("casa/DBTemp.mdb", "nuovo");
        putInPlace(at("casa/DBTemp.mdb"), at("casa/Vanzer.mdb"));
        EXPECT_TRUE(QFileInfo(at("casa/Vanzer.mdb")).isSymLink());
        EXPECT_EQ(read("casa/Vanzer.mdb"), "nuovo");
        struct stat made {};
        ASSERT_EQ(::lstat(behind.toLocal8Bit().constData(), &made), 0);
        EXPECT_EQ(made.st_mode & 0777U, 0600U);
        EXPECT_EQ(QDir(disk).entryList(QDir::Files), QStringList(u"vero.mdb"_s));
        EXPECT_FALSE(QFile::exists(at("casa/DBTemp.mdb")));
    }
}

} // namespace
} // namespace vanzer::store
