// SPDX-License-Identifier: MIT
#include "batch/control_commands.h"

#include <algorithm>
#include <array>
#include <optional>

#include "batch/answer.h"
#include "batch/line.h"
#include "batch/state_view.h"
#include "toolkit/grid.h"

namespace vanzer::batch {

namespace {

QJsonObject notPossible() {
    return failure(QStringLiteral("not possible on this control"));
}

std::optional<int> characterCode(const QString& text) {
    bool valid = false;
    const int code = text.trimmed().toInt(&valid);
    if (!valid || code < 0 || code > static_cast<int>(QChar::LastValidCodePoint))
        return std::nullopt;
    return code;
}

QJsonObject set(Control& control, const QString& argument) {
    const QString text = unescaped(argument);
    if (auto* const box = qobject_cast<TextBox*>(&control)) {
        box->type(text);
        return {};
    }
    auto* const list = qobject_cast<ListControl*>(&control);
    if (list == nullptr || list->isBox())
        return notPossible();
    list->setText(text);
    if (list->entries().contains(text) && list->onClick)
        list->onClick();
    return {};
}

QJsonObject type(Control& control, const QString& argument) {
    auto* const text = qobject_cast<TextControl*>(&control);
    if (text == nullptr)
        return notPossible();
    for (const char32_t c : unescaped(argument).toUcs4())
        text->pressKey(static_cast<int>(c));
    return {};
}

QJsonObject key(Control& control, const QString& argument) {
    const auto code = characterCode(argument);
    auto* const text = qobject_cast<TextControl*>(&control);
    auto* const grid = qobject_cast<Grid*>(&control);
    if (text == nullptr && grid == nullptr)
        return notPossible();
    if (!code)
        return badArguments();
    if (text != nullptr)
        text->pressKey(*code);
    else
        grid->pressKey(*code);
    return {};
}

QJsonObject keyDown(Control& control, const QString& argument) {
    const auto code = characterCode(argument);
    auto* const text = qobject_cast<TextControl*>(&control);
    if (text == nullptr)
        return notPossible();
    if (!code)
        return badArguments();
    text->keyDown(*code);
    return {};
}

QJsonObject leave(Control& control, const QString& /*argument*/) {
    auto* const text = qobject_cast<TextControl*>(&control);
    if (text == nullptr)
        return notPossible();
    text->leave();
    return {};
}

QJsonObject check(Control& control, const QString& argument) {
    auto* const box = qobject_cast<CheckBox*>(&control);
    if (box == nullptr)
        return notPossible();
    const QString value = argument.trimmed();
    if (value != u"0" && value != u"1")
        return badArguments();
    box->choose(value == u"1");
    return {};
}

QJsonObject option(Control& control, const QString& /*argument*/) {
    auto* const button = qobject_cast<OptionButton*>(&control);
    if (button == nullptr)
        return notPossible();
    button->choose();
    return {};
}

QJsonObject click(Control& control, const QString& /*argument*/) {
    auto* const button = qobject_cast<Button*>(&control);
    if (button == nullptr)
        return notPossible();
    button->click();
    return {};
}

QJsonObject pick(Control& control, const QString& argument) {
    auto* const list = qobject_cast<ListControl*>(&control);
    if (list == nullptr)
        return notPossible();
    return list->pick(unescaped(argument)) ? QJsonObject() : failure(QStringLiteral("no such entry"));
}

QJsonObject row(Control& control, const QString& argument) {
    auto* const grid = qobject_cast<Grid*>(&control);
    if (grid == nullptr)
        return notPossible();
    bool valid = false;
    const int row = argument.trimmed().toInt(&valid);
    if (!valid)
        return badArguments();
    if (row < 0 || row >= grid->rows())
        return failure(QStringLiteral("no such row"));
    if (row > 0)
        grid->clickRow(row);
    return {};
}

QJsonObject doubleClick(Control& control, const QString& /*argument*/) {
    auto* const grid = qobject_cast<Grid*>(&control);
    if (grid == nullptr)
        return notPossible();
    grid->doubleClick();
    return {};
}

QJsonObject get(Control& control, const QString& /*argument*/) {
    return controlState(control);
}

QJsonObject cells(Control& control, const QString& /*argument*/) {
    const auto* const grid = qobject_cast<const Grid*>(&control);
    return grid == nullptr ? notPossible() : gridState(*grid);
}

QJsonObject columns(Control& control, const QString& /*argument*/) {
    const auto* const grid = qobject_cast<const Grid*>(&control);
    return grid == nullptr ? notPossible() : gridColumns(*grid);
}

constexpr std::array<ControlCommand, 14> commands{{{u"set", true, true, set},
                                                   {u"type", true, true, type},
                                                   {u"key", true, true, key},
                                                   {u"keydown", true, true, keyDown},
                                                   {u"leave", false, true, leave},
                                                   {u"check", true, true, check},
                                                   {u"option", true, true, option},
                                                   {u"click", true, true, click},
                                                   {u"pick", true, true, pick},
                                                   {u"row", true, true, row},
                                                   {u"dblclick", true, true, doubleClick},
                                                   {u"get", false, false, get},
                                                   {u"grid", false, false, cells},
                                                   {u"columns", false, false, columns}}};

} // namespace

const ControlCommand* controlCommand(QStringView word) {
    const auto* const found =
        std::find_if(commands.begin(), commands.end(), [word](const ControlCommand& c) { return c.word == word; });
    return found == commands.end() ? nullptr : found;
}

} // namespace vanzer::batch
