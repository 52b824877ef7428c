// SPDX-License-Identifier: MIT
// Ties each widget to the control model of the same name: cmbOra_3 to cmbOra(3). Changes of models are shown when the
// command that made them ends, or when a long command lets the window's events run. Inputs of the user go to the
// models. The binder has no rules of its own.
#pragma once

#include <functional>
#include <memory>
#include <unordered_map>
#include <vector>

#include <QPointer>
#include <QTimer>
#include <QWidget>

#include "window/form.h"

namespace vanzer::desktop {

class Tie;

class Binder : public QObject {
    Q_OBJECT
  public:
    /// `form` must outlive the binder.
    explicit Binder(Form& form);
    ~Binder() override;

    /// Ties `root` and all widgets below it that have a control's name. The next flush shows the state of the controls.
    void bind(QWidget& root);
    /// The same for a form that is made by `make` when its frame is first shown.
    void bindLater(const Control& frame, std::function<QWidget&()> make);

    /// Runs `handler` for an input of the user, then shows what it changed.
    void input(const std::function<void()>& handler);
    /// Shows everything that has changed.
    void flush();
    /// True while widgets are updated from the models: their signals aren't inputs of the user then.
    [[nodiscard]] bool showing() const { return showing_; }

    [[nodiscard]] Form& form() const { return form_; }
    /// The widget of a control; null if it has none.
    [[nodiscard]] QWidget* widget(const Control& control) const;

    /// The control's name for a widget's name: "cmbOra(3)" for "cmbOra_3".
    [[nodiscard]] static QString controlName(const QString& widgetName);

  signals:
    /// An input begins; its handler hasn't run yet.
    void inputBegins();
    /// An input has been handled and its results are shown.
    void inputEnded();
    /// The window has been left.
    void closed();

  private:
    friend class Tie;
    void changed(Tie& tie);
    struct LaterForm {
        const Control* frame;
        std::function<QWidget&()> make; ///< empty once it is made
    };

    void tie(QWidget& widget);
    void flushSoon();
    void makeForms();
    void giveFocus();
    void keepFocus(QWidget* before);

    Form& form_;
    std::vector<std::unique_ptr<Tie>> ties_;
    std::unordered_map<const Control*, QWidget*> widgets_;
    std::vector<LaterForm> later_;
    std::vector<Tie*> dirty_;
    QTimer flushSoon_;
    const Control* wanted_ = nullptr; ///< gets the focus at the next flush
    QPointer<QWidget> displaced_;     ///< lost the focus because it was disabled
    QPointer<QWidget> stopgap_;       ///< has the focus instead
    int depth_ = 0;
    bool showing_ = false;
    bool closedTold_ = false;
};

} // namespace vanzer::desktop
