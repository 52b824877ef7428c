// SPDX-License-Identifier: MIT
// Runs command lines and returns an answer for each.
#pragma once

#include <optional>

#include <QJsonObject>
#include <QString>

#include "batch/line.h"
#include "batch/session.h"

namespace vanzer::batch {

class Interpreter {
  public:
    explicit Interpreter(Ambiente surroundings) : session_(std::move(surroundings)) {}

    void setClock(const QDateTime& time) { session_.clock.set(time); }

    /// Runs a line and returns the answer; none for an empty line or a comment. Failures of a command are answers, not
    /// exceptions.
    [[nodiscard]] std::optional<QJsonObject> run(const QString& line);
    /// The window; null before the first start and after the window was left.
    [[nodiscard]] Form* window() const { return session_.window(); }
    /// True after "stop": window and archive are closed.
    [[nodiscard]] bool finished() const { return finished_; }

  private:
    struct WordCommand {
        QStringView word;
        QJsonObject (Interpreter::*run)(const QString& rest);
    };
    static const WordCommand* wordCommand(QStringView word);

    [[nodiscard]] QJsonObject execute(const QString& text);
    [[nodiscard]] QJsonObject carryOut(const Line& line);
    [[nodiscard]] QJsonObject onControl(const Line& line);
    /// False if there is no window yet or it would refuse the command now.
    [[nodiscard]] bool possibleNow(const Line& line) const;

    QJsonObject start(const QString& rest);
    QJsonObject stop(const QString& rest);
    QJsonObject answers(const QString& rest);
    QJsonObject file(const QString& rest);
    QJsonObject during(const QString& rest);
    QJsonObject now(const QString& rest);
    QJsonObject vars(const QString& rest);
    QJsonObject table(const QString& rest);
    QJsonObject cat(const QString& rest);
    QJsonObject pages(const QString& rest);
    QJsonObject exportSchedule(const QString& rest);

    Session session_;
    std::optional<QString> forNext_; ///< a command line to run in a yield of the next command
    int depth_ = 0;                  ///< number of running commands, nested
    bool finished_ = false;
};

/// Parses local time as "2003-07-05T08:20"; nothing if the text is no time.
[[nodiscard]] std::optional<QDateTime> clockTime(const QString& text);

} // namespace vanzer::batch
