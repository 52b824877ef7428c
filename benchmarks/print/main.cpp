// What a long schedule and a big guide cost to print as a PDF: pages a second, memory, and the longest time in which
// Esc would have to wait; beside it the same table turned from CSV into a PDF by LibreOffice, where that is installed.
// Needs pdfinfo; draws on no screen.

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <sys/resource.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

#include "../big_trip.h"
#include "../timing.h"
#include "core/text.h"
#include "desktop/desktop_printer.h"

namespace {

using namespace vanzer;

constexpr int legs = 9000; // a schedule of some 10,000 rows
constexpr int guideEntries = 20000;

/// Always the same file.
class OneFile : public FileDialogs {
  public:
    explicit OneFile(QString path) : path_(std::move(path)) {}
    QString open(const QString& /*filter*/) override { return {}; }
    QString save(const QString& /*filter*/, Ricopertura /*overwriting*/) override { return path_; }

  private:
    QString path_;
};

/// The most memory that the process has held, MB.
double peak() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return static_cast<double>(usage.ru_maxrss) / 1024;
}

int pagesOf(const QString& pdf) {
    QProcess info;
    info.start(QStringLiteral("pdfinfo"), {pdf});
    info.waitForFinished();
    for (const QByteArray& line : info.readAllStandardOutput().split('\n')) {
        if (line.startsWith("Pages:"))
            return line.mid(6).trimmed().toInt();
    }
    return 0;
}

double tell(const char* what, const QString& pdf, double seconds, double before) {
    const int pages = pagesOf(pdf);
    std::printf("%-28s %5d pages in %6.2f s: %7.1f pages a second; peak memory %.0f MB, %.0f MB of them before\n", what,
                pages, seconds, pages / seconds, peak(), before);
    return pages / seconds;
}

void writeCsv(const Form& form, const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return;
    for (int r = 0; r < form.mfgTab.rows(); ++r) {
        QStringList cells;
        for (int c = 0; c <= 12; ++c)
            cells << u'"' + QString(form.mfgTab.cell(r, c)).replace(u'"', QStringLiteral("\"\"")) + u'"';
        file.write(cells.join(u',').toUtf8() + '\n');
    }
}

void print(Form& form, Button& choosePrinter) {
    choosePrinter.click();
    form.lstStampanti.setText(QStringLiteral("PDF"));
    form.cmdSelStampante(0).click();
}

std::vector<QString> places() {
    std::vector<QString> names;
    for (int i = 1; i <= legs; ++i)
        names.push_back(QStringLiteral("Luogo numero ") + Zero(i, 5));
    return names;
}

std::vector<bench::GuideEntry> entries(const std::vector<QString>& names) {
    std::vector<bench::GuideEntry> guide;
    for (int i = 0; i < guideEntries; ++i)
        guide.push_back({names[static_cast<std::size_t>(i) % names.size()], QStringLiteral("01"), QStringLiteral("A"),
                         QStringLiteral("Cosa da vedere %1, con qualche parola").arg(i), QStringLiteral("00:15")});
    return guide;
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const QTemporaryDir scratch;
    const QString pdf = scratch.filePath(QStringLiteral("viandoria.pdf"));
    const std::vector<QString> names = places();
    bench::BigTrip trip(names, entries(names));
    Form& form = trip.form();
    OneFile file(pdf);
    desktop::DesktopPrinter printer(file);
    form.ports.printer = &printer;

    form.cmbSoste.setText(QStringLiteral("1 - Soste itinerario"));
    form.chkTabella.setValue(true);
    form.cmdStampa.click();
    double before = peak();
    const double ours = tell("schedule", pdf, bench::seconds([&] { print(form, form.cmdEsegui(0)); }), before);
    const QString csv = scratch.filePath(QStringLiteral("viandoria.csv"));
    writeCsv(form, csv);
    std::printf("%-28s %5d rows\n", "", form.mfgTab.rows() - 1);

    form.cmdCalcola.click();
    form.cmdGuidaCitta.click();
    form.optGuidaListaStampa(0).choose();
    form.optGuidaDettaglioStampa(1).choose();
    before = peak();
    tell("guide of 20,000 entries", pdf, bench::seconds([&] { print(form, form.cmdStampaGuida(0)); }), before);

    const QString office = QStandardPaths::findExecutable(QStringLiteral("soffice"));
    if (office.isEmpty()) {
        std::printf("no LibreOffice here to compare with\n");
        return 0;
    }
    QFile::remove(pdf);
    const double theirs = bench::seconds([&] {
        QProcess::execute(office, {QStringLiteral("--headless"), QStringLiteral("--convert-to"), QStringLiteral("pdf"),
                                   QStringLiteral("--outdir"), scratch.path(), csv});
    });
    std::printf("LibreOffice, the same table: %5d pages in %6.2f s: ratio %.1f\n", pagesOf(pdf), theirs,
                ours / (pagesOf(pdf) / theirs));
    return 0;
}
