// SPDX-License-Identifier: MIT
// Widgets that Qt lacks: fields as wide as a number of characters, a drop-down list whose text need not be an entry, a
// button with two lines, the notice and the bar of the progress line.
#pragma once

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>

namespace vanzer::desktop {

/// One line of text, `characters` digits wide. Read-only fields are grey, others light blue.
class Field : public QLineEdit {
    Q_OBJECT
    Q_PROPERTY(int characters READ characters WRITE setCharacters)
  public:
    explicit Field(QWidget* parent = nullptr) : QLineEdit(parent) {}
    [[nodiscard]] int characters() const { return characters_; }
    void setCharacters(int n);
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

  protected:
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;

  private:
    void tint();
    int characters_ = 10;
    bool tinting_ = false;
};

/// A drop-down list whose text may differ from every entry.
class DropDown : public QComboBox {
    Q_OBJECT
    Q_PROPERTY(int characters READ characters WRITE setCharacters)
  public:
    explicit DropDown(QWidget* parent = nullptr);
    [[nodiscard]] int characters() const { return characters_; }
    void setCharacters(int n);
    /// Replaces the entries. The text stays, and an entry equal to it is selected.
    void showEntries(const QStringList& entries);
    void showText(const QString& text);
    [[nodiscard]] const QString& shownText() const { return text_; }
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

  protected:
    void initStyleOption(QStyleOptionComboBox* option) const override;
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    /// The wheel changes only a list that has the focus, and never gives focus.
    void wheelEvent(QWheelEvent* event) override;

  private:
    void tint();
    QString text_;
    int characters_ = 2;
    bool tinting_ = false;
};

/// A button with a caption in two lines.
class TwoLineButton : public QPushButton {
    Q_OBJECT
  public:
    explicit TwoLineButton(QWidget* parent = nullptr) : QPushButton(parent) {}
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
};

/// A small button with a "?". A click doesn't move the focus.
class HelpButton : public QPushButton {
    Q_OBJECT
  public:
    explicit HelpButton(QWidget* parent = nullptr) : QPushButton(parent) {
        setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
        setFocusPolicy(Qt::TabFocus);
    }
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }
};

/// A label that shortens its text to its width: in the middle, a hint at its end. Its text never changes the layout of
/// the window.
class ShortenedLabel : public QWidget {
    Q_OBJECT
    Q_PROPERTY(Qt::Alignment alignment READ alignment WRITE setAlignment)
  public:
    explicit ShortenedLabel(QWidget* parent = nullptr) : QWidget(parent) {}
    void setText(const QString& text);
    [[nodiscard]] const QString& text() const { return text_; }
    /// While the text equals `idle`, the hint is shown instead, if there is one.
    void setIdle(const QString& idle) { idle_ = idle; }
    void setHint(const QString& hint);
    [[nodiscard]] const QString& shown() const;
    void setAlignment(Qt::Alignment alignment) { alignment_ = alignment; }
    [[nodiscard]] Qt::Alignment alignment() const { return alignment_; }
    [[nodiscard]] QSize minimumSizeHint() const override { return {0, fontMetrics().height()}; }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QString text_;
    QString idle_;
    QString hint_;
    Qt::Alignment alignment_ = Qt::AlignLeft | Qt::AlignVCenter;
};

/// A strip of the window, as high as its contents. If these are too wide for the window, it scrolls sideways.
class WideStrip : public QScrollArea {
    Q_OBJECT
  public:
    explicit WideStrip(QWidget* parent = nullptr);
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

  protected:
    void resizeEvent(QResizeEvent* event) override;
};

/// A notice beside the progress line, with a background of its own. Screen readers announce it when it appears. Without
/// a text it takes no room.
class Notice : public QLabel {
    Q_OBJECT
  public:
    explicit Notice(QWidget* parent = nullptr) : QLabel(parent) { setContentsMargins(8, 0, 8, 0); }
    void setText(const QString& text);

  protected:
    void paintEvent(QPaintEvent* event) override;
};

/// The filled part of the progress line, with its text.
class PercentBar : public QWidget {
    Q_OBJECT
  public:
    explicit PercentBar(QWidget* parent = nullptr) : QWidget(parent) {}
    /// Shows a share, from 0 to 1, and a text.
    void show(double share, const QString& text);
    [[nodiscard]] double share() const { return share_; }
    [[nodiscard]] const QString& text() const { return text_; }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    double share_ = 0;
    QString text_;
};

} // namespace vanzer::desktop
