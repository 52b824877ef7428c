#include <optional>

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

#include "core/text_file.h"
#include "desktop/page_output.h"
#include "desktop/pdf_content.h"

namespace vanzer::desktop {

namespace {

/// As the entries of a PDF write it, in UTC.
QByteArray moment(const QDateTime& time) {
    return time.toUTC().toString(QStringLiteral("'D:'yyyyMMddHHmmss'Z'")).toLatin1();
}

/// The colours and how far each point covers what lies below it.
void writePicture(PdfStructure& file, int object, const QImage& picture) {
    const auto points = [&picture](QImage::Format format, int bytesOfPoint) {
        const QImage image = picture.convertToFormat(format);
        QByteArray data;
        for (int y = 0; y < image.height(); ++y)
            data.append(reinterpret_cast<const char*>(image.constScanLine(y)), qsizetype{bytesOfPoint} * image.width());
        return data;
    };
    const QByteArray shape = "/Type/XObject/Subtype/Image/BitsPerComponent 8/Width " +
                             QByteArray::number(picture.width()) + "/Height " + QByteArray::number(picture.height());
    const int cover = file.reserve();
    file.write(cover, packed(points(QImage::Format_Alpha8, 1), shape + "/ColorSpace/DeviceGray"));
    file.write(object,
               packed(points(QImage::Format_RGB888, 3), shape + "/ColorSpace/DeviceRGB/SMask " + pdfReference(cover)));
}

/// Each page goes into the file when it is written; the fonts come last.
class PdfOutput : public PageOutput {
  public:
    explicit PdfOutput(const QString& path) : file_(path) {
        if (!file_.open(QIODevice::WriteOnly))
            throw error();
        structure_.emplace(file_);
    }
    ~PdfOutput() override { file_.cancelWriting(); }
    PdfOutput(const PdfOutput&) = delete;
    PdfOutput& operator=(const PdfOutput&) = delete;

    void write(const DrawnPage& page) override {
        structure_->addPage(content_.content(page));
        if (!arrives())
            throw error();
    }

    void finish() override {
        QByteArray resources = fonts_.write(*structure_);
        if (content_.pictureUsed()) {
            const int picture = structure_->reserve();
            writePicture(*structure_, picture, signPicture());
            resources += "/XObject<<" + PdfContent::pictureName.toByteArray() + ' ' + pdfReference(picture) + ">>";
        }
        structure_->finish(resources, about());
        if (!arrives())
            throw error();
        if (const QString reason = mettePosto(file_); !reason.isEmpty())
            throw error(reason);
    }

  private:
    [[nodiscard]] bool arrives() const { return file_.error() == QFileDevice::NoError; }

    [[nodiscard]] QByteArray about() const {
        return "/Title" + pdfText(QFileInfo(file_.fileName()).completeBaseName()) + "/Creator" +
               pdfText(QCoreApplication::applicationName()) + "/CreationDate(" + moment(QDateTime::currentDateTime()) +
               ')';
    }

    [[nodiscard]] PrinterError error() const { return error(motivoNonScritto(file_.fileName())); }
    [[nodiscard]] PrinterError error(const QString& reason) const {
        const bool inPlace = !file_.isOpen() && arrives();
        return {QStringLiteral("Il file %1 non si può scrivere: %2")
                    .arg(QDir::toNativeSeparators(file_.fileName()), reason) +
                (inPlace ? QString() : QStringLiteral(" Se ce n'era già uno, è rimasto com'era."))};
    }

    QSaveFile file_;
    std::optional<PdfStructure> structure_;
    PdfFonts fonts_;
    PdfContent content_{fonts_};
};

} // namespace

std::unique_ptr<PageOutput> pdfOutput(const QString& path) {
    return std::make_unique<PdfOutput>(path);
}

} // namespace vanzer::desktop
