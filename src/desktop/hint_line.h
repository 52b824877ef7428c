// SPDX-License-Identifier: MIT
// Shows a hint about a control in the status line while nothing runs.
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

#include "desktop/fields.h"

namespace vanzer::desktop {

/// The hint is the tool tip of the control under the mouse, or else of the control with the focus.
class HintLine : public QObject {
    Q_OBJECT
  public:
    /// Watches the widgets of `window`. Window and label must outlive this object.
    HintLine(QWidget& window, ShortenedLabel& label);
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void tell();
    QWidget& window_;
    ShortenedLabel& label_;
    QPointer<QWidget> pointed_; ///< the innermost widget under the mouse
};

} // namespace vanzer::desktop
