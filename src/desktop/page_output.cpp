#include "desktop/page_output.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QPageLayout>
#include <QPdfWriter>
#include <QPrinter>
#include <QPrinterInfo>
#include <QSaveFile>

#include "core/text_file.h"
#include "desktop/print_font.h"

namespace vanzer::desktop {

namespace {

constexpr int pdfResolution = 1200; // dots per inch

const QPageLayout& upright() {
    static const QPageLayout layout(QPageSize(QPageSize::A4), QPageLayout::Portrait, {});
    return layout;
}

/// The pages of one document on a device; a painter stands on it from the first page to the end.
class DeviceOutput : public PageOutput {
  public:
    void write(const DrawnPage& page) override {
        const bool ready = painter_.isActive() ? device().newPage() : painter_.begin(&device());
        if (!ready)
            throw error();
        replay(page, painter_, device().logicalDpiX() / mmPerInch);
        if (!arrives())
            throw error();
    }

    void finish() override {
        if (!arrives() || !end() || !send())
            throw error();
    }

  protected:
    [[nodiscard]] virtual QPagedPaintDevice& device() = 0;
    /// False once a page that was written has not arrived.
    [[nodiscard]] virtual bool arrives() = 0;
    [[nodiscard]] virtual bool send() = 0;
    [[nodiscard]] virtual PrinterError error() const = 0;
    /// Before the device goes.
    bool end() { return !painter_.isActive() || painter_.end(); }

  private:
    QPainter painter_;
};

class PdfOutput : public DeviceOutput {
  public:
    explicit PdfOutput(const QString& path) : file_(path), writer_(&file_) {
        if (!file_.open(QIODevice::WriteOnly))
            throw PdfOutput::error();
        writer_.setPageLayout(upright());
        writer_.setResolution(pdfResolution);
        writer_.setTitle(QFileInfo(path).completeBaseName());
        writer_.setCreator(QCoreApplication::applicationName());
    }
    ~PdfOutput() override {
        end();
        file_.cancelWriting();
    }
    PdfOutput(const PdfOutput&) = delete;
    PdfOutput& operator=(const PdfOutput&) = delete;

  protected:
    QPagedPaintDevice& device() override { return writer_; }
    bool arrives() override { return file_.error() == QFileDevice::NoError; }
    bool send() override { return file_.flush() && arrives() && file_.commit(); }
    PrinterError error() const override {
        const QString file = QDir::toNativeSeparators(file_.fileName());
        return {QStringLiteral("Il file %1 non si può scrivere: %2 Se ce n'era già uno, è rimasto com'era.")
                    .arg(file, motivoNonScritto(file_.fileName()))};
    }

  private:
    QSaveFile file_;
    QPdfWriter writer_;
};

class PaperOutput : public DeviceOutput {
  public:
    explicit PaperOutput(const QString& name) : name_(name), printer_(QPrinter::HighResolution) {
        if (QPrinterInfo::printerInfo(name).isNull())
            throw PaperOutput::error();
        printer_.setPrinterName(name);
        printer_.setFullPage(true); // positions count from the sheet's corner, not from the printer's margins
        printer_.setPageLayout(upright());
        printer_.setFullPage(true);
        printer_.setDocName(QCoreApplication::applicationName());
    }
    ~PaperOutput() override { end(); }
    PaperOutput(const PaperOutput&) = delete;
    PaperOutput& operator=(const PaperOutput&) = delete;

  protected:
    QPagedPaintDevice& device() override { return printer_; }
    bool arrives() override { return printer_.printerState() != QPrinter::Error; }
    bool send() override { return arrives() && !QPrinterInfo::printerInfo(name_).isNull(); }
    PrinterError error() const override {
        return {QStringLiteral("La stampante %1 non risponde: il documento non è stato stampato.").arg(name_)};
    }

  private:
    QString name_;
    QPrinter printer_;
};

} // namespace

std::unique_ptr<PageOutput> pdfOutput(const QString& path) {
    return std::make_unique<PdfOutput>(path);
}

std::unique_ptr<PageOutput> paperOutput(const QString& printer) {
    return std::make_unique<PaperOutput>(printer);
}

} // namespace vanzer::desktop
