// A work under attack, with all that must hold behind it.
#pragma once

#include <map>
#include <random>
#include <string>

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "stress/attempts.h"
#include "stress/system_calls.h"
#include "stress/works.h"
#include "support/desk.h"

namespace vanzer::stress {

/// Records without the guide's marks of use, which are made anew at each load.
[[nodiscard]] QStringList recordsIn(Desk& desk);

/// Boxes that nobody expects at a start; that the archive is missing beside its copies is a state in order.
[[nodiscard]] std::string wordsAtStart(const QStringList& boxes);

/// Boxes on a failure that don't say what was kept or not done.
[[nodiscard]] std::string unclearWords(const QStringList& boxes);

/// Whether a file that nobody expects may lie in the folder behind a start: none of the archive may.
[[nodiscard]] bool mayBeLeft(const std::string& name);

class Attacked : public testing::TestWithParam<Work> {
  protected:
    /// Does the work once with all in order, and keeps what it changes.
    void SetUp() override;

    /// Records behind one more start.
    [[nodiscard]] QStringList started() const;
    [[nodiscard]] QStringList lines(const QStringList& commands) const;
    /// Where the power fails: within the risky lines or behind them.
    [[nodiscard]] std::size_t drawnCut(std::mt19937_64& chance) const {
        return firstRisky + chance() % (recording.changes.size() - firstRisky + 1);
    }
    /// Gives the commands up to the first box that doesn't come up when all is well: the user stops there.
    QStringList troubles(Desk& desk, const QStringList& commands) const;
    /// What a program that was stopped anywhere in the work has left: all as before or as after, and the program
    /// starts on it and goes on. `finished`: all was done.
    void expectWhole(const QString& folder, bool finished) const;
    /// What a failed command has left, and that it can be given again.
    void expectWholeAfterFault(Desk& desk, const QStringList& told) const;
    /// Outputs are whole, the older one or the new one.
    void expectOutputs(const QString& where, bool fresh) const;
    /// Nothing half-made; the copies that were there, and new ones that give the trips back.
    void expectFiles(const Disk& disk) const;
    /// Each group of records that belong together is as in one of the states.
    void expectGroups(const QStringList& found, const std::vector<QStringList>& states) const;

    const Work& work() const { return GetParam(); }

    QTemporaryDir folders;
    const QString prepared = folders.filePath(u"pronta"_s);
    const QString folder = folders.filePath(u"viaggi"_s); ///< the same for all, as its name may go into files
    QStringList usualBoxes;
    QStringList stored;                      ///< records that were made ready
    QStringList before, after;               ///< records
    QStringList startedBefore, startedAfter; ///< with one more start
    Disk ready, done;                        ///< the folder before and after
    std::string names;                       ///< files that may be there, each between two slashes
    Recording recording;
    std::size_t firstRisky = 0; ///< where the changes of the risky lines begin
    std::array<int, kindsOfCalls> calls{};
};

} // namespace vanzer::stress
