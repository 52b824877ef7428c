// SPDX-License-Identifier: MIT
#include "reports/schedule_print_screen.h"

#include <utility>

#include <QCoreApplication>
#include <QDir>

#include "core/text_file.h"
#include "reports/print_run_screen.h"
#include "reports/schedule_report.h"
#include "reports/text_files.h"
#include "reports/time_line_report.h"
#include "schedule/rows.h"
#include "schedule/time_line_screen.h"
#include "store/outside_files.h"
#include "window/button_codes.h"
#include "window/modes.h"
#include "window/progress.h"

namespace vanzer {

namespace {

const QString placesFile = QStringLiteral("ListaLocalita.txt");
const QString commandFile = QStringLiteral("CommandLine.txt");
const QString formsProgram = QStringLiteral("Scribolo");
const QString printing = QStringLiteral("Stampa della viandoria");

constexpr int colFineGiornata = 14;

std::array<QString, 3> texts(const Serie<ListControl>& lists) {
    return {lists(0).text(), lists(1).text(), lists(2).text()};
}
std::array<QString, 3> texts(const Serie<TextBox>& boxes) {
    return {boxes(0).text(), boxes(1).text(), boxes(2).text()};
}

DatiViandoria shownTrip(const Form& form) {
    DatiViandoria trip{
        .localita = form.txtLocalita.text(),
        .nazione = form.txtNazione.text(),
        .giornoInizio = form.txtInizioGSett.text(),
        .inizio = texts(form.cmbInizio),
        .oraInizio = {form.cmbInizio(3).text(), form.cmbInizio(4).text()},
        .giornoFine = form.txtFine(5).text(),
        .fine = texts(form.txtFine),
        .oraFine = {form.txtFine(3).text(), form.txtFine(4).text()},
        .giorni = form.txtFine(6).text(),
        .kmTotali = form.txtKmTot(4).text(),
        .strade = {},
        .traghetti = form.txtTragh.text(),
        .orari = {},
        .range = form.cmbRange.text(),
        .riposoMinuti = form.cmbRipM.text(),
        .riposoOre = form.cmbRipH.text(),
        .riposoGiorni = form.cmbRipG.text(),
        .riposoDopoGiorni = form.cmbRipGG.text(),
    };
    for (int i = 0; i < 4; ++i)
        trip.strade[static_cast<std::size_t>(i)] = {form.lblTipoStrada(i).caption(), form.cmbMediaKm(i).text(),
                                                    form.txtKmTot(i).text(), form.txtTempo(i).text()};
    for (int i = 0; i < 8; ++i)
        trip.orari[static_cast<std::size_t>(i)] = {form.cmbOra(i).text(), form.cmbMin(i).text()};
    return trip;
}

class StampaItinerario {
  public:
    explicit StampaItinerario(Form& form)
        : form_(form), run_(form), trip_(shownTrip(form)), cell_([&form](int row, int column) -> const QString& {
              static const QString beyond;
              return row < form.mfgTab.rows() ? form.mfgTab.cell(row, column) : beyond;
          }),
          report_(run_.foglio(), trip_, run_.piede(), cell_) {}

    void stampa() {
        form_.frmframe(riquadroOpzioniStampa).setVisible(false);
        table_ = intestazioneTabella(trip_.localita);
        if (pages() || forms() || cover() || line())
            run_.step([this] { run_.foglio().setUp(); });
        form_.lblElaborazione.setCaption(printing);
        form_.stato.PercentualeTotale = form_.mfgTab.rows() - 1;
        covers();
        rows();
        writeFile(fileTabella.toString(), table_);
        writeFile(placesFile, listaLocalita(form_.mfgTab.rows(), cell_));
        AzzeraPercentuale(form_);
        if (pages())
            run_.step([this] { report_.finePagina(); });
        if (line() && !run_.finita())
            run_.step([this] { printTimeLine(run_.foglio(), trip_.localita, lineaMostrata(form_), run_.piede()); });
        if (!pages() && cover())
            run_.fineDocumento();
        if (forms())
            logbook();
        tell();
        AbilitaPulsantiMeta(form_, pulsanti::tutti);
    }

  private:
    [[nodiscard]] bool pages() const { return form_.chkTabella.value(); }
    [[nodiscard]] bool forms() const { return form_.chkModuli.value(); }
    [[nodiscard]] bool cover() const { return form_.chkFrontespizio.value(); }
    [[nodiscard]] bool line() const { return form_.chkLinea.value(); }

    void covers() {
        VociFrontespizio titles{};
        for (std::size_t i = 0; i < titles.size(); ++i)
            titles[i] = form_.chkVociFrontespizio(static_cast<int>(i)).value();
        if (cover())
            run_.step([&] { report_.frontespizioGenerale(titles); });
        if (pages())
            run_.step([this] { report_.frontespizioViandoria(); });
    }

    /// Prints all rows. The table file gets them all, even if the pages end early.
    void rows() {
        const int last = form_.mfgTab.rows() - 1;
        for (int r = 1; r <= last; ++r) {
            if (!run_.finita()) {
                form_.stato.PercentualeCorrente = r;
                AggiornaPercentuale(form_);
                if (pages())
                    run_.step([this, r] { printRow(r); });
                form_.yield();
            }
            table_ << rigaTabella(r, cell_);
        }
    }

    void printRow(int r) {
        report_.preparePage(r);
        form_.lblElaborazione.setCaption(pageShown());
        form_.mfgTab.setCell(r, colFineGiornata, {});
        report_.StampaRiga(r);
    }

    const QString& pageShown() {
        if (std::exchange(page_, run_.foglio().pagina()) != run_.foglio().pagina())
            pageText_ = printing + QStringLiteral(" (pag. %1)").arg(page_);
        return pageText_;
    }

    void writeFile(const QString& name, const QStringList& lines) {
        const QString reason = store::writeForOthers(form_.archivio.PercorsoProgramma + name, contenutoTesto(lines),
                                                     form_.archivio.PercorsoDatabase);
        if (!reason.isEmpty())
            run_.isMissing(QStringLiteral("%1: %2").arg(percorsoMostrato(form_, name), reason));
    }

    void logbook() {
        form_.frmframe(riquadroAttesaStampa).setVisible(true);
        const QString trip = viaggioPerModuli(trip_.localita, trip_.inizio, trip_.fine);
        const QString directory = QDir(form_.archivio.PercorsoProgramma).absolutePath();
        writeFile(commandFile, {comandoModuli(QDir::toNativeSeparators(directory), trip)});
        const QString program = QDir(QCoreApplication::applicationDirPath()).filePath(formsProgram);
        if (!form_.ports.programs.start(program, {QStringLiteral("--dir"), directory, QStringLiteral("--"), trip}))
            run_.fallita(QStringLiteral("i moduli per il diario: non si può avviare ") +
                         QDir::toNativeSeparators(program));
        form_.frmframe(riquadroAttesaStampa).setVisible(false);
    }

    void tell() {
        QString done;
        if (pages())
            done = QStringLiteral("Viandoria ");
        if (pages() && forms())
            done += QStringLiteral(" e \n");
        if (forms())
            done += QStringLiteral("Moduli per Diario di Bordo");
        if (line())
            done += (done.isEmpty() ? QString() : QStringLiteral(" e \n")) + QStringLiteral("Linea del tempo");
        if (!done.isEmpty())
            run_.fineDocumento();
        if (run_.rinunciata())
            form_.messaggio(QStringLiteral("Stampa interrotta!"));
        else if (!done.isEmpty())
            form_.messaggioFile(QStringLiteral("Stampa ") + done + QStringLiteral(" completata..."), run_.fileFatti());
        form_.messaggioFile(QStringLiteral("Stampa dei file: \n\n") + percorsoMostrato(form_, fileTabella) +
                                QStringLiteral("\n") + percorsoMostrato(form_, placesFile) +
                                QStringLiteral("\n\ncompletata!"),
                            (done.isEmpty() ? run_.fileFatti() : QStringList()) +
                                QStringList{form_.archivio.PercorsoProgramma + fileTabella.toString(),
                                            form_.archivio.PercorsoProgramma + placesFile});
        run_.tellLost();
    }

    Form& form_;
    CorsaDiStampa run_;
    DatiViandoria trip_;
    CellaViandoria cell_;
    ReportViandoria report_;
    QStringList table_;
    int page_ = -1; ///< the page number in pageText_
    QString pageText_;
};

} // namespace

QString percorsoMostrato(const Form& form, QStringView file) {
    return QDir::toNativeSeparators(form.archivio.PercorsoProgramma + file.toString());
}

void StampaDellItinerario(Form& form) {
    StampaItinerario(form).stampa();
}

} // namespace vanzer
