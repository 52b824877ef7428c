#include "desktop/page_output.h"

#include <QCoreApplication>
#include <QPageLayout>
#include <QPrinter>
#include <QPrinterInfo>

#include "desktop/print_font.h"

namespace vanzer::desktop {

namespace {

const QPageLayout& upright() {
    static const QPageLayout layout(QPageSize(QPageSize::A4), QPageLayout::Portrait, {});
    return layout;
}

/// A painter stands on the printer from the first page to the end.
class PaperOutput : public PageOutput {
  public:
    explicit PaperOutput(const QString& name) : name_(name), printer_(QPrinter::HighResolution) {
        if (!known())
            throw error();
        printer_.setPrinterName(name);
        printer_.setFullPage(true); // positions count from the sheet's corner, not from the printer's margins
        printer_.setPageLayout(upright());
        printer_.setFullPage(true);
        printer_.setDocName(QCoreApplication::applicationName());
    }

    void write(const DrawnPage& page) override {
        const bool ready = painter_.isActive() ? printer_.newPage() : painter_.begin(&printer_);
        if (!ready)
            throw error();
        replay(page, painter_, printer_.logicalDpiX() / mmPerInch);
        if (!arrives())
            throw error();
    }

    void finish() override {
        const bool ended = !painter_.isActive() || painter_.end();
        if (!ended || !arrives() || !known())
            throw error();
    }

  private:
    [[nodiscard]] bool known() const { return !QPrinterInfo::printerInfo(name_).isNull(); }
    /// False once a page that was written has not arrived.
    [[nodiscard]] bool arrives() const { return printer_.printerState() != QPrinter::Error; }
    [[nodiscard]] PrinterError error() const {
        return {QStringLiteral("La stampante %1 non risponde: il documento non è stato stampato.").arg(name_)};
    }

    QString name_;
    QPrinter printer_;
    QPainter painter_; ///< ends before its device goes
};

} // namespace

std::unique_ptr<PageOutput> paperOutput(const QString& printer) {
    return std::make_unique<PaperOutput>(printer);
}

} // namespace vanzer::desktop
