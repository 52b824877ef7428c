// SPDX-License-Identifier: MIT
// Control models: the state of a control of the window, without the widget. The window's logic reads and writes them; a
// view connects to `changed`. A change that matters to the logic calls a handler, which start-up sets.
#pragma once

#include <functional>

#include <QObject>
#include <QString>
#include <QStringList>

namespace vanzer {

class Frame;

/// Position and size in twips.
struct Geometria {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
};

class Control : public QObject {
    Q_OBJECT
  public:
    /// `index` is the element of a control array, -1 for a control outside any. `frame` is the frame that contains the
    /// control, null for the window.
    Control(QString baseName, int index, Frame* frame);

    [[nodiscard]] const QString& baseName() const { return baseName_; }
    [[nodiscard]] int index() const { return index_; }
    /// Name with the index, if any: "cmbOra(3)".
    [[nodiscard]] QString name() const;
    [[nodiscard]] Frame* frame() const { return frame_; }

    [[nodiscard]] bool visible() const { return visible_; }
    void setVisible(bool on);
    [[nodiscard]] bool enabled() const { return enabled_; }
    void setEnabled(bool on);
    /// True if the control and all frames around it are visible and enabled.
    [[nodiscard]] bool reachable() const;

    [[nodiscard]] const QString& tooltip() const { return tooltip_; }
    void setTooltip(const QString& text);

    [[nodiscard]] const Geometria& geometria() const { return geometria_; }
    /// Sets position and size, all in twips; so do the setters below.
    void place(int left, int top, int width, int height);
    void setLeft(int left);
    void setTop(int top);
    void setWidth(int width);
    void setHeight(int height);

  signals:
    /// Something that a view shows has changed.
    void changed();

  protected:
    template<typename T> void assign(T& member, const T& value) {
        if (member == value)
            return;
        member = value;
        emit changed();
    }

  private:
    QString baseName_;
    int index_;
    Frame* frame_;
    bool visible_ = true;
    bool enabled_ = true;
    QString tooltip_;
    Geometria geometria_;
};

/// A control with a caption. "&" stands before the access key's letter.
class Captioned : public Control {
    Q_OBJECT
  public:
    using Control::Control;
    [[nodiscard]] const QString& caption() const { return caption_; }
    void setCaption(const QString& text) { assign(caption_, text); }

  private:
    QString caption_;
};

class Frame : public Captioned {
    Q_OBJECT
  public:
    using Captioned::Captioned;
};

class Label : public Captioned {
    Q_OBJECT
  public:
    using Captioned::Captioned;
};

/// A picture among the window's resources, used by the printer.
class Picture : public Control {
    Q_OBJECT
  public:
    using Control::Control;
};

class Button : public Captioned {
    Q_OBJECT
  public:
    using Captioned::Captioned;
    [[nodiscard]] bool isDefault() const { return default_; }
    void setDefault(bool on) { assign(default_, on); }

    /// The user's click.
    void click();
    std::function<void()> onClick;

  private:
    bool default_ = false;
};

class CheckBox : public Captioned {
    Q_OBJECT
  public:
    using Captioned::Captioned;
    [[nodiscard]] bool value() const { return value_; }
    void setValue(bool on) { assign(value_, on); }

    /// The user's choice.
    void choose(bool on);
    std::function<void()> onClick;

  private:
    bool value_ = false;
};

/// One of an array of option buttons that exclude each other.
class OptionButton : public Captioned {
    Q_OBJECT
  public:
    using Captioned::Captioned;
    [[nodiscard]] bool value() const { return value_; }
    /// Switching one on switches the others of its array off.
    void setValue(bool on);

    /// The user's choice.
    void choose();
    std::function<void()> onClick;
    void setGroup(std::function<void(OptionButton&)> othersOff) { othersOff_ = std::move(othersOff); }

  private:
    bool value_ = false;
    std::function<void(OptionButton&)> othersOff_;
};

/// A control that takes key presses. The key press handler gets the character code and may change it; 0 drops the key.
class TextControl : public Control {
    Q_OBJECT
  public:
    using Control::Control;
    [[nodiscard]] const QString& text() const { return text_; }
    /// Calls the change handler if the text really changes, also for changes by the program.
    void setText(const QString& text);

    /// The character code after the key press handler; 0 if the key is dropped.
    [[nodiscard]] int filterKey(int code) const;
    /// One key press of the user. Runs the handler and appends the resulting character if its code is above 31.
    void pressKey(int code);
    /// One key-down event of the user.
    void keyDown(int code);
    /// The focus leaves the control.
    void leave();

    /// Greatest length of what the user types; -1 for no limit.
    [[nodiscard]] virtual qsizetype room() const { return -1; }

    std::function<void()> onChange;
    std::function<void(int& code)> onKeyPress;
    std::function<void(int code)> onKeyDown;
    std::function<void()> onLostFocus;

  private:
    QString text_;
};

class TextBox : public TextControl {
    Q_OBJECT
  public:
    using TextControl::TextControl;
    /// Greatest length of what the user types; 0 for no limit.
    [[nodiscard]] int maxLength() const { return maxLength_; }
    void setMaxLength(int length) { assign(maxLength_, length); }
    /// The user replaces the text, cut to the greatest length.
    void type(const QString& text);
    [[nodiscard]] qsizetype room() const override { return maxLength_ == 0 ? -1 : maxLength_; }

  private:
    int maxLength_ = 0;
};

/// Drop-down list and list box: entries beside a text that may differ from every one of them.
class ListControl : public TextControl {
    Q_OBJECT
  public:
    ListControl(QString baseName, int index, Frame* frame, bool box);

    /// A list box, not a drop-down list.
    [[nodiscard]] bool isBox() const { return box_; }
    [[nodiscard]] const QStringList& entries() const { return entries_; }
    [[nodiscard]] int count() const { return static_cast<int>(entries_.size()); }
    /// The entry at a position from 0; empty outside the list.
    [[nodiscard]] QString List(int i) const { return entries_.value(i); }
    void add(const QString& entry);
    void setEntries(const QStringList& entries);
    /// No entries and no text.
    void clear();
    /// Keeps the entries sorted: letters first without regard to case and accents.
    void setSorted(bool on) { sorted_ = on; }
    /// The user picks from the entries and never types.
    [[nodiscard]] bool entriesOnly() const { return entriesOnly_; }
    void setEntriesOnly();

    /// The user clicks the first entry equal to `entry`, capitals ignored; false if there is none.
    bool pick(const QString& entry);
    std::function<void()> onClick;

  private:
    QStringList entries_;
    bool box_;
    bool sorted_ = false;
    bool entriesOnly_ = false;
};

} // namespace vanzer
