// SPDX-License-Identifier: MIT
// Runs attacks on the program and its files. Takes the options below and those of the test framework; --gtest_filter
// selects attacks.
#include <algorithm>

#include <gtest/gtest.h>

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDeadlineTimer>

#include "stress/attempts.h"

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    const QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    parser.addHelpOption();
    for (const auto& [name, usual] :
         {std::pair{"seed", "1"}, {"number", "0"}, {"tries", "30"}, {"step", "1"}, {"minutes", "0"}})
        parser.addOption({QString::fromLatin1(name), {}, QStringLiteral("N"), QString::fromLatin1(usual)});
    parser.process(application);
    const auto value = [&parser](const char* name) { return parser.value(QString::fromLatin1(name)).toInt(); };
    vanzer::stress::Options& options = vanzer::stress::options();
    options = {static_cast<std::uint64_t>(value("seed")), value("number"), value("tries"), std::max(value("step"), 1)};
    // Goes from seed to seed until the time is over.
    const QDeadlineTimer end(qint64{60'000} * value("minutes"));
    int result = RUN_ALL_TESTS();
    while (!end.hasExpired()) {
        ++options.seed;
        result |= RUN_ALL_TESTS();
    }
    vanzer::stress::printTable();
    return result;
}
