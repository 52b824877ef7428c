// SPDX-License-Identifier: MIT
// A schedule of some 10,000 rows as a PDF, compared with LibreOffice and the same table.

#include <QFile>
#include <QProcess>
#include <QStandardPaths>

#include "big_trip.h"
#include "measure.h"
#include "paper.h"

namespace vanzer::bench {

namespace {

constexpr int printedLegs = 9000; // a schedule of some 10,000 rows

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

void run(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    process.start(program, arguments);
    process.waitForFinished(-1);
}

} // namespace

void printing(benchmark::State& state) {
    BigTrip trip(printedLegs);
    Form& form = trip.form();
    form.cmbSoste.setText(QStringLiteral("1 - Soste itinerario"));
    printsSchedule(trip);
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
    measure(
        state,
        {.work = "PDF of a schedule of " + rows + " rows", .against = "LibreOffice, the same table", .atLeast = 1},
        [&trip] { return printsSchedule(trip); }, timed([&] { run(office, toPdf); }));
}
BENCHMARK(printing)->Iterations(1)->UseManualTime();

} // namespace vanzer::bench
