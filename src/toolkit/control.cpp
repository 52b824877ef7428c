// SPDX-License-Identifier: MIT
#include "toolkit/control.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "core/collation.h"

namespace vanzer {

namespace {

/// Sorts stably. The base letters are made once for each entry; they decide nearly all comparisons.
QStringList sorted(const QStringList& entries) {
    std::vector<std::pair<QByteArray, QString>> order;
    for (const QString& entry : entries)
        order.emplace_back(lettereBase(entry), entry);
    std::ranges::stable_sort(order, [](const auto& a, const auto& b) {
        return a.first != b.first ? a.first < b.first : compareTexts(a.second, b.second) < 0;
    });
    QStringList result;
    for (const auto& [letters, entry] : order)
        result.append(entry);
    return result;
}

} // namespace

Control::Control(QString baseName, int index, Frame* frame)
    : baseName_(std::move(baseName)), index_(index), frame_(frame) {}

QString Control::name() const {
    return index_ < 0 ? baseName_ : baseName_ + u'(' + QString::number(index_) + u')';
}

void Control::setVisible(bool on) {
    assign(visible_, on);
}

void Control::setEnabled(bool on) {
    assign(enabled_, on);
}

bool Control::reachable() const {
    for (const Control* c = this; c != nullptr; c = c->frame_) {
        if (!c->visible_ || !c->enabled_)
            return false;
    }
    return true;
}

void Control::setTooltip(const QString& text) {
    assign(tooltip_, text);
}

void Control::place(int left, int top, int width, int height) {
    geometria_ = {left, top, width, height};
    emit changed();
}

void Control::setLeft(int left) {
    assign(geometria_.left, left);
}
void Control::setTop(int top) {
    assign(geometria_.top, top);
}
void Control::setWidth(int width) {
    assign(geometria_.width, width);
}
void Control::setHeight(int height) {
    assign(geometria_.height, height);
}

void Button::click() {
    if (onClick)
        onClick();
}

void CheckBox::choose(bool on) {
    setValue(on);
    if (onClick)
        onClick();
}

void OptionButton::setValue(bool on) {
    if (on && othersOff_)
        othersOff_(*this);
    assign(value_, on);
}

void OptionButton::choose() {
    setValue(true);
    if (onClick)
        onClick();
}

void TextControl::setText(const QString& text) {
    if (text_ == text)
        return;
    text_ = text;
    emit changed();
    if (onChange)
        onChange();
}

int TextControl::filterKey(int code) const {
    if (onKeyPress)
        onKeyPress(code);
    return code;
}

void TextControl::pressKey(int key) {
    const int code = filterKey(key);
    if (code <= 31 || (room() >= 0 && text_.size() >= room()))
        return;
    const auto c = static_cast<char32_t>(code);
    setText(text_ + QString::fromUcs4(&c, 1));
}

void TextControl::keyDown(int code) {
    if (onKeyDown)
        onKeyDown(code);
}

void TextControl::leave() {
    if (onLostFocus)
        onLostFocus();
}

void TextBox::type(const QString& text) {
    QString kept = maxLength_ > 0 ? text.left(maxLength_) : text;
    if (kept.size() < text.size() && kept.back().isHighSurrogate())
        kept.chop(1); // don't keep half a surrogate pair
    setText(kept);
}

ListControl::ListControl(QString baseName, int index, Frame* frame, bool box)
    : TextControl(std::move(baseName), index, frame), box_(box) {}

void ListControl::add(const QString& entry) {
    const auto before = [](const QString& a, const QString& b) { return compareTexts(a, b) < 0; };
    if (sorted_)
        entries_.insert(std::upper_bound(entries_.begin(), entries_.end(), entry, before), entry);
    else
        entries_.append(entry);
    emit changed();
}

void ListControl::setEntries(const QStringList& entries) {
    assign(entries_, sorted_ ? sorted(entries) : entries);
}

void ListControl::setEntriesOnly() {
    entriesOnly_ = true;
    onKeyPress = [](int& code) { code = 0; };
}

void ListControl::clear() {
    entries_.clear();
    emit changed();
    setText({});
}

bool ListControl::pick(const QString& entry) {
    const auto found = std::find_if(entries_.cbegin(), entries_.cend(),
                                    [&entry](const QString& e) { return e.compare(entry, Qt::CaseInsensitive) == 0; });
    if (found == entries_.cend())
        return false;
    setText(*found);
    if (onClick)
        onClick();
    return true;
}

} // namespace vanzer
