// A schedule of some 10,000 rows as a PDF, beside LibreOffice with the same table.

#include <QFile>
#include <QProcess>
#include <QStandardPaths>

#include "big_trip.h"
#include "desktop/desktop_printer.h"
#include "measure.h"

namespace vanzer::bench {

namespace {

constexpr int legs = 9000; // a schedule of some 10,000 rows

/// Always the same file.
class OneFile : public FileDialogs {
  public:
    explicit OneFile(QString path) : path_(std::move(path)) {}
    QString open(const QString& /*filter*/) override { return {}; }
    QString save(const QString& /*filter*/, Ricopertura /*overwriting*/) override { return path_; }

  private:
    QString path_;
};

void writeCsv(const Grid& table, const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return;
    for (int r = 0; r < table.rows(); ++r) {
        QStringList cells;
        for (int c = 0; c <= 12; ++c)
            cells << u'"' + QString(table.cell(r, c)).replace(u'"', QStringLiteral("\"\"")) + u'"';
        file.write(cells.join(u',').toUtf8() + '\n');
    }
}

double prints(Form& form) {
    form.cmdEsegui(0).click();
    form.lstStampanti.setText(QStringLiteral("PDF"));
    const double taken = seconds([&form] { form.cmdSelStampante(0).click(); });
    form.cmdStampa.click();
    return taken;
}

void run(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    process.start(program, arguments);
    process.waitForFinished(-1);
}

} // namespace

void printing(benchmark::State& state) {
    BigTrip trip(legs);
    OneFile file(trip.file("viandoria.pdf"));
    desktop::DesktopPrinter printer(file);
    Form& form = trip.form();
    form.ports.printer = &printer;
    form.cmbSoste.setText(QStringLiteral("1 - Soste itinerario"));
    form.chkTabella.setValue(true);
    form.cmdStampa.click();
    const std::string rows = std::to_string(form.mfgTab.rows() - 1);
    const QString csv = trip.file("tabella.csv");
    writeCsv(form.mfgTab, csv);
    const QString office = QStandardPaths::findExecutable(QStringLiteral("soffice"));
    if (office.isEmpty()) {
        state.SkipWithError("there is no LibreOffice to compare with");
        return;
    }
    const QStringList toPdf{QStringLiteral("--headless"),
                            QStringLiteral("--convert-to"),
                            QStringLiteral("pdf"),
                            QStringLiteral("--outdir"),
                            trip.folder(),
                            csv};
    compare(
        state,
        {.work = "PDF of a schedule of " + rows + " rows", .against = "LibreOffice, the same table", .atLeast = 10},
        [&] {
            QFile::remove(trip.file("viandoria.pdf"));
            const double taken = prints(form);
            if (!QFile::exists(trip.file("viandoria.pdf")))
                state.SkipWithError("nothing was printed");
            return taken;
        },
        timed([&] { run(office, toPdf); }));
}
BENCHMARK(printing)->Iterations(1)->UseManualTime();

} // namespace vanzer::bench
