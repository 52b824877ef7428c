#include "desktop/drawn_page.h"

#include <QPixmap>

/// The pictures lie in a library: named here, they come into every program that draws.
static void bringPictures() {
    Q_INIT_RESOURCE(pictures);
}

namespace vanzer::desktop {

namespace {

const QPixmap& sign() {
    static const QPixmap loaded = [] {
        bringPictures();
        return QPixmap(QStringLiteral(":/segno.png"));
    }();
    return loaded;
}

QPen pen(double width) {
    return {Qt::black, width, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin};
}

QRectF rect(Punto from, Punto to) {
    return QRectF(QPointF(from.x, from.y), QPointF(to.x, to.y)).normalized();
}

void draw(const DrawnText& text, QPainter& painter) {
    painter.save();
    painter.translate(text.at.x, text.at.y);
    painter.scale(text.scale, text.scale);
    painter.setFont(text.face->font());
    painter.setPen(Qt::black);
    painter.drawText(QPointF(0, text.face->ascent()), text.text);
    painter.restore();
}

void draw(const DrawnLine& line, QPainter& painter) {
    painter.setPen(pen(line.width));
    painter.drawLine(QPointF(line.from.x, line.from.y), QPointF(line.to.x, line.to.y));
}

void draw(const DrawnBox& box, QPainter& painter) {
    painter.setPen(pen(box.width));
    painter.setBrush(box.fill ? QBrush(QColor::fromRgb(*box.fill)) : QBrush());
    painter.drawRect(rect(box.from, box.to));
}

/// What is smaller on the screen is made smaller with care.
void draw(const DrawnPicture& picture, QPainter& painter) {
    const QRectF place(picture.at.x, picture.at.y, picture.size.x, picture.size.y);
    const QSize shown = painter.deviceTransform().mapRect(place).size().toSize();
    const bool smaller = shown.width() < sign().width();
    const QPixmap drawn = smaller ? sign().scaled(shown, Qt::IgnoreAspectRatio, Qt::SmoothTransformation) : sign();
    painter.drawPixmap(place, drawn, QRectF(drawn.rect()));
}

} // namespace

QImage signPicture() {
    return sign().toImage();
}

void replay(const DrawnPage& page, QPainter& painter, double perMm) {
    painter.save();
    painter.scale(perMm, perMm);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform |
                           QPainter::LosslessImageRendering);
    for (const Drawing& drawing : page)
        std::visit([&painter](const auto& one) { draw(one, painter); }, drawing);
    painter.restore();
}

} // namespace vanzer::desktop
