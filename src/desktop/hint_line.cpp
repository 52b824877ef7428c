// SPDX-License-Identifier: MIT
#include "desktop/hint_line.h"

#include <QApplication>
#include <QEvent>

namespace vanzer::desktop {

namespace {

/// The hint for a widget: its tool tip, or that of the widget around it.
QString hintOf(const QWidget* widget) {
    while (widget != nullptr && widget->toolTip().isEmpty())
        widget = widget->parentWidget();
    return widget == nullptr ? QString() : widget->toolTip();
}

} // namespace

HintLine::HintLine(QWidget& window, ShortenedLabel& label) : window_(window), label_(label) {
    qApp->installEventFilter(this);
    connect(qApp, &QApplication::focusChanged, this, &HintLine::tell);
}

/// Enter events go from outer to inner widgets, leave events from inner to outer.
bool HintLine::eventFilter(QObject* watched, QEvent* event) {
    const QEvent::Type type = event->type();
    if (type != QEvent::Enter && type != QEvent::Leave)
        return false;
    auto* const widget = qobject_cast<QWidget*>(watched);
    if (widget != nullptr && widget->window() == &window_) {
        pointed_ = type == QEvent::Enter ? widget : widget->parentWidget();
        tell();
    }
    return false;
}

void HintLine::tell() {
    const QString pointed = hintOf(pointed_);
    const QWidget* const focused = QApplication::focusWidget();
    const bool here = focused != nullptr && focused->window() == &window_;
    label_.setHint(pointed.isEmpty() && here ? hintOf(focused) : pointed);
}

} // namespace vanzer::desktop
