// SPDX-License-Identifier: MIT
#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

#include "core/text_file.h"
#include "paper/pdf.h"
#include "reports/page_printer.h"

namespace vanzer {

namespace {

class PdfOutput : public PageOutput {
  public:
    PdfOutput(const QString& path, paper::Fonts& fonts, const QDateTime& now) : file_(path) {
        if (!file_.open(QIODevice::WriteOnly))
            throw error(motivoNonScritto(path));
        pdf_ = std::make_unique<paper::Pdf>(file_, fonts,
                                            paper::About{.title = QFileInfo(path).completeBaseName(),
                                                         .creator = QStringLiteral("Vanzer"),
                                                         .made = now});
    }

    void write(paper::Page page) override {
        if (!pdf_->add(page))
            throw error(motivoNonScritto(file_.fileName()));
    }

    bool finish() override {
        if (!pdf_->finish())
            throw error(motivoNonScritto(file_.fileName()));
        if (const QString reason = commitFile(file_); !reason.isEmpty())
            throw error(reason);
        return true;
    }

    [[nodiscard]] QStringList files() const override { return {file_.fileName()}; }

  private:
    [[nodiscard]] PrinterError error(const QString& reason) const {
        const bool inPlace = !file_.isOpen() && file_.error() == QFileDevice::NoError;
        return {QStringLiteral("Il file %1 non si può scrivere: %2")
                    .arg(QDir::toNativeSeparators(file_.fileName()), reason) +
                (inPlace ? QString() : QStringLiteral(" Se ce n'era già uno, è rimasto com'era."))};
    }

    QSaveFile file_;
    std::unique_ptr<paper::Pdf> pdf_; ///< declared last, so that it is destroyed before its file
};

} // namespace

std::unique_ptr<PageOutput> pdfOutput(const QString& path, paper::Fonts& fonts, const QDateTime& now) {
    return std::make_unique<PdfOutput>(path, fonts, now);
}

} // namespace vanzer
