// SPDX-License-Identifier: MIT
#include "desktop/print_preview.h"

#include <algorithm>
#include <cmath>

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QScreen>
#include <QScrollBar>
#include <QSettings>
#include <QVBoxLayout>
#include <QWheelEvent>

#include "paper/picture.h"

namespace vanzer::desktop {

namespace {

const QString wishKey = QStringLiteral("stampa/anteprima");

constexpr QSizeF sheetSize(paper::sheetSize.x, paper::sheetSize.y); // mm
constexpr int around = 12;                                          // px of background around the sheet
constexpr double zoomStep = 1.25;
constexpr double smallest = 0.25; // smallest zoom; 1 is the size of the paper
constexpr double largest = 4;

} // namespace

bool previewWanted() {
    return QSettings().value(wishKey, false).toBool();
}

PreviewCheck::PreviewCheck(QWidget* parent) : QCheckBox(parent) {
    setChecked(previewWanted());
    connect(this, &QCheckBox::toggled, this, [](bool on) { QSettings().setValue(wishKey, on); });
}

void PageView::show(const paper::Page& page, double pixelsPerMm) {
    page_ = &page;
    pixelsPerMm_ = pixelsPerMm;
    setFixedSize((sheetSize * pixelsPerMm).toSize() + QSize(2 * around, 2 * around));
    update();
}

void PageView::paintEvent(QPaintEvent* event) {
    const QRect sheet(QPoint(around, around), size() - QSize(2 * around, 2 * around));
    const QRect seen = sheet & event->rect();
    QPainter painter(this);
    painter.fillRect(sheet.translated(2, 2), QColor(0, 0, 0, 60));
    if (page_ == nullptr || seen.isEmpty())
        return;
    const double ratio = devicePixelRatioF();
    QImage image((QSizeF(seen.size()) * ratio).toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::white);
    const QPointF corner = QPointF(seen.topLeft() - sheet.topLeft()) * ratio;
    paper::drawPage(*page_, fonts_,
                    {image.bits(), image.width(), image.height(), static_cast<int>(image.bytesPerLine())},
                    {corner.x(), corner.y()}, pixelsPerMm_ * ratio);
    painter.drawImage(seen.topLeft(), image);
}

PrintPreview::PrintPreview(const std::vector<paper::Page>& pages, paper::Fonts& fonts, const QString& printer,
                           QWidget* parent)
    : QDialog(parent), pages_(pages), area_(new QScrollArea(this)), view_(new PageView(fonts)),
      number_(new QLabel(this)), zoom_(new QLabel(this)),
      previous_(addButton(QStringLiteral("&Indietro"), &PrintPreview::previous)),
      next_(addButton(QStringLiteral("&Avanti"), &PrintPreview::next)) {
    setWindowTitle(QStringLiteral("Anteprima di stampa: ") + printer);
    number_->setObjectName(QStringLiteral("pagina"));
    number_->setAlignment(Qt::AlignCenter);
    zoom_->setAlignment(Qt::AlignCenter);
    const QString widest = QStringLiteral("Pagina %1 di %1").arg(pages.size());
    number_->setMinimumWidth(fontMetrics().horizontalAdvance(widest));
    zoom_->setMinimumWidth(fontMetrics().horizontalAdvance(QStringLiteral("400 %")));

    auto* const row = new QHBoxLayout;
    row->addWidget(previous_);
    row->addWidget(number_);
    row->addWidget(next_);
    row->addStretch();
    row->addWidget(addButton(QStringLiteral("Ri&duci"), &PrintPreview::reduce));
    row->addWidget(zoom_);
    row->addWidget(addButton(QStringLiteral("I&ngrandisci"), &PrintPreview::enlarge));
    row->addWidget(addButton(QStringLiteral("&Pagina intera"), &PrintPreview::fitPage));
    row->addWidget(addButton(QStringLiteral("&Larghezza"), &PrintPreview::fitWidth));
    row->addStretch();
    auto* const print = addButton(QStringLiteral("&Stampa"), &PrintPreview::accept);
    row->addWidget(print);
    row->addWidget(addButton(QStringLiteral("&Rinuncia"), &PrintPreview::reject));

    area_->setWidget(view_);
    area_->setAlignment(Qt::AlignCenter);
    area_->setBackgroundRole(QPalette::Mid);
    area_->setFocusPolicy(Qt::NoFocus);
    area_->viewport()->installEventFilter(this);

    auto* const column = new QVBoxLayout(this);
    column->addWidget(area_, 1);
    column->addLayout(row);
    print->setDefault(true);
    print->setFocus();
    const QSize room = screen()->availableSize();
    resize(std::min(room.width() * 9 / 10, 1100), std::min(room.height() * 9 / 10, 1100));
}

QPushButton* PrintPreview::addButton(const QString& text, void (PrintPreview::*press)()) {
    auto* const button = new QPushButton(text, this);
    connect(button, &QPushButton::clicked, this, press);
    return button;
}

void PrintPreview::previous() {
    goTo(page_ - 1);
}

void PrintPreview::next() {
    goTo(page_ + 1);
}

void PrintPreview::enlarge() {
    fit_ = Fit::Free;
    zoomTo(pixelsPerMm_ * zoomStep);
}

void PrintPreview::reduce() {
    fit_ = Fit::Free;
    zoomTo(pixelsPerMm_ / zoomStep);
}

void PrintPreview::fitPage() {
    fit_ = Fit::Page;
    const QSizeF room = area_->maximumViewportSize() - QSize(2 * around, 2 * around);
    zoomTo(std::min(room.width() / sheetSize.width(), room.height() / sheetSize.height()));
}

void PrintPreview::fitWidth() {
    fit_ = Fit::Width;
    const int bar = area_->verticalScrollBar()->sizeHint().width();
    zoomTo((area_->maximumViewportSize().width() - bar - 2 * around) / sheetSize.width());
}

void PrintPreview::goTo(int page, bool atEnd) {
    page_ = std::clamp(page, 0, static_cast<int>(pages_.size()) - 1);
    showPage();
    QScrollBar* const bar = area_->verticalScrollBar();
    bar->setValue(atEnd ? bar->maximum() : bar->minimum());
}

/// Scrolls to the hidden part of the page first, then turns to the next page.
void PrintPreview::turn(int steps) {
    QScrollBar* const bar = area_->verticalScrollBar();
    const int before = bar->value();
    bar->setValue(before + steps * bar->pageStep());
    const int page = page_ + steps;
    if (bar->value() == before && page >= 0 && page < static_cast<int>(pages_.size()))
        goTo(page, steps < 0);
}

void PrintPreview::zoomTo(double pixelsPerMm) {
    const double paper = logicalDpiX() / paper::mmPerInch;
    pixelsPerMm_ = std::clamp(pixelsPerMm, smallest * paper, largest * paper);
    zoom_->setText(QStringLiteral("%1 %").arg(std::lround(pixelsPerMm_ / paper * 100)));
    showPage();
}

void PrintPreview::showPage() {
    view_->show(pages_[static_cast<std::size_t>(page_)], pixelsPerMm_);
    number_->setText(QStringLiteral("Pagina %1 di %2").arg(page_ + 1).arg(pages_.size()));
    previous_->setEnabled(page_ > 0);
    next_->setEnabled(page_ + 1 < static_cast<int>(pages_.size()));
}

void PrintPreview::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_PageDown: turn(1); break;
    case Qt::Key_PageUp: turn(-1); break;
    case Qt::Key_Home: goTo(0); break;
    case Qt::Key_End: goTo(static_cast<int>(pages_.size()) - 1); break;
    case Qt::Key_Plus: enlarge(); break;
    case Qt::Key_Minus: reduce(); break;
    default: QDialog::keyPressEvent(event);
    }
}

void PrintPreview::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    fitPage();
}

void PrintPreview::resizeEvent(QResizeEvent* event) {
    QDialog::resizeEvent(event);
    if (fit_ == Fit::Page)
        fitPage();
    else if (fit_ == Fit::Width)
        fitWidth();
}

/// The wheel zooms with Ctrl and turns pages without.
bool PrintPreview::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::Wheel)
        return QDialog::eventFilter(watched, event);
    auto* const wheel = static_cast<QWheelEvent*>(event);
    const int up = wheel->angleDelta().y();
    const QScrollBar* const bar = area_->verticalScrollBar();
    if (wheel->modifiers().testFlag(Qt::ControlModifier)) {
        if (up != 0)
            up > 0 ? enlarge() : reduce();
        return true;
    }
    if ((up > 0 && bar->value() == bar->minimum()) || (up < 0 && bar->value() == bar->maximum())) {
        turn(up > 0 ? -1 : 1);
        return true;
    }
    return QDialog::eventFilter(watched, event);
}

} // namespace vanzer::desktop
