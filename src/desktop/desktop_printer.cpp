#include "desktop/desktop_printer.h"

#include <utility>

#include <QDir>
#include <QPrinterInfo>

#include "desktop/print_preview.h"

namespace vanzer::desktop {

namespace {

const QString pdfName = QStringLiteral("PDF");
const QString pdfFilter = QStringLiteral("PDF (*.pdf)|*.pdf");
const QString pdfEnding = QStringLiteral(".pdf");

constexpr double penStep = 0.1; // mm

bool same(const QString& a, const QString& b) {
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

bool isPdf(const QString& printer) {
    return same(printer, pdfName);
}

} // namespace

DesktopPrinter::DesktopPrinter(FileDialogs& files) : files_(files) {
    DesktopPrinter::setFontName(QStringLiteral("Times new roman"));
}

DesktopPrinter::~DesktopPrinter() = default;

/// A printer of the platform that is called "PDF" does no more than ours.
QStringList DesktopPrinter::names() const {
    QStringList names = QPrinterInfo::availablePrinterNames();
    names.removeIf(isPdf);
    return names << pdfName;
}

QString DesktopPrinter::current() const {
    if (!chosen_.isEmpty())
        return chosen_;
    const QString platforms = QPrinterInfo::defaultPrinterName();
    return platforms.isEmpty() ? pdfName : platforms;
}

void DesktopPrinter::choose(const QString& name) {
    for (const QString& printer : names()) {
        if (!same(printer, name))
            continue;
        if (printer != current())
            endDoc();
        chosen_ = printer;
        return;
    }
}

void DesktopPrinter::setFontName(const QString& name) {
    if (name == font_.face.name)
        return;
    auto known = typefaces_.find(name);
    if (known == typefaces_.end())
        known = typefaces_.emplace(name, typefaceFor(name)).first;
    font_.face = known->second;
    face_ = nullptr;
}

void DesktopPrinter::setBold(bool on) {
    if (std::exchange(font_.bold, on) != on)
        face_ = nullptr;
}

void DesktopPrinter::setItalic(bool on) {
    if (std::exchange(font_.italic, on) != on)
        face_ = nullptr;
}

/// Made when a text is measured or drawn with it. Faces stay: what was drawn knows them.
PrintFace& DesktopPrinter::face() const {
    if (face_ == nullptr) {
        std::unique_ptr<PrintFace>& face = faces_[{font_.face.family, font_.bold, font_.italic}];
        if (face == nullptr)
            face = std::make_unique<PrintFace>(largeFont(font_));
        face_ = face.get();
    }
    return *face_;
}

double DesktopPrinter::textWidth(const QString& text) const {
    return face().width(text) * mmPerPixel(font_.points);
}

double DesktopPrinter::textHeight(const QString& /*text*/) const {
    return face().height() * mmPerPixel(font_.points);
}

template<typename Step> void DesktopPrinter::orDrop(Step step) {
    try {
        step();
    } catch (const PrinterError&) {
        drop();
        throw;
    }
}

void DesktopPrinter::begin() {
    target_ = current();
    previewed_ = previewWanted();
    if (isPdf(target_)) {
        QString path = files_.save(pdfFilter, Ricopertura::ChiedeIlDialogo);
        unwanted_ = path.isEmpty();
        if (unwanted_)
            return;
        if (!path.endsWith(pdfEnding, Qt::CaseInsensitive))
            path += pdfEnding;
        if (const QString reserved = nomeRiservato ? nomeRiservato(path) : QString(); !reserved.isEmpty())
            throw PrinterError{QStringLiteral("Il file %1 %2").arg(QDir::toNativeSeparators(path), reserved)};
        output_ = pdfOutput(path);
        file_ = path;
    } else if (!previewed_) {
        output_ = paperOutput(target_);
    }
}

template<typename Drawn> void DesktopPrinter::draw(Drawn&& drawing) {
    if (page_ == 0) {
        orDrop([this] { begin(); });
        page_ = 1;
    }
    if (!unwanted_)
        drawn_.emplace_back(std::forward<Drawn>(drawing));
}

void DesktopPrinter::text(Punto at, const QString& text) {
    draw(DrawnText{at, text, &face(), mmPerPixel(font_.points)});
}

void DesktopPrinter::line(Punto from, Punto to, int width) {
    draw(DrawnLine{from, to, width * penStep});
}

void DesktopPrinter::box(Punto from, Punto to, int width, std::optional<quint32> fill) {
    draw(DrawnBox{from, to, width * penStep, fill});
}

void DesktopPrinter::picture(Immagine picture, Punto at, Punto size) {
    draw(DrawnPicture{picture, at, size});
}

void DesktopPrinter::pageDone() {
    if (previewed_)
        waiting_.push_back(std::exchange(drawn_, {}));
    else
        output_->write(drawn_);
    drawn_.clear();
}

void DesktopPrinter::newPage() {
    orDrop([this] {
        if (page_ == 0) {
            begin();
            page_ = 1;
        }
        if (!unwanted_)
            pageDone();
        ++page_;
    });
}

bool DesktopPrinter::approved() {
    return PrintPreview(waiting_, target_, opening()).exec() == QDialog::Accepted;
}

bool DesktopPrinter::endDoc() {
    madeFiles_.clear();
    if (page_ == 0)
        return true;
    bool sent = false;
    orDrop([this, &sent] {
        if (unwanted_)
            return;
        if (!drawn_.empty() || page_ == 1) // no blank sheet at the end
            pageDone();
        if (previewed_ && !approved())
            return;
        if (output_ == nullptr)
            output_ = paperOutput(target_);
        for (const DrawnPage& page : waiting_)
            output_->write(page);
        output_->finish();
        if (!file_.isEmpty())
            madeFiles_ << file_;
        sent = true;
    });
    drop();
    return sent;
}

void DesktopPrinter::drop() {
    page_ = 0;
    unwanted_ = false;
    file_.clear();
    output_.reset();
    drawn_.clear();
    waiting_.clear();
}

} // namespace vanzer::desktop
