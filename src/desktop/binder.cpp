// SPDX-License-Identifier: MIT
#include "desktop/binder.h"

#include <utility>

#include <QApplication>
#include <QLineEdit>
#include <QRegularExpression>

#include "desktop/ties.h"

namespace vanzer::desktop {

namespace {

/// Sets what a screen reader says: the accessible name in the form, else the widget's present caption, else the tool
/// tip.
void nameForReaders(QWidget& widget, const Control& control) {
    const auto* const captioned = dynamic_cast<const Captioned*>(&control);
    const bool speaks = captioned != nullptr && captioned->caption().size() > 1;
    if (widget.accessibleName().isEmpty() && !speaks)
        widget.setAccessibleName(control.tooltip());
}

} // namespace

Binder::Binder(Form& form) : form_(form) {
    flushSoon_.setSingleShot(true);
    flushSoon_.setInterval(0);
    connect(&flushSoon_, &QTimer::timeout, this, &Binder::flush);
    form_.onFocus = [this](Control& control) {
        wanted_ = &control;
        flushSoon_.start();
    };
}

Binder::~Binder() {
    form_.onFocus = {};
}

QString Binder::controlName(const QString& widgetName) {
    static const QRegularExpression indexed(QStringLiteral("^(.*)_(\\d+)$"));
    const QRegularExpressionMatch match = indexed.match(widgetName);
    return match.hasMatch() ? match.captured(1) + u'(' + match.captured(2) + u')' : widgetName;
}

void Binder::bind(QWidget& root) {
    // Children first, so that the contents of a frame are up to date before the frame is shown.
    for (QWidget* const widget : root.findChildren<QWidget*>())
        tie(*widget);
    tie(root);
}

void Binder::bindLater(const Control& frame, std::function<QWidget&()> make) {
    later_.push_back({&frame, std::move(make)});
    for (const Control* holder = &frame; holder != nullptr; holder = holder->frame())
        connect(holder, &Control::changed, this, &Binder::flushSoon);
}

/// Makes forms whose frames are shown for the first time. Making one takes some milliseconds, and most sessions need
/// few.
void Binder::makeForms() {
    for (LaterForm& form : later_) {
        bool seen = form.make != nullptr;
        for (const Control* holder = form.frame; holder != nullptr; holder = holder->frame())
            seen = seen && holder->visible();
        if (seen)
            bind(std::exchange(form.make, nullptr)());
    }
}

void Binder::tie(QWidget& widget) {
    Control* const control = widget.objectName().isEmpty() ? nullptr : form_.find(controlName(widget.objectName()));
    if (control == nullptr)
        return;
    nameForReaders(widget, *control);
    widgets_[control] = &widget;
    ties_.push_back(makeTie(*control, widget, *this));
    ties_.back()->watch();
}

QWidget* Binder::widget(const Control& control) const {
    const auto found = widgets_.find(&control);
    return found == widgets_.end() ? nullptr : found->second;
}

void Binder::changed(Tie& tie) {
    dirty_.push_back(&tie);
    flushSoon();
}

void Binder::flushSoon() {
    if (!flushSoon_.isActive())
        flushSoon_.start();
}

void Binder::input(const std::function<void()>& handler) {
    if (depth_ == 0)
        emit inputBegins();
    ++depth_;
    handler();
    --depth_;
    if (depth_ > 0)
        return;
    flush();
    if (form_.chiusa && !std::exchange(closedTold_, true))
        emit closed();
    else
        emit inputEnded();
}

void Binder::flush() {
    if (showing_)
        return;
    QWidget* const before = QApplication::focusWidget();
    showing_ = true;
    makeForms();
    flushSoon_.stop();
    for (Tie* const tie : std::exchange(dirty_, {}))
        tie->show();
    showing_ = false;
    keepFocus(before);
    giveFocus();
}

/// Gives the focus as the tab key does: the text of a field is selected, so that typing replaces it.
void Binder::giveFocus() {
    const Control* const control = std::exchange(wanted_, nullptr);
    QWidget* const widget = control == nullptr ? nullptr : this->widget(*control);
    if (widget == nullptr || !widget->isEnabled())
        return;
    displaced_ = nullptr;
    if (auto* const field = qobject_cast<QLineEdit*>(widget); field != nullptr && field->hasFocus())
        field->selectAll();
    widget->setFocus(Qt::TabFocusReason);
}

/// Gives the focus back to a widget that was disabled while it had it, once it is enabled, unless the user has moved
/// on.
void Binder::keepFocus(QWidget* before) {
    QWidget* const now = QApplication::focusWidget();
    if (before != nullptr && before != now && !before->isEnabled() && displaced_ == nullptr)
        displaced_ = before;
    if (displaced_ == nullptr)
        return;
    if (before == displaced_ || before == stopgap_) {
        stopgap_ = now;
        if (displaced_->isEnabled() && displaced_->isVisible() && wanted_ == nullptr)
            std::exchange(displaced_, nullptr)->setFocus(Qt::OtherFocusReason);
    } else {
        displaced_ = nullptr;
    }
}

} // namespace vanzer::desktop
