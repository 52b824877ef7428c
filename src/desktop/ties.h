// SPDX-License-Identifier: MIT
// Ties of widgets to their models, one class for each kind of control.
#pragma once

#include <memory>

#include <QObject>

#include "desktop/binder.h"

namespace vanzer::desktop {

class Tie : public QObject {
    Q_OBJECT
  public:
    Tie(Control& control, QWidget& widget, Binder& binder);

    /// Starts watching the model. The next flush shows its state.
    void watch();
    /// Updates the widget from the model.
    void show();

  protected:
    [[nodiscard]] Binder& binder() const { return binder_; }
    /// Updates what is special to this kind of control.
    virtual void showOwn() {}
    [[nodiscard]] virtual bool enabled() const { return control_.enabled(); }
    [[nodiscard]] virtual bool visible() const { return control_.visible(); }
    /// Makes the next flush update the widget.
    void markChanged();

  private:
    Control& control_;
    QWidget& widget_;
    Binder& binder_;
    bool dirty_ = false;
};

/// The tie for a control and its widget. If their kinds don't match, it only shows whether the control is visible and
/// enabled.
[[nodiscard]] std::unique_ptr<Tie> makeTie(Control& control, QWidget& widget, Binder& binder);

} // namespace vanzer::desktop
