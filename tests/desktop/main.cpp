// SPDX-License-Identifier: MIT
#include <QApplication>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Vanzer"));
    QApplication::setOrganizationName(QStringLiteral("Vanzer"));
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
