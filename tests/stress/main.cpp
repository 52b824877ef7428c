// Attacks on the program and its files: vanzer_stress [--seed=N] [--number=N] [--tries=N] [--step=N] [--tally=FILE],
// and the test framework's own options, of which --gtest_filter names attacks.
#include <algorithm>
#include <cstdio>

#include <gtest/gtest.h>

#include <QCoreApplication>

#include "stress/attempts.h"

namespace {

bool readOptions(const QStringList& arguments) {
    vanzer::stress::Options& options = vanzer::stress::options();
    for (const QString& argument : arguments) {
        const QString name = argument.section(u'=', 0, 0);
        const QString value = argument.section(u'=', 1);
        bool number = true;
        if (name == u"--seed")
            options.seed = value.toULongLong(&number);
        else if (name == u"--number")
            options.number = value.toInt(&number);
        else if (name == u"--tries")
            options.tries = value.toInt(&number);
        else if (name == u"--step")
            options.step = std::max(value.toInt(&number), 1);
        else if (name == u"--tally")
            options.tally = value.toStdString();
        else if (!name.startsWith(u"--gtest"))
            return false;
        if (!number)
            return false;
    }
    return true;
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    // First: how much there is of everything hangs on the seed.
    if (!readOptions(QCoreApplication::arguments().mid(1))) {
        std::fputs("vanzer_stress [--seed=N] [--number=N] [--tries=N] [--step=N] [--tally=FILE] "
                   "[--gtest_filter=ATTACKS]\n",
                   stderr);
        return 2;
    }
    testing::InitGoogleTest(&argc, argv);
    const int result = RUN_ALL_TESTS();
    vanzer::stress::printTable();
    return result;
}
