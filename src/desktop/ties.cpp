// SPDX-License-Identifier: MIT
#include "desktop/ties.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include "desktop/fields.h"
#include "desktop/plain_text.h"
#include "desktop/table_view.h"
#include "desktop/text_ties.h"

namespace vanzer::desktop {

namespace {

class ButtonTie : public Tie {
  public:
    ButtonTie(Button& model, QPushButton& button, Binder& to) : Tie(model, button, to), model_(model), button_(button) {
        connect(&button, &QPushButton::clicked, this, [this] { binder().input([this] { model_.click(); }); });
    }

  protected:
    void showOwn() override {
        button_.setText(model_.caption());
        button_.setDefault(model_.isDefault());
    }

  private:
    Button& model_;
    QPushButton& button_;
};

class CheckTie : public Tie {
  public:
    CheckTie(CheckBox& model, QCheckBox& box, Binder& to) : Tie(model, box, to), model_(model), box_(box) {
        connect(&box, &QCheckBox::clicked, this,
                [this](bool on) { binder().input([this, on] { model_.choose(on); }); });
    }

  protected:
    void showOwn() override {
        box_.setText(model_.caption().trimmed());
        box_.setChecked(model_.value());
    }

  private:
    CheckBox& model_;
    QCheckBox& box_;
};

class OptionTie : public Tie {
  public:
    OptionTie(OptionButton& model, QRadioButton& option, Binder& to)
        : Tie(model, option, to), model_(model), option_(option) {
        connect(&option, &QRadioButton::clicked, this, [this] { binder().input([this] { model_.choose(); }); });
    }

  protected:
    /// Qt switches the neighbours off when one is switched on.
    void showOwn() override {
        option_.setText(model_.caption());
        if (model_.value())
            option_.setChecked(true);
    }

  private:
    OptionButton& model_;
    QRadioButton& option_;
};

template<typename View> class LabelTie : public Tie {
  public:
    LabelTie(Label& model, View& label, Binder& to) : Tie(model, label, to), model_(model), label_(label) {}

  protected:
    void showOwn() override { label_.setText(model_.caption()); }
    [[nodiscard]] const QString& caption() const { return model_.caption(); }

  private:
    Label& model_;
    View& label_;
};

class NoticeTie : public LabelTie<Notice> {
  public:
    using LabelTie<Notice>::LabelTie;

  protected:
    [[nodiscard]] bool visible() const override { return Tie::visible() && !caption().isEmpty(); }
};

/// The form of an inner frame may be elsewhere in the window. Its tie follows the outer frame too.
class FrameTie : public Tie {
  public:
    FrameTie(Frame& model, QGroupBox& box, Binder& to) : Tie(model, box, to), model_(model), box_(box) {
        for (const Frame* holder = model.frame(); holder != nullptr; holder = holder->frame())
            connect(holder, &Control::changed, this, &FrameTie::markChanged);
    }

  protected:
    void showOwn() override { box_.setTitle(model_.caption()); }
    [[nodiscard]] bool enabled() const override { return throughout(&Control::enabled); }
    [[nodiscard]] bool visible() const override { return throughout(&Control::visible); }

  private:
    /// True if `is` holds for the frame and for all frames around it that don't contain its form.
    [[nodiscard]] bool throughout(bool (Control::*is)() const) const {
        bool all = (model_.*is)();
        for (const Frame* holder = model_.frame(); holder != nullptr; holder = holder->frame()) {
            const QWidget* const form = binder().widget(*holder);
            all = all && ((holder->*is)() || (form != nullptr && form->isAncestorOf(&box_)));
        }
        return all;
    }

    Frame& model_;
    QGroupBox& box_;
};

/// The filled part of the bar: the width of its model divided by the width of the model below it.
class PercentTie : public Tie {
  public:
    PercentTie(TextBox& model, PercentBar& bar, Binder& to) : Tie(model, bar, to), model_(model), bar_(bar) {}

  protected:
    void showOwn() override {
        const int whole = binder().form().txtBase.geometria().width;
        bar_.show(whole == 0 ? 0 : static_cast<double>(model_.geometria().width) / whole, model_.text());
    }

  private:
    TextBox& model_;
    PercentBar& bar_;
};

class GridTie : public Tie {
  public:
    GridTie(Grid& model, TableView& view, Binder& to) : Tie(model, view, to), model_(model), view_(view) {
        view.setGrid(model, to.form().TipiGuidaDescrizione);
        connect(&model, &Grid::selectionChanged, this, &GridTie::markChanged);
        connect(&view, &TableView::rowClicked, this,
                [this](int row) { binder().input([this, row] { model_.clickRow(row); }); });
        connect(&view, &TableView::rowDoubleClicked, this,
                [this] { binder().input([this] { model_.doubleClick(); }); });
        connect(&view, &TableView::rowMarked, this,
                [this](int row) { binder().input([this, row] { model_.markRow(row); }); });
        connect(&view, &TableView::keyCode, this,
                [this](int code) { binder().input([this, code] { model_.pressKey(code); }); });
        connect(&view, &TableView::scrolledTo, this, [this](int row) { model_.setTopRow(row); });
    }

  protected:
    void showOwn() override {
        view_.showLayout();
        view_.showSelection();
    }

  private:
    Grid& model_;
    TableView& view_;
};

template<typename Model, typename View, typename Made>
std::unique_ptr<Tie> made(Control& control, QWidget& widget, Binder& binder) {
    auto* const model = dynamic_cast<Model*>(&control);
    auto* const view = qobject_cast<View*>(&widget);
    if (model == nullptr || view == nullptr)
        return nullptr;
    return std::make_unique<Made>(*model, *view, binder);
}

} // namespace

Tie::Tie(Control& control, QWidget& widget, Binder& binder) : control_(control), widget_(widget), binder_(binder) {}

void Tie::watch() {
    connect(&control_, &Control::changed, this, &Tie::markChanged);
    markChanged();
}

void Tie::markChanged() {
    if (dirty_)
        return;
    dirty_ = true;
    binder_.changed(*this);
}

void Tie::show() {
    dirty_ = false;
    showOwn();
    if (const QString told = testoSemplice(control_.tooltip()); widget_.toolTip() != told)
        widget_.setToolTip(told);
    widget_.setEnabled(enabled());
    widget_.setVisible(visible());
}

std::unique_ptr<Tie> makeTie(Control& control, QWidget& widget, Binder& binder) {
    using Maker = std::unique_ptr<Tie> (*)(Control&, QWidget&, Binder&);
    constexpr std::array<Maker, 12> makers{made<Button, QPushButton, ButtonTie>,
                                           made<CheckBox, QCheckBox, CheckTie>,
                                           made<OptionButton, QRadioButton, OptionTie>,
                                           made<Label, Notice, NoticeTie>,
                                           made<Label, QLabel, LabelTie<QLabel>>,
                                           made<Label, ShortenedLabel, LabelTie<ShortenedLabel>>,
                                           made<Frame, QGroupBox, FrameTie>,
                                           made<TextBox, PercentBar, PercentTie>,
                                           made<TextControl, QLineEdit, FieldTie>,
                                           made<ListControl, DropDown, DropDownTie>,
                                           made<ListControl, QListView, ListBoxTie>,
                                           made<Grid, TableView, GridTie>};
    for (const Maker maker : makers) {
        if (auto tie = maker(control, widget, binder))
            return tie;
    }
    return std::make_unique<Tie>(control, widget, binder);
}

} // namespace vanzer::desktop
