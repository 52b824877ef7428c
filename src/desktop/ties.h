// What ties one widget to its model, by kind of control.
#pragma once

#include <memory>

#include <QObject>

#include "desktop/binder.h"

namespace vanzer::desktop {

class Tie : public QObject {
    Q_OBJECT
  public:
    Tie(Control& control, QWidget& widget, Binder& binder);

    /// Begins to follow the model; what it holds is shown at the next flush.
    void watch();
    /// Shows what the model holds.
    void show();

  protected:
    [[nodiscard]] Binder& binder() const { return binder_; }
    /// The part that only this kind of control has.
    virtual void showOwn() {}
    [[nodiscard]] virtual bool enabled() const { return control_.enabled(); }
    [[nodiscard]] virtual bool visible() const { return control_.visible(); }
    /// The next flush shows the model anew.
    void markChanged();

  private:
    Control& control_;
    QWidget& widget_;
    Binder& binder_;
    bool dirty_ = false;
};

/// The tie for a control and a widget that fit each other; one that shows nothing but visible and enabled for a pair
/// that doesn't.
[[nodiscard]] std::unique_ptr<Tie> makeTie(Control& control, QWidget& widget, Binder& binder);

} // namespace vanzer::desktop
