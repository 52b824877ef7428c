// SPDX-License-Identifier: MIT
#include "desktop/paper_output.h"

#include <QCoreApplication>
#include <QPageLayout>
#include <QPainter>
#include <QPainterPath>
#include <QPrinter>
#include <QPrinterInfo>

#include "paper/sign.h"

namespace vanzer::desktop {

namespace {

const QPageLayout& upright() {
    static const QPageLayout layout(QPageSize(QPageSize::A4), QPageLayout::Portrait, {});
    return layout;
}

QPointF at(Punto place) {
    return {place.x, place.y};
}

QPen pen(double width, paper::Colour colour = paper::black) {
    return {QColor::fromRgb(colour), width, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin};
}

/// Draws a text in one large font size and scales it, so that hinting has no effect.
void draw(const paper::DrawnText& text, QPainter& painter) {
    constexpr int emPixels = 1000;
    QFont font(text.font.family);
    font.setPixelSize(emPixels);
    font.setBold(text.font.bold);
    font.setItalic(text.font.italic);
    font.setHintingPreference(QFont::PreferNoHinting);
    const double mmPerPixel = text.font.points * paper::mmPerPoint / emPixels;
    painter.save();
    painter.translate(at(text.base));
    painter.scale(mmPerPixel, mmPerPixel);
    painter.setFont(font);
    painter.setPen(QColor::fromRgb(text.colour));
    painter.drawText(QPointF(), text.text);
    painter.restore();
}

void draw(const paper::DrawnLine& line, QPainter& painter) {
    painter.setPen(pen(line.width, line.colour));
    painter.drawLine(at(line.from), at(line.to));
}

void draw(const paper::DrawnBox& box, QPainter& painter) {
    painter.setPen(pen(box.width));
    painter.setBrush(box.fill ? QBrush(QColor::fromRgb(*box.fill)) : QBrush());
    painter.drawRect(QRectF(at(box.from), at(box.to)).normalized());
}

void draw(const paper::DrawnSign& sign, QPainter& painter) {
    const QPixmap picture(paper::signFile());
    painter.drawPixmap(QRectF(at(sign.at), QSizeF(sign.size.x, sign.size.y)), picture, QRectF(picture.rect()));
}

void draw(const paper::DrawnPath& path, QPainter& painter) {
    QPainterPath traced;
    auto point = path.path.points().begin();
    for (const paper::Path::Step step : path.path.steps()) {
        switch (step) {
        case paper::Path::Step::Move: traced.moveTo(at(*point++)); break;
        case paper::Path::Step::Line: traced.lineTo(at(*point++)); break;
        case paper::Path::Step::Curve:
            traced.cubicTo(at(point[0]), at(point[1]), at(point[2]));
            point += 3;
            break;
        case paper::Path::Step::Close: traced.closeSubpath(); break;
        }
    }
    if (!path.stroke) {
        painter.fillPath(traced, QColor::fromRgb(path.colour));
        return;
    }
    QPen stroke = pen(path.stroke->width, path.colour);
    QList<double> inWidths; // a pen's dashes are in units of its width
    for (const double dash : path.stroke->dashes)
        inWidths << dash / path.stroke->width;
    if (!inWidths.isEmpty())
        stroke.setDashPattern(inWidths);
    painter.strokePath(traced, stroke);
}

/// Draws a page. The sheet's top left corner is at the painter's origin, and `perMm` units are one mm.
void replay(const paper::Page& page, QPainter& painter, double perMm) {
    painter.save();
    painter.scale(perMm, perMm);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform |
                           QPainter::LosslessImageRendering);
    for (const paper::Drawing& drawing : page)
        std::visit([&painter](const auto& one) { draw(one, painter); }, drawing);
    painter.restore();
}

/// Keeps a painter on the printer from the first page to the end.
class PaperOutput : public PageOutput {
  public:
    explicit PaperOutput(const QString& name) : name_(name), printer_(QPrinter::HighResolution) {
        if (!known())
            throw error();
        printer_.setPrinterName(name);
        printer_.setFullPage(true); // positions are from the sheet's corner, not from the printer's margins
        printer_.setPageLayout(upright());
        printer_.setFullPage(true);
        printer_.setDocName(QCoreApplication::applicationName());
    }

    void write(paper::Page page) override {
        const bool ready = painter_.isActive() ? printer_.newPage() : painter_.begin(&printer_);
        if (!ready)
            throw error();
        replay(page, painter_, printer_.logicalDpiX() / paper::mmPerInch);
        if (!arrives())
            throw error();
    }

    bool finish() override {
        const bool ended = !painter_.isActive() || painter_.end();
        if (!ended || !arrives() || !known())
            throw error();
        return true;
    }

  private:
    [[nodiscard]] bool known() const { return !QPrinterInfo::printerInfo(name_).isNull(); }
    /// False after a page failed to print.
    [[nodiscard]] bool arrives() const { return printer_.printerState() != QPrinter::Error; }
    [[nodiscard]] PrinterError error() const {
        return {QStringLiteral("La stampante %1 non risponde: il documento non è stato stampato.").arg(name_)};
    }

    QString name_;
    QPrinter printer_;
    QPainter painter_; ///< must be destroyed before the printer
};

} // namespace

std::unique_ptr<PageOutput> paperOutput(const QString& printer) {
    return std::make_unique<PaperOutput>(printer);
}

} // namespace vanzer::desktop
