// What the control is for that the user looks at, told in the status line while nothing runs.
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

#include "desktop/fields.h"

namespace vanzer::desktop {

/// The hint is the tool tip of the control under the mouse, else of the one that has the focus.
class HintLine : public QObject {
    Q_OBJECT
  public:
    /// Watches the widgets of `window`; both live longer than the line.
    HintLine(QWidget& window, ShortenedLabel& label);
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void tell();
    QWidget& window_;
    ShortenedLabel& label_;
    QPointer<QWidget> pointed_; ///< the innermost widget under the mouse
};

} // namespace vanzer::desktop
