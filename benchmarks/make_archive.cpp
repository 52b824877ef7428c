// SPDX-License-Identifier: MIT
// make_archive FOLDER [--destinations N] [--legs N] [--entries N]: makes a big archive, the same in every run.

#include <cstdio>
#include <exception>

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>

#include "big_archive.h"

int main(int argc, char** argv) {
    using namespace vanzer::bench;
    const QCoreApplication application(argc, argv);
    Sizes sizes;
    QCommandLineParser parser;
    parser.addPositionalArgument(QStringLiteral("folder"), QStringLiteral("where Vanzer.mdb is made"));
    const QCommandLineOption destinations(QStringLiteral("destinations"), QStringLiteral("2000"), QStringLiteral("N"));
    const QCommandLineOption legs(QStringLiteral("legs"), QStringLiteral("120000, of all of them"),
                                  QStringLiteral("N"));
    const QCommandLineOption entries(QStringLiteral("entries"), QStringLiteral("200000, of the guide"),
                                     QStringLiteral("N"));
    parser.addOptions({destinations, legs, entries});
    parser.addHelpOption();
    parser.process(application);
    for (const auto& [option, size] :
         {std::pair{&destinations, &sizes.destinations}, {&legs, &sizes.legs}, {&entries, &sizes.entries}}) {
        if (parser.isSet(*option))
            *size = parser.value(*option).toInt();
    }
    if (parser.positionalArguments().size() != 1 || sizes.destinations < 1 || sizes.legs < 4 * sizes.destinations ||
        sizes.entries < 0)
        parser.showHelp(2);
    const QString folder = parser.positionalArguments().first();
    try {
        if (!QDir().mkpath(folder))
            throw std::runtime_error("the folder can't be made");
        makeArchive(folder, sizes);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "make_archive: %s\n", error.what());
        return 1;
    }
    return 0;
}
