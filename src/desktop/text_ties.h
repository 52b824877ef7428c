// Ties of everything that takes text: entry fields, drop-down lists, list boxes. Each character that the user brings
// in, typed or pasted, goes through the model's key handler, which may change or drop it.
#pragma once

#include <QKeyEvent>
#include <QListView>
#include <QStringListModel>

#include "desktop/fields.h"
#include "desktop/ties.h"

namespace vanzer::desktop {

/// `edited` with what it brings into `old` sent through the handler, character by character; `cursor` stays behind the
/// same character.
[[nodiscard]] QString filteredEdit(const TextControl& model, const QString& old, const QString& edited, int& cursor);

class TextTie : public Tie {
    Q_OBJECT
  public:
    TextTie(TextControl& model, QWidget& widget, Binder& to);
    bool eventFilter(QObject* watched, QEvent* event) override;

  protected:
    /// True if the key is dealt with.
    virtual bool keyPressed(const QKeyEvent& event);
    /// Follows a line that the user edits.
    void follow(QLineEdit& line);

  private:
    /// What the model's handler makes of a key; 0 if it drops it.
    [[nodiscard]] int filtered(int code);
    bool typed(int code);
    void edited(const QString& text);

    TextControl& model_;
    QLineEdit* line_ = nullptr; ///< null where nothing can be typed
    bool filtered_ = false;     ///< what comes into the line has been through the handler
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

/// A list box: a click or Enter picks. Where the form sets "segna" the list only marks what a button then takes: it
/// comes up with nothing marked, and the arrows mark too.
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
