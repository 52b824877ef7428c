#include "itinerary/leg_table_screen.h"

#include "core/text.h"
#include "core/time_values.h"
#include "guide/marks.h"
#include "itinerary/leg_table.h"
#include "schedule/totals_screen.h"
#include "window/modes.h"
#include "window/parameters.h"

namespace vanzer {

namespace {

constexpr float giornoIntero = 2400;
constexpr int colonnaFineGiorno = 14;

struct TappaLetta {
    QString localita;
    QString chilometri;
    QString nomeStrada;
    QString tipoStrada;
    QString tempoSosta;
    QString fineGiorno;
};

std::vector<TappaLetta> readLegs(Form& form) {
    store::Archive& archive = form.archivio;
    archive.StringaSQL = QStringLiteral("SELECT * FROM Itinerari WHERE CodiceMeta = '") +
                         store::quotato(form.stato.CodiceMeta) + QStringLiteral("' ORDER BY Sequenza");
    archive.RecordSetImposta(0, store::Itinerari);
    store::Recordset& records = archive.Rs(store::Itinerari);
    const int place = records.campo(QStringLiteral("Localita"));
    const int km = records.campo(QStringLiteral("Chilometri"));
    const int road = records.campo(QStringLiteral("NomeStrada"));
    const int type = records.campo(QStringLiteral("TipoStrada"));
    const int stop = records.campo(QStringLiteral("TempoSosta"));
    const int end = records.campo(QStringLiteral("FineGiorno"));
    std::vector<TappaLetta> legs;
    for (; !records.EOF_(); records.MoveNext())
        legs.push_back({records.testo(place), records.testo(km), records.testo(road), records.testo(type),
                        records.testo(stop), records.testo(end)});
    return legs;
}

/// The guide's stops of a place as the text of its cell.
QString guideStops(SegniGuida& guide, const QString& place, float visitingDay) {
    double sum = 0;
    for (const VoceGuida& entry : guide.usaLuogo(place))
        sum += static_cast<double>(tempoVoce(entry.tempoSosta, visitingDay));
    return ghmCentesimi2Stringa(static_cast<float>(sum), giornoIntero);
}

void showLeg(Form& form, int row, const TappaLetta& leg) {
    Grid& grid = form.mfgTab;
    grid.setCell(row, 0, QString::number(row));
    grid.setCell(row, 1, leg.localita);
    grid.setCell(row, 2, Trim(leg.nomeStrada));
    grid.setCell(row, 3, migliaia(Val(leg.chilometri)));
    grid.setCell(row, 4, leg.tipoStrada);
    grid.setCell(row, 7, sostaDelRecord(leg.fineGiorno, leg.tempoSosta));
    grid.setCell(row, colonnaFineGiorno, leg.fineGiorno);
    if (leg.fineGiorno == u"1") {
        grid.setMarked(row, 7, true);
        grid.setCurrent(1, 1);
    }
}

void showLegs(Form& form, const std::vector<TappaLetta>& legs) {
    SegniGuida guide(form.archivio);
    TrattoDellaGuida stretch;
    int& row = form.stato.RigaCaricata;
    row = 0;
    for (const TappaLetta& leg : legs) {
        ++row;
        const TrattoDellaGuida::Passo step = stretch.prossimo(leg.localita);
        if (step.leggere)
            form.mfgTab.setCell(row, 8, guideStops(guide, step.luogo, form.stato.OreVisitaGiorno));
        showLeg(form, row, leg);
        form.yield();
    }
    guide.scrive();
}

int recordsNeeded(const Form& form) {
    int needed = 0;
    for (int r = 1; r < form.mfgTab.rows(); ++r) {
        if (!Trim(form.mfgTab.cell(r, 1)).isEmpty())
            needed += numeroRecord(chilometri(form.mfgTab.cell(r, 3)));
    }
    return needed;
}

/// All that the guide knows for a place as it is stored; a wider pattern may find more than the place itself.
QString guideSnapshot(SegniGuida& guide, const QString& place) {
    double sum = 0;
    for (const VoceGuida& entry : guide.usaModello(LikeTesto(place)))
        sum += static_cast<double>(ghmStringa2Centesimi(entry.tempoSosta, giornoIntero));
    return ghmCentesimi2Stringa(static_cast<float>(sum), giornoIntero);
}

class ScrittoreTappe {
  public:
    ScrittoreTappe(Form& form, store::Recordset& records) : form_(form), records_(records) {
        static constexpr std::array<const char16_t*, 9> names{u"CodiceMeta", u"Sequenza",   u"Localita",
                                                              u"Chilometri", u"NomeStrada", u"TipoStrada",
                                                              u"TempoSosta", u"SostaGuidaCitta", u"FineGiorno"};
        for (std::size_t i = 0; i < names.size(); ++i)
            fields_[i] = records_.campo(QString::fromUtf16(names[i]));
    }

    void scrive(const RecordTappa& leg) {
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
            records_.scrive(fields_[i], values[i]);
        records_.Update();
    }

  private:
    Form& form_;
    store::Recordset& records_;
    std::array<int, 9> fields_{};
};

void storeRows(Form& form, store::Recordset& records) {
    StatoViaggio& s = form.stato;
    const Grid& grid = form.mfgTab;
    const int placeSize = records.size(records.campo(QStringLiteral("Localita")));
    SegniGuida guide(form.archivio);
    ScrittoreTappe writer(form, records);
    for (int r = 1; r < grid.rows(); ++r) {
        s.PercentualeCorrente = r;
        AggiornaPercentuale(form);
        const QString place = grid.cell(r, 1);
        if (Trim(place).isEmpty())
            continue;
        const QString stops = guideSnapshot(guide, luogoMemorizzato(place, placeSize));
        const RigaTappa row{place, grid.cell(r, 2), chilometri(grid.cell(r, 3)), grid.cell(r, 4), grid.cell(r, 7)};
        for (const RecordTappa& leg : recordDellaRiga(row, stops, placeSize))
            writer.scrive(leg);
    }
    guide.scrive();
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
    const std::vector<TappaLetta> legs = readLegs(form);
    {
        const SenzaRidisegno quiet(form.mfgTab);
        form.stato.NumeroTappe = static_cast<int>(legs.size());
        form.mfgTab.setRows(Maggiore(form.stato.NumeroTappe + 2, form.stato.RigheMinime));
        form.mfgTab.setTopRow(1);
        SettaAZeroFlaGVisto(form);
        showLegs(form, legs);
        form.mfgTab.setTopRow(1);
    }
    CalcolaKmTempiItinerario(form);
    form.frmframe(24).setVisible(false);
}

void SettaAZeroFlaGVisto(Form& form) {
    form.lblElaborazione.setCaption(QStringLiteral("Reset tabella Guida Città"));
    AzzeraPercentuale(form);
}

void MemorizzaTappeItinerario(Form& form) {
    AzzeraPercentuale(form);
    if (recordsNeeded(form) > massimoTratti) {
        form.messaggio(QStringLiteral("Impossibile: l'itinerario supera 9.999 tratti!"));
        return;
    }
    StatoViaggio& s = form.stato;
    CancellaTabella(form, store::Itinerari, QStringLiteral("CodiceMeta"), s.CodiceMeta);
    SettaAZeroFlaGVisto(form);
    s.NumeroTappe = 0;
    s.PercentualeTotale = form.mfgTab.rows() - 1;
    form.lblElaborazione.setCaption(QStringLiteral("Memorizza tappe itinerario"));
    form.archivio.StringaSQL = QStringLiteral("SELECT * FROM Itinerari WHERE CodiceMeta = '") +
                               store::quotato(s.CodiceMeta) + QStringLiteral("'");
    form.archivio.RecordSetImposta(0, store::Itinerari);
    storeRows(form, form.archivio.Rs(store::Itinerari));
    AzzeraPercentuale(form);
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
