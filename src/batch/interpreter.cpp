// SPDX-License-Identifier: MIT
#include "batch/interpreter.h"

#include <algorithm>
#include <array>
#include <utility>

#include "batch/answer.h"
#include "batch/control_commands.h"
#include "batch/state_view.h"
#include "reports/schedule_files_screen.h"
#include "window/command.h"

namespace vanzer::batch {

namespace {

std::optional<int> boxAnswer(const QString& word) {
    bool valid = false;
    const int answer = word.toInt(&valid);
    constexpr std::array known{rispostaOk, rispostaAnnulla, rispostaSi, rispostaNo};
    if (!valid || std::find(known.begin(), known.end(), answer) == known.end())
        return std::nullopt;
    return answer;
}

void addShown(QJsonObject& answer, const QString& key, const QJsonArray& shown) {
    if (!shown.isEmpty())
        answer.insert(key, shown);
}

} // namespace

std::optional<QDateTime> clockTime(const QString& text) {
    const QDateTime time = QDateTime::fromString(text, QStringLiteral("yyyy-MM-ddTHH:mm"));
    return time.isValid() ? std::optional(time) : std::nullopt;
}

const Interpreter::WordCommand* Interpreter::wordCommand(QStringView word) {
    static constexpr std::array<WordCommand, 11> commands{{{u"start", &Interpreter::start},
                                                           {u"stop", &Interpreter::stop},
                                                           {u"answer", &Interpreter::answers},
                                                           {u"file", &Interpreter::file},
                                                           {u"during", &Interpreter::during},
                                                           {u"now", &Interpreter::now},
                                                           {u"vars", &Interpreter::vars},
                                                           {u"table", &Interpreter::table},
                                                           {u"cat", &Interpreter::cat},
                                                           {u"pages", &Interpreter::pages},
                                                           {u"export", &Interpreter::exportSchedule}}};
    const auto* const found =
        std::find_if(commands.begin(), commands.end(), [word](const WordCommand& c) { return c.word == word; });
    return found == commands.end() ? nullptr : found;
}

std::optional<QJsonObject> Interpreter::run(const QString& line) {
    if (saysNothing(line))
        return std::nullopt;
    std::optional<QJsonObject> inside;
    if (const auto waiting = std::exchange(forNext_, std::nullopt)) {
        session_.events.expect([this, &inside, text = *waiting, parsed = split(*waiting)] {
            if (!possibleNow(parsed))
                return false;
            inside = execute(text);
            return true;
        });
    }
    QJsonObject answer = execute(line);
    session_.events.expect({});
    if (inside)
        answer.insert(u"during", *inside);
    if (finished_)
        session_.close();
    return answer;
}

QJsonObject Interpreter::execute(const QString& text) {
    const QJsonArray outerBoxes = session_.boxes.exchange({});
    const QJsonArray outerFiles = session_.dialogs.exchange({});
    ++depth_;
    QJsonObject answer;
    try {
        answer = carryOut(split(text));
    } catch (const store::StoreError& error) {
        answer = failure(error.testo());
    } catch (const std::exception& error) {
        answer = failure(QString::fromLocal8Bit(error.what()));
    }
    --depth_;
    answer.insert(u"cmd", text);
    addShown(answer, QStringLiteral("boxes"), session_.boxes.exchange(outerBoxes));
    addShown(answer, QStringLiteral("files"), session_.dialogs.exchange(outerFiles));
    return answer;
}

QJsonObject Interpreter::carryOut(const Line& line) {
    if (const WordCommand* const command = wordCommand(line.word))
        return (this->*command->run)(line.rest);
    if (controlCommand(line.word) != nullptr)
        return onControl(line);
    return failure(QStringLiteral("unknown command"));
}

QJsonObject Interpreter::onControl(const Line& line) {
    const Form* const window = session_.window();
    if (window == nullptr)
        return noWindow();
    const Line named = split(line.rest);
    Control* const control = window->find(named.word);
    if (control == nullptr)
        return failure(QStringLiteral("no such control"));
    const ControlCommand& command = *controlCommand(line.word);
    if (command.refusable && !control->reachable())
        return {{"refused", true}};
    return command.run(*control, named.rest);
}

bool Interpreter::possibleNow(const Line& line) const {
    const ControlCommand* const command = controlCommand(line.word);
    if (command == nullptr)
        return line.word != u"export";
    const Form* const window = session_.window();
    if (window == nullptr)
        return false;
    const Control* const control = window->find(split(line.rest).word);
    return control == nullptr || !command->acts || stopsWork(*window, *control);
}

QJsonObject Interpreter::start(const QString& /*rest*/) {
    // The window can't be destroyed while one of its handlers runs.
    if (depth_ > 1)
        return failure(QStringLiteral("not possible during a command"));
    session_.start();
    return {};
}

QJsonObject Interpreter::stop(const QString& /*rest*/) {
    finished_ = true;
    return {};
}

QJsonObject Interpreter::answers(const QString& rest) {
    std::vector<int> given;
    for (const QString& word : rest.split(u' ', Qt::SkipEmptyParts)) {
        const auto answer = boxAnswer(word);
        if (!answer)
            return badArguments();
        given.push_back(*answer);
    }
    if (given.empty())
        return badArguments();
    for (const int answer : given)
        session_.boxes.enqueue(answer);
    return {};
}

QJsonObject Interpreter::file(const QString& rest) {
    if (rest.isEmpty())
        return badArguments();
    session_.dialogs.enqueue(rest == u"-" ? QString() : rest);
    return {};
}

QJsonObject Interpreter::during(const QString& rest) {
    if (saysNothing(rest))
        return badArguments();
    forNext_ = rest;
    return {};
}

QJsonObject Interpreter::now(const QString& rest) {
    const auto time = clockTime(rest.trimmed());
    if (!time)
        return badArguments();
    session_.clock.set(*time);
    return {};
}

QJsonObject Interpreter::vars(const QString& /*rest*/) {
    const Form* const form = session_.last();
    return form == nullptr ? noWindow() : variables(*form);
}

QJsonObject Interpreter::table(const QString& rest) {
    return session_.table(rest.trimmed());
}

QJsonObject Interpreter::cat(const QString& rest) {
    return session_.textFile(rest);
}

QJsonObject Interpreter::exportSchedule(const QString& rest) {
    const Line format = split(rest);
    const bool calendar = format.word == u"ics";
    if ((!calendar && format.word != u"csv") || format.rest.isEmpty())
        return badArguments();
    const Form* const window = session_.window();
    if (window == nullptr)
        return noWindow();
    if (window->viandoria == nullptr)
        return failure(QStringLiteral("no schedule"));
    const QString reason =
        writeSchedule(*window, calendar ? FormatoViandoria::Calendario : FormatoViandoria::Tabella, format.rest);
    return reason.isEmpty() ? QJsonObject() : failure(reason);
}

QJsonObject Interpreter::pages(const QString& /*rest*/) {
    return session_.printer.take();
}

} // namespace vanzer::batch
