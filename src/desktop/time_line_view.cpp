// SPDX-License-Identifier: MIT
#include "desktop/time_line_view.h"

#include <algorithm>

#include <QAccessible>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QToolTip>

#include "core/time_values.h"
#include "desktop/plain_text.h"
#include "desktop/tints.h"

namespace vanzer::desktop {

namespace {

using namespace Qt::StringLiterals;

constexpr int hours = 24;
constexpr int hoursBetweenMarks = 3;

QColor colour(const Tints& tints, Attivita::Tipo type) {
    using enum Attivita::Tipo;
    switch (type) {
    case Guida: return tints.drive;
    case Sosta: return tints.stop;
    case Pasto: return tints.meal;
    case Pausa: return tints.pause;
    case Notte: return tints.night;
    default: return Qt::transparent;
    }
}

QString hoursOf(double hundredths) {
    return ghmSenzaGiorni(static_cast<float>(hundredths), giornoIntero);
}

} // namespace

/// Edges in pixels of the viewport, computed from the font.
struct TimeLineView::Measures {
    int head;
    int row;
    int left;  ///< midnight
    int right; ///< the next midnight
    int width;

    [[nodiscard]] int across(double hundredths) const {
        return left + static_cast<int>((right - left) * hundredths / giornoIntero);
    }
};

TimeLineView::TimeLineView(QWidget* parent) : QAbstractScrollArea(parent) {
    setFocusPolicy(Qt::StrongFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    viewport()->setBackgroundRole(QPalette::Base);
}

void TimeLineView::setLine(std::shared_ptr<const LineaDelTempo> line) {
    line_ = std::move(line);
    days_ = line_ == nullptr ? std::vector<Giornata>() : giornate(*line_);
    current_ = 0;
    layOut();
    verticalScrollBar()->setValue(0);
    tellDay();
    viewport()->update();
}

QSize TimeLineView::sizeHint() const {
    return {800, 400};
}

TimeLineView::Measures TimeLineView::measures() const {
    const QFontMetrics metrics = fontMetrics();
    const int height = metrics.height();
    const int beside = metrics.horizontalAdvance(u'0');
    const int width = viewport()->width();
    const int left = metrics.horizontalAdvance(u"Mer 00/00"_s) + 3 * beside;
    const int right = width - metrics.horizontalAdvance(u"0000 km  00:00"_s) - 3 * beside;
    return {height * 3 + height / 2, height * 2, left, std::max(right, left + hours), width};
}

void TimeLineView::layOut() {
    const Measures m = measures();
    const int room = viewport()->height() - m.head;
    QScrollBar& bar = *verticalScrollBar();
    bar.setSingleStep(m.row);
    bar.setPageStep(std::max(room, m.row));
    bar.setRange(0, std::max(0, static_cast<int>(days_.size()) * m.row - room));
}

void TimeLineView::resizeEvent(QResizeEvent* event) {
    QAbstractScrollArea::resizeEvent(event);
    layOut();
}

void TimeLineView::changeEvent(QEvent* event) {
    QAbstractScrollArea::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::PaletteChange) {
        layOut();
        viewport()->update();
    }
}

void TimeLineView::scrollContentsBy(int /*dx*/, int /*dy*/) {
    viewport()->update();
}

int TimeLineView::dayAt(int y) const {
    const Measures m = measures();
    if (y < m.head)
        return -1;
    const int day = (y - m.head + verticalScrollBar()->value()) / m.row;
    return day < static_cast<int>(days_.size()) ? day : -1;
}

const Attivita* TimeLineView::activityAt(QPoint at) const {
    const int day = dayAt(at.y());
    if (day < 0)
        return nullptr;
    const Measures m = measures();
    for (const Barra& bar : days_[static_cast<std::size_t>(day)].barre) {
        if (at.x() >= m.across(bar.da) && at.x() < m.across(bar.a))
            return &line_->attivita[bar.attivita];
    }
    return nullptr;
}

void TimeLineView::choose(int day) {
    if (days_.empty())
        return;
    current_ = std::clamp(day, 0, static_cast<int>(days_.size()) - 1);
    const Measures m = measures();
    QScrollBar& bar = *verticalScrollBar();
    const int top = current_ * m.row;
    const int room = viewport()->height() - m.head;
    bar.setValue(std::clamp(bar.value(), std::max(0, top + m.row - room), top));
    tellDay();
    viewport()->update();
}

void TimeLineView::tellDay() {
    QStringList parts;
    if (!days_.empty()) {
        const Giornata& day = days_[static_cast<std::size_t>(current_)];
        QString sums = day.data;
        if (day.km > 0)
            sums += u", "_s + QString::number(day.km) + u" km in ore "_s + hoursOf(day.guida);
        if (day.soste > 0)
            sums += u", soste ore "_s + hoursOf(day.soste);
        parts << sums;
        for (const Barra& bar : day.barre) {
            const Attivita& activity = line_->attivita[bar.attivita];
            if (activity.tipo != Attivita::Tipo::Libero)
                parts << descrizione(*line_, activity).mid(day.data.size() + 1);
        }
    }
    const QString told = parts.join(u";  "_s);
    setAccessibleDescription(told);
    emit dayTold(told);
}

void TimeLineView::keyPressEvent(QKeyEvent* event) {
    const int page = std::max(1, verticalScrollBar()->pageStep() / measures().row);
    switch (event->key()) {
    case Qt::Key_Up: choose(current_ - 1); break;
    case Qt::Key_Down: choose(current_ + 1); break;
    case Qt::Key_PageUp: choose(current_ - page); break;
    case Qt::Key_PageDown: choose(current_ + page); break;
    case Qt::Key_Home: choose(0); break;
    case Qt::Key_End: choose(static_cast<int>(days_.size()) - 1); break;
    default: event->ignore();
    }
}

void TimeLineView::mousePressEvent(QMouseEvent* event) {
    if (const int day = dayAt(event->pos().y()); day >= 0)
        choose(day);
}

bool TimeLineView::viewportEvent(QEvent* event) {
    if (event->type() != QEvent::ToolTip)
        return QAbstractScrollArea::viewportEvent(event);
    const auto& help = *static_cast<const QHelpEvent*>(event);
    const Attivita* const activity = activityAt(help.pos());
    const QString told = activity == nullptr ? QString() : descrizione(*line_, *activity);
    QToolTip::showText(help.globalPos(), testoSemplice(told), viewport());
    return true;
}

void TimeLineView::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(viewport());
    const Measures m = measures();
    painter.setClipRect(0, m.head, m.width, viewport()->height() - m.head);
    const int shift = verticalScrollBar()->value();
    const int first = shift / m.row;
    const int last = std::min(static_cast<int>(days_.size()) - 1, (shift + viewport()->height() - m.head) / m.row);
    for (int day = first; day <= last; ++day)
        paintDay(painter, m, day, m.head + day * m.row - shift);
    painter.setClipping(false);
    paintHead(painter, m);
}

/// Draws the legend of the colours and the hours.
void TimeLineView::paintHead(QPainter& painter, const Measures& m) {
    using enum Attivita::Tipo;
    const Tints tints(palette());
    const int height = fontMetrics().height();
    const int beside = fontMetrics().horizontalAdvance(u'0');
    int x = m.left;
    for (const Attivita::Tipo type : {Guida, Sosta, Pasto, Pausa, Notte}) {
        painter.fillRect(x, height / 2, height, height, colour(tints, type));
        x += height + beside;
        painter.setPen(palette().color(QPalette::Text));
        painter.drawText(x, height / 2 + fontMetrics().ascent(), nomeAttivita(type));
        x += fontMetrics().horizontalAdvance(nomeAttivita(type)) + 3 * beside;
    }
    painter.setPen(tints.faint);
    for (int hour = 0; hour <= hours; hour += hoursBetweenMarks) {
        const int mark = m.across(hour * 100);
        painter.drawText(QRect(mark - 3 * beside, m.head - height - height / 4, 6 * beside, height), Qt::AlignCenter,
                         QString::number(hour));
    }
    painter.setPen(tints.rule);
    painter.drawLine(0, m.head - 1, m.width, m.head - 1);
}

void TimeLineView::paintDay(QPainter& painter, const Measures& m, int day, int y) {
    const Tints tints(palette());
    const Giornata& shown = days_[static_cast<std::size_t>(day)];
    const QRect row(0, y, m.width, m.row);
    if (day % 2 == 1)
        painter.fillRect(row, tints.band);
    painter.setPen(tints.computed);
    for (int hour = 0; hour <= hours; hour += hoursBetweenMarks)
        painter.drawLine(m.across(hour * 100), y, m.across(hour * 100), y + m.row);
    for (const Barra& bar : shown.barre)
        paintBar(painter, m, bar, y);
    const int beside = fontMetrics().horizontalAdvance(u'0');
    painter.setPen(palette().color(QPalette::Text));
    painter.drawText(row.adjusted(beside, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter, shown.data);
    if (shown.km > 0)
        painter.drawText(row.adjusted(0, 0, -beside, 0), Qt::AlignRight | Qt::AlignVCenter,
                         QString::number(shown.km) + u" km  "_s + hoursOf(shown.guida));
    if (day == current_) {
        painter.setPen(QPen(hasFocus() ? palette().color(QPalette::Highlight) : tints.rule, hasFocus() ? 2 : 1));
        painter.drawRect(row.adjusted(1, 1, -2, -2));
    }
}

void TimeLineView::paintBar(QPainter& painter, const Measures& m, const Barra& bar, int y) {
    const Attivita& activity = line_->attivita[bar.attivita];
    if (activity.tipo == Attivita::Tipo::Libero)
        return;
    const int from = m.across(bar.da);
    const int air = m.row / 7;
    // Leaves a pixel between bars that follow each other.
    const QRect box(from, y + air, std::max(m.across(bar.a) - from - 1, 1), m.row - 2 * air);
    painter.fillRect(box, colour(Tints(palette()), activity.tipo));
    const int inset = fontMetrics().horizontalAdvance(u' ');
    const QRect inner = box.adjusted(inset, 0, -inset, 0);
    const QString name = fontMetrics().elidedText(activity.nome, Qt::ElideRight, inner.width());
    constexpr int shortest = 3; // characters with the dots; a shorter name says nothing
    if (name.size() < shortest && name != activity.nome)
        return;
    painter.setPen(palette().color(QPalette::Text));
    painter.drawText(inner, Qt::AlignCenter, name);
}

} // namespace vanzer::desktop
