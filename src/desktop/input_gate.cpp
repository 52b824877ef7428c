// SPDX-License-Identifier: MIT
#include "desktop/input_gate.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWidget>
#include <QWindow>

#include "desktop/main_window.h"
#include "window/command.h"

namespace vanzer::desktop {

namespace {

constexpr int lookAgain = 20; // ms; for commands that end outside an input, such as the start

enum class Input { None, Waits, Vanishes };

/// What happens to an input while a command runs. The wheel, context menus and drags are dropped: later they would make
/// no sense.
Input kind(const QEvent& event) {
    switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::InputMethod:
    case QEvent::Shortcut: return Input::Waits;
    case QEvent::Wheel:
    case QEvent::ContextMenu:
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
    case QEvent::TouchBegin: return Input::Vanishes;
    default: return Input::None;
    }
}

} // namespace

InputGate::InputGate(MainWindow& window) : window_(window) {
    soon_.setInterval(lookAgain);
    connect(&soon_, &QTimer::timeout, this, &InputGate::deliver);
    connect(&window.binder(), &Binder::inputEnded, this, &InputGate::deliver);
    QApplication::instance()->installEventFilter(this);
}

/// True if new input must wait: a command runs, or earlier input still waits, so that the order is kept.
bool InputGate::closed() const {
    return window_.form().comandoInCorso || (!waiting_.empty() && !delivering_);
}

bool InputGate::interrupts(QObject* watched, const QEvent& event) const {
    const Form& form = window_.form();
    const QWidget* const stop = window_.binder().widget(form.cmdEsce);
    if (event.type() == QEvent::KeyPress || event.type() == QEvent::KeyRelease) {
        const int key = static_cast<const QKeyEvent&>(event).key();
        if (key == Qt::Key_Escape)
            return true;
        const bool presses = key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter;
        return presses && stop != nullptr && stop->hasFocus() && stopsWork(form, form.cmdEsce);
    }
    if (!stopsWork(form, form.cmdEsce))
        return false;
    if (!watched->isWindowType())
        return watched == stop;
    return event.isPointerEvent() &&
           window_.childAt(static_cast<const QMouseEvent&>(event).position().toPoint()) == stop;
}

bool InputGate::eventFilter(QObject* watched, QEvent* event) {
    if (!closed())
        return false;
    auto* const widget = qobject_cast<QWidget*>(watched);
    const bool own = widget != nullptr ? widget->window() == &window_ : watched == window_.windowHandle();
    if (!own)
        return false;
    // Accepting this makes an Alt letter arrive as a key press, which then waits like any other key.
    if (event->type() == QEvent::ShortcutOverride && !stopsWork(window_.form(), window_.form().cmdEsce)) {
        event->accept();
        return true;
    }
    const Input input = kind(*event);
    const bool endOfEarlierKey = event->type() == QEvent::KeyRelease && waiting_.empty();
    if (input == Input::None || endOfEarlierKey || interrupts(watched, *event))
        return false;
    if (input == Input::Waits) {
        waiting_.push_back({watched, std::unique_ptr<QEvent>(event->clone())});
        soon_.start();
    }
    return true;
}

void InputGate::deliver() {
    if (delivering_)
        return;
    delivering_ = true;
    while (!waiting_.empty() && !window_.form().comandoInCorso && QApplication::activeModalWidget() == nullptr) {
        const Waiting next = std::move(waiting_.front());
        waiting_.pop_front();
        const bool letter =
            next.event->type() == QEvent::KeyPress && window_.pressLetter(static_cast<const QKeyEvent&>(*next.event));
        if (!letter && next.receiver != nullptr)
            QCoreApplication::sendEvent(next.receiver, next.event.get());
    }
    delivering_ = false;
    if (waiting_.empty())
        soon_.stop();
}

} // namespace vanzer::desktop
