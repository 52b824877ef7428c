// SPDX-License-Identifier: MIT
// Ties of controls that take text: entry fields, drop-down lists, list boxes. Each character that the user types or
// pastes goes through the model's key handler, which may change or drop it.
#pragma once

#include <QKeyEvent>
#include <QListView>
#include <QStringListModel>

#include "desktop/fields.h"
#include "desktop/ties.h"

namespace vanzer::desktop {

/// Returns `edited` after each character that is new compared to `old` has passed the handler. Adjusts `cursor` so that
/// it stays after the same character.
[[nodiscard]] QString filteredEdit(const TextControl& model, const QString& old, const QString& edited, int& cursor);

class TextTie : public Tie {
    Q_OBJECT
  public:
    TextTie(TextControl& model, QWidget& widget, Binder& to);
    bool eventFilter(QObject* watched, QEvent* event) override;

  protected:
    /// Handles a key; true if it is done with.
    virtual bool keyPressed(const QKeyEvent& event);
    /// Watches a line edit.
    void follow(QLineEdit& line);

  private:
    /// The code of a key after the model's handler; 0 if the key is dropped.
    [[nodiscard]] int filtered(int code);
    bool typed(int code);
    void edited(const QString& text);

    TextControl& model_;
    QLineEdit* line_ = nullptr; ///< null if nothing can be typed
    bool filtered_ = false;     ///< the text that enters the line has passed the handler already
};

class FieldTie : public TextTie {
    Q_OBJECT
  public:
    FieldTie(TextControl& model, QLineEdit& line, Binder& to);

  protected:
    void showOwn() override;

  private:
    TextControl& model_;
    QLineEdit& line_;
};

class DropDownTie : public TextTie {
    Q_OBJECT
  public:
    DropDownTie(ListControl& model, DropDown& list, Binder& to);

  protected:
    void showOwn() override;
    bool keyPressed(const QKeyEvent& event) override;

  private:
    ListControl& model_;
    DropDown& list_;
    QStringList shown_;
};

/// A list box: a click or Enter picks an entry. If the form sets the property "segna", a click or an arrow key only
/// marks an entry, which a button then takes. Such a list starts without a mark.
class ListBoxTie : public Tie {
    Q_OBJECT
  public:
    ListBoxTie(ListControl& model, QListView& view, Binder& to);
    bool eventFilter(QObject* watched, QEvent* event) override;

  protected:
    void showOwn() override;

  private:
    void pickCurrent();
    ListControl& model_;
    QListView& view_;
    QStringListModel entries_;
    bool marks_;
};

} // namespace vanzer::desktop
