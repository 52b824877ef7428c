// Ties each widget to the control model of the same name: cmbOra_3 to cmbOra(3). What a model changes is shown when the
// command that changed it has ended, or when a long one lets the window's events run; what the user does goes to the
// model. No rule of the window stands here.
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
    /// The form lives longer than the binder.
    explicit Binder(Form& form);
    ~Binder() override;

    /// Ties all widgets at and below `root` that bear a control's name; the next flush shows what the controls hold.
    void bind(QWidget& root);
    /// The same for a form that `make` makes when its frame is to be seen for the first time.
    void bindLater(const Control& frame, std::function<QWidget&()> make);

    /// An input of the user: the models' handlers run, and then the window shows what they changed.
    void input(const std::function<void()>& handler);
    /// Shows everything that has changed.
    void flush();
    /// True while the window is made to show the models: what widgets tell then is nobody's input.
    [[nodiscard]] bool showing() const { return showing_; }

    [[nodiscard]] Form& form() const { return form_; }
    /// Null for a control that has no widget.
    [[nodiscard]] QWidget* widget(const Control& control) const;

    /// The name of the control that a widget of that name shows: "cmbOra_3" is "cmbOra(3)".
    [[nodiscard]] static QString controlName(const QString& widgetName);

  signals:
    /// An input begins; nothing of it has run yet.
    void inputBegins();
    /// All that an input led to has run and is shown.
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
    const Control* wanted_ = nullptr; ///< is to have the focus at the next flush
    QPointer<QWidget> displaced_;     ///< lost the focus because it was switched off
    QPointer<QWidget> stopgap_;       ///< has it instead
    int depth_ = 0;
    bool showing_ = false;
    bool closedTold_ = false;
};

} // namespace vanzer::desktop
