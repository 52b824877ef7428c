// SPDX-License-Identifier: MIT
#include "trip/leg_table_screen.h"

#include <array>
#include <utility>

#include "core/leg_columns.h"
#include "core/text.h"
#include "core/time_values.h"
#include "store/guide_marks.h"
#include "trip/destination_screen.h"
#include "trip/kept_legs_screen.h"
#include "trip/leg_table.h"
#include "trip/parameter_fields_screen.h"
#include "trip/totals_screen.h"
#include "trip/trip_numbers.h"
#include "window/progress.h"

namespace vanzer {

namespace {

/// One row of the table for each record. Marks still stand in the place's name.
TestiTabella readLegs(Form& form) {
    store::Archive& archive = form.archivio;
    archive.StringaSQL = QStringLiteral("SELECT * FROM Itinerari WHERE CodiceMeta = '") +
                         store::quotato(form.stato.CodiceMeta) + QStringLiteral("' ORDER BY Sequenza");
    archive.RecordSetImposta(0, store::Itinerari);
    store::Recordset& records = archive.Rs(store::Itinerari);
    const int place = records.campo("Localita");
    const int km = records.campo("Chilometri");
    const int road = records.campo("NomeStrada");
    const int type = records.campo("TipoStrada");
    const int stop = records.campo("TempoSosta");
    const int end = records.campo("FineGiorno");
    TestiTabella rows;
    rows.setRows(static_cast<int>(records.RecordCount()));
    for (int row = 0; !records.EOF_(); records.MoveNext(), ++row) {
        rows.at(row, tappaNumero) = QString::number(row + 1);
        rows.at(row, tappaLuogo) = records.testo(place);
        rows.at(row, tappaStrada) = Trim(records.testo(road));
        rows.at(row, tappaKm) = migliaia(Val(records.testo(km)));
        rows.at(row, tappaTipo) = records.testo(type);
        const QString endOfDay = records.testo(end);
        rows.at(row, tappaSosta) = sostaDelRecord(endOfDay, records.testo(stop));
        rows.at(row, tappaFineGiorno) = endOfDay;
    }
    return rows;
}

/// The guide's stops of a place, as the text of their cell. `visitingDay` is in hundredths of an hour.
QString guideStops(store::SegniGuida& guide, const QString& place, float visitingDay) {
    double sum = 0;
    for (const VoceGuida* const entry : guide.usePlace(place))
        sum += static_cast<double>(tempoVoce(entry->tempoSosta, visitingDay, LetturaTempo::Itinerario));
    return ghmCentesimi2Stringa(static_cast<float>(sum), giornoIntero);
}

/// Writes the guide's stops into the rows of the stretch. Each entry counts once.
void addGuideStops(Form& form, TestiTabella& rows) {
    store::SegniGuida guide(form.archivio);
    TrattoDellaGuida stretch;
    form.stato.RigaCaricata = 0;
    for (int row = 0; row < rows.rows(); ++row) {
        ++form.stato.RigaCaricata;
        const TrattoDellaGuida::Passo step = stretch.prossimo(rows.text(row, tappaLuogo));
        if (step.leggere)
            rows.at(row, tappaGuida) = guideStops(guide, step.luogo, form.viaggio->OreVisitaGiorno);
        form.yield();
    }
    guide.write();
}

void markEndsOfDay(Grid& grid, int rows) {
    for (int r = 1; r <= rows; ++r) {
        if (grid.cell(r, tappaFineGiorno) == u"1") {
            grid.setMarked(r, tappaSosta, true);
            grid.setCurrent(1, 1);
        }
    }
}

qint64 recordsNeeded(const Form& form) {
    qint64 needed = 0;
    for (int r = 1; r < form.mfgTab.rows(); ++r) {
        if (!Trim(form.mfgTab.cell(r, tappaLuogo)).isEmpty())
            needed += numeroRecord(chilometri(form.mfgTab.cell(r, tappaKm)));
    }
    return needed;
}

/// All guide entries for a place as it is stored. The search pattern may also find entries of other places.
QString guideSnapshot(store::SegniGuida& guide, const QString& place) {
    double sum = 0;
    for (const VoceGuida* const entry : guide.usePattern(LikeTesto(place)))
        sum += static_cast<double>(ghmStringa2Centesimi(entry->tempoSosta, giornoIntero));
    return ghmCentesimi2Stringa(static_cast<float>(sum), giornoIntero);
}

class ScrittoreTappe {
  public:
    ScrittoreTappe(Form& form, store::Recordset& records) : form_(form), records_(records) {
        static constexpr std::array<const char16_t*, 9> names{u"CodiceMeta", u"Sequenza",        u"Localita",
                                                              u"Chilometri", u"NomeStrada",      u"TipoStrada",
                                                              u"TempoSosta", u"SostaGuidaCitta", u"FineGiorno"};
        for (std::size_t i = 0; i < names.size(); ++i)
            fields_[i] = records_.campo(QString::fromUtf16(names[i]));
    }

    void write(const RecordTappa& leg) {
        ++form_.stato.NumeroTappe;
        records_.AddNew();
        const std::array<QString, 9> values{form_.stato.CodiceMeta,
                                            Zero(form_.stato.NumeroTappe, 4),
                                            leg.localita,
                                            leg.chilometri,
                                            leg.nomeStrada,
                                            leg.tipoStrada,
                                            leg.tempoSosta,
                                            leg.sostaGuidaCitta,
                                            leg.fineGiorno ? QStringLiteral("1") : QStringLiteral("0")};
        for (std::size_t i = 0; i < values.size(); ++i)
            records_.write(fields_[i], values[i]);
        records_.Update();
    }

  private:
    Form& form_;
    store::Recordset& records_;
    std::array<int, 9> fields_{};
};

void storeRows(Form& form, store::Recordset& records, store::SegniGuida& guide) {
    StatoFinestra& s = form.stato;
    const Grid& grid = form.mfgTab;
    const int placeSize = records.size(records.campo(QStringLiteral("Localita")));
    ScrittoreTappe writer(form, records);
    for (int r = 1; r < grid.rows(); ++r) {
        s.PercentualeCorrente = r;
        AggiornaPercentuale(form);
        const QString place = grid.cell(r, tappaLuogo);
        if (Trim(place).isEmpty())
            continue;
        const QString stops = guideSnapshot(guide, luogoMemorizzato(place, placeSize));
        const RigaTappa row{place, grid.cell(r, tappaStrada), chilometri(grid.cell(r, tappaKm)),
                            grid.cell(r, tappaTipo), grid.cell(r, tappaSosta)};
        for (const RecordTappa& leg : recordDellaRiga(row, stops, placeSize))
            writer.write(leg);
    }
}

/// Replaces the stored legs by all rows of the table, then writes the guide's marks.
void storeTable(Form& form) {
    StatoFinestra& s = form.stato;
    CancellaTabella(form, store::Itinerari, QStringLiteral("CodiceMeta"), s.CodiceMeta);
    SettaAZeroFlaGVisto(form);
    s.NumeroTappe = 0;
    s.PercentualeTotale = form.mfgTab.rows() - 1;
    form.lblElaborazione.setCaption(QStringLiteral("Memorizza tappe itinerario"));
    form.archivio.StringaSQL = QStringLiteral("SELECT * FROM Itinerari WHERE CodiceMeta = '") +
                               store::quotato(s.CodiceMeta) + QStringLiteral("'");
    form.archivio.RecordSetImposta(0, store::Itinerari);
    store::SegniGuida guide(form.archivio);
    storeRows(form, form.archivio.Rs(store::Itinerari), guide);
    form.archivio.storeSoFar();
    guide.write();
}

} // namespace

void CancellaMatrice(Form& form) {
    Grid& grid = form.mfgTab;
    const int rows = Maggiore(grid.rows(), form.stato.RigheMinime);
    const SenzaRidisegno quiet(grid);
    grid.setRows(1);
    grid.setRows(rows);
    for (const auto& totals : {&form.txtKmTot, &form.txtTempo}) {
        for (TextBox* const total : *totals)
            total->setText({});
    }
}

void CaricaTappeItinerario(Form& form) {
    form.tappeConservate.reset();
    CancellaMatrice(form);
    ControllaVariabiliConvertite(form);
    TestiTabella rows = readLegs(form);
    const int legs = rows.rows();
    SettaAZeroFlaGVisto(form);
    addGuideStops(form, rows);
    {
        const SenzaRidisegno quiet(form.mfgTab);
        form.stato.NumeroTappe = legs;
        rows.setRows(Maggiore(legs + 2, form.stato.RigheMinime) - 1);
        form.mfgTab.setContents(std::move(rows));
        form.mfgTab.setTopRow(1);
        markEndsOfDay(form.mfgTab, legs);
    }
    CalcolaKmTempiItinerario(form);
    rememberLegs(form);
    form.frmframe(riquadroGuida).setVisible(false);
}

void SettaAZeroFlaGVisto(Form& form) {
    form.lblElaborazione.setCaption(QStringLiteral("Reset tabella Guida Città"));
    AzzeraPercentuale(form);
}

bool MemorizzaTappeItinerario(Form& form) {
    AzzeraPercentuale(form);
    if (recordsNeeded(form) > massimoTratti) {
        form.refuse(QStringLiteral("Impossibile: l'itinerario supera 9.999 tratti!"));
        return false;
    }
    const int stored = form.stato.NumeroTappe;
    const bool withDestination = form.metaNuova;
    if (withDestination && !insertNewDestination(form))
        return false;
    try {
        storeTable(form);
    } catch (const store::StoreError&) {
        form.stato.NumeroTappe = stored;
        form.metaNuova = withDestination;
        throw;
    }
    rememberLegs(form);
    AzzeraPercentuale(form);
    return true;
}

void CancellaTabella(Form& form, int table, const QString& field, const QString& value) {
    form.lblElaborazione.setCaption(QStringLiteral("Cancellazione tabella ") + store::TabelleNomi(table));
    form.archivio.CancellaTabella(table, field, value, [&form](qint64 done, qint64 total) {
        form.stato.PercentualeTotale = static_cast<double>(total);
        form.stato.PercentualeCorrente = static_cast<double>(done);
        AggiornaPercentuale(form);
    });
    AzzeraPercentuale(form);
}

} // namespace vanzer
