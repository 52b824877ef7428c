// A printer that prints into PDFs, and what other programs find in them.
#pragma once

#include <map>

#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QRegularExpression>

#include "desktop/desktop_printer.h"
#include "desktop_fixture.h"
#include "store/outside_files.h"

namespace vanzer::desktop {

class QueuedFiles : public FileDialogs {
  public:
    QString open(const QString& /*filter*/) override { return {}; }
    QString save(const QString& filter, Ricopertura /*overwriting*/) override {
        filters << filter;
        return answers.isEmpty() ? QString() : answers.takeFirst();
    }
    QStringList answers;
    QStringList filters;
};

/// A word as it stands in a PDF.
struct Word {
    int page;
    QRectF box; ///< mm
};

/// A printer whose files go into the test's folder, and what other programs read in them.
class PrintingTest : public DesktopTest {
  protected:
    void SetUp() override {
        DesktopTest::SetUp();
        printer.nomeRiservato = [this](const QString& path) {
            return store::motivoRiservato(path, inFolder("Vanzer.mdb"));
        };
        printer.choose(QStringLiteral("pdf"));
        ASSERT_EQ(printer.current(), QStringLiteral("PDF"));
    }

    [[nodiscard]] QString inFolder(const char* name) const { return directory.filePath(QString::fromUtf8(name)); }

    static QString output(const char* program, const QStringList& arguments) {
        QProcess process;
        process.start(QLatin1StringView(program), arguments);
        EXPECT_TRUE(process.waitForFinished() && process.exitCode() == 0) << program;
        return QString::fromUtf8(process.readAllStandardOutput());
    }

    static QString textOfPdf(const QString& pdf) {
        return output("pdftotext", {QStringLiteral("-layout"), pdf, QStringLiteral("-")});
    }

    static int pageCount(const QString& pdf) {
        static const QRegularExpression pages(QStringLiteral("Pages: +(\\d+)"));
        return pages.match(output("pdfinfo", {pdf})).captured(1).toInt();
    }

    static std::map<QString, Word> wordsOf(const QString& pdf) {
        static const QRegularExpression word(
            QStringLiteral("<page|<word xMin=\"(.*)\" yMin=\"(.*)\" xMax=\"(.*)\" yMax=\"(.*)\">(.*)</word>"));
        std::map<QString, Word> words;
        int page = 0;
        for (auto match = word.globalMatch(output("pdftotext", {QStringLiteral("-bbox"), pdf, QStringLiteral("-")}));
             match.hasNext();) {
            const QRegularExpressionMatch one = match.next();
            if (!one.hasCaptured(5)) {
                ++page;
                continue;
            }
            const auto mm = [&one](int i) { return one.captured(i).toDouble() * paper::mmPerPoint; };
            words[one.captured(5)] = {page, QRectF(QPointF(mm(1), mm(2)), QPointF(mm(3), mm(4)))};
        }
        return words;
    }

    /// The first page as a picture.
    [[nodiscard]] QImage rendered(const char* name, int dotsPerInch) const {
        const QString path = inFolder(name);
        output("pdftoppm", {QStringLiteral("-png"), QStringLiteral("-singlefile"), QStringLiteral("-r"),
                            QString::number(dotsPerInch), path + QStringLiteral(".pdf"), path});
        return QImage(path + QStringLiteral(".png"));
    }

    void drawPages(int pages, const char* text = "Viandoria") {
        for (int i = 1; i <= pages; ++i) {
            printer.text({20, 20}, QString::fromUtf8(text) + QString::number(i));
            if (i < pages)
                printer.newPage();
        }
    }

    [[nodiscard]] QByteArray contents(const QString& path) const {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QueuedFiles files;
    SystemClock clock;
    DesktopPrinter printer{files, clock};
};

} // namespace vanzer::desktop
