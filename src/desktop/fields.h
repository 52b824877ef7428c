// Widgets of the forms that the toolkit lacks: fields as wide as a number of characters, a list that can show a text
// beside its entries, a button with two lines, the notice and the bar of the progress line.
#pragma once

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>

namespace vanzer::desktop {

/// One line of text, `characters` digits wide; read-only ones are grey, the others light blue.
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
    /// The text stays, and the entry that bears it is the chosen one.
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
    /// A wheel that passes by changes nothing and gives no focus: only the list that has it turns.
    void wheelEvent(QWheelEvent* event) override;

  private:
    void tint();
    QString text_;
    int characters_ = 2;
    bool tinting_ = false;
};

/// A button whose caption runs over two lines.
class TwoLineButton : public QPushButton {
    Q_OBJECT
  public:
    explicit TwoLineButton(QWidget* parent = nullptr) : QPushButton(parent) {}
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
};

/// A button with nothing but a "?": as small as can be hit. A click leaves the focus where it is.
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

/// A text that gives way: what has no room is left out in its middle, of a hint at its end. Another text moves nothing
/// else in the window.
class ShortenedLabel : public QWidget {
    Q_OBJECT
    Q_PROPERTY(Qt::Alignment alignment READ alignment WRITE setAlignment)
  public:
    explicit ShortenedLabel(QWidget* parent = nullptr) : QWidget(parent) {}
    void setText(const QString& text);
    [[nodiscard]] const QString& text() const { return text_; }
    /// In place of the text `idle` a hint is shown, if there is one.
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

/// A strip of the window as high as what it holds; one that is too wide for the window can be pushed aside.
class WideStrip : public QScrollArea {
    Q_OBJECT
  public:
    explicit WideStrip(QWidget* parent = nullptr);
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

  protected:
    void resizeEvent(QResizeEvent* event) override;
};

/// A notice beside the progress line, on a ground of its own; screen readers tell it when it comes up. Without a text
/// it takes no room.
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
    /// `share` from 0 to 1.
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
