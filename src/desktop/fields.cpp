// SPDX-License-Identifier: MIT
#include "desktop/fields.h"

#include <algorithm>

#include <QAccessible>
#include <QEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyleOption>
#include <QStylePainter>
#include <QWheelEvent>

#include "desktop/tints.h"

namespace vanzer::desktop {

namespace {

int digits(const QWidget& widget, int n) {
    return widget.fontMetrics().horizontalAdvance(u'0') * n;
}

bool changesColours(const QEvent& event) {
    switch (event.type()) {
    case QEvent::PaletteChange:
    case QEvent::ReadOnlyChange:
    case QEvent::ParentChange:
    case QEvent::StyleChange: return true;
    default: return false;
    }
}

/// Sets the background of a field. `tinting` prevents recursion, as setting a palette sends a change event.
void layGround(QWidget& field, bool computed, bool& tinting) {
    if (tinting || field.parentWidget() == nullptr)
        return;
    tinting = true;
    const Tints tints(field.parentWidget()->palette());
    field.setPalette(fieldPalette(computed ? tints.computed : tints.fillable));
    tinting = false;
}

/// The caption in two lines, broken at the blank that makes their lengths most similar.
QString twoLines(const QString& caption) {
    qsizetype best = -1;
    for (qsizetype at = caption.indexOf(u' '); at >= 0; at = caption.indexOf(u' ', at + 1)) {
        if (best < 0 || std::abs(2 * at - caption.size()) < std::abs(2 * best - caption.size()))
            best = at;
    }
    QString result = caption;
    if (best >= 0)
        result[best] = u'\n';
    return result;
}

} // namespace

void Field::setCharacters(int n) {
    characters_ = n;
    updateGeometry();
}

QSize Field::sizeHint() const {
    constexpr int frame = 14;
    return {digits(*this, characters_) + frame, QLineEdit::sizeHint().height()};
}

QSize Field::minimumSizeHint() const {
    return {std::min(sizeHint().width(), digits(*this, 14)), sizeHint().height()};
}

void Field::changeEvent(QEvent* event) {
    QLineEdit::changeEvent(event);
    if (changesColours(*event))
        tint();
}

void Field::showEvent(QShowEvent* event) {
    tint();
    QLineEdit::showEvent(event);
}

void Field::tint() {
    layGround(*this, isReadOnly(), tinting_);
}

DropDown::DropDown(QWidget* parent) : QComboBox(parent) {
    setInsertPolicy(QComboBox::NoInsert);
    setMaxVisibleItems(16);
    setFocusPolicy(Qt::StrongFocus);
}

void DropDown::setCharacters(int n) {
    characters_ = n;
    updateGeometry();
}

void DropDown::showEntries(const QStringList& entries) {
    clear();
    addItems(entries);
    showText(text_);
}

void DropDown::showText(const QString& text) {
    text_ = text;
    setCurrentIndex(findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive));
    if (isEditable() && currentText() != text)
        setEditText(text);
    update();
}

QSize DropDown::sizeHint() const {
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const QSize contents(digits(*this, characters_) - 2, std::max(fontMetrics().height(), 14));
    return style()->sizeFromContents(QStyle::CT_ComboBox, &option, contents, this);
}

QSize DropDown::minimumSizeHint() const {
    return sizeHint();
}

void DropDown::initStyleOption(QStyleOptionComboBox* option) const {
    QComboBox::initStyleOption(option);
    if (!isEditable())
        option->currentText = text_;
}

void DropDown::paintEvent(QPaintEvent* event) {
    if (isEditable()) {
        QComboBox::paintEvent(event);
        return;
    }
    QStylePainter painter(this);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

void DropDown::changeEvent(QEvent* event) {
    QComboBox::changeEvent(event);
    if (changesColours(*event))
        tint();
}

void DropDown::showEvent(QShowEvent* event) {
    tint();
    QComboBox::showEvent(event);
}

void DropDown::wheelEvent(QWheelEvent* event) {
    if (hasFocus())
        QComboBox::wheelEvent(event);
    else
        event->ignore();
}

void DropDown::tint() {
    layGround(*this, false, tinting_);
}

QSize TwoLineButton::sizeHint() const {
    const QSize text = fontMetrics().size(Qt::TextShowMnemonic, twoLines(this->text()));
    return text + QSize(12, 10);
}

QSize TwoLineButton::minimumSizeHint() const {
    return sizeHint();
}

void TwoLineButton::paintEvent(QPaintEvent* /*event*/) {
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    option.text.clear();
    painter.drawControl(QStyle::CE_PushButton, option);
    painter.drawItemText(rect(), Qt::AlignCenter | Qt::TextShowMnemonic, palette(), isEnabled(), twoLines(text()),
                         QPalette::ButtonText);
}

QSize HelpButton::sizeHint() const {
    const int side = fontMetrics().height() + 8;
    return {side, side};
}

void ShortenedLabel::setText(const QString& text) {
    text_ = text;
    setAccessibleName(text);
    update();
}

void ShortenedLabel::setHint(const QString& hint) {
    hint_ = hint;
    update();
}

const QString& ShortenedLabel::shown() const {
    return text_ == idle_ && !hint_.isEmpty() ? hint_ : text_;
}

void ShortenedLabel::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const Qt::TextElideMode left = &shown() == &hint_ ? Qt::ElideRight : Qt::ElideMiddle;
    const QString fitting = fontMetrics().elidedText(shown(), left, width());
    style()->drawItemText(&painter, rect(), static_cast<int>(alignment_), palette(), isEnabled(), fitting,
                          QPalette::WindowText);
}

WideStrip::WideStrip(QWidget* parent) : QScrollArea(parent) {
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize WideStrip::sizeHint() const {
    const QSize contents = widget() == nullptr ? QSize() : widget()->minimumSizeHint();
    const int bar = contents.width() > width() ? horizontalScrollBar()->sizeHint().height() : 0;
    return {contents.width(), contents.height() + bar};
}

QSize WideStrip::minimumSizeHint() const {
    return {0, sizeHint().height()};
}

void WideStrip::resizeEvent(QResizeEvent* event) {
    QScrollArea::resizeEvent(event);
    updateGeometry();
}

void Notice::setText(const QString& text) {
    if (text == this->text())
        return;
    QLabel::setText(text);
    setAccessibleName(text);
    QAccessibleEvent told(this, QAccessible::Alert);
    if (!text.isEmpty())
        QAccessible::updateAccessibility(&told);
}

void Notice::paintEvent(QPaintEvent* event) {
    QPainter(this).fillRect(rect(), Tints(palette()).marked);
    QLabel::paintEvent(event);
}

void PercentBar::show(double share, const QString& text) {
    share_ = share;
    text_ = text;
    update();
}

void PercentBar::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const QRect filled(0, 0, static_cast<int>(share_ * width()), height());
    const auto written = [this, &painter](const QRect& part, QPalette::ColorRole ink) {
        painter.setClipRect(part);
        painter.setPen(palette().color(ink));
        painter.drawText(rect(), Qt::AlignCenter, text_);
    };
    painter.fillRect(filled, palette().color(QPalette::Highlight));
    written(filled, QPalette::HighlightedText);
    written(rect().adjusted(filled.width(), 0, 0, 0), QPalette::Text);
}

} // namespace vanzer::desktop
