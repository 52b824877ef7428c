// SPDX-License-Identifier: MIT
#include "trip/parameter_fields_screen.h"

#include "core/text.h"
#include "core/time_values.h"
#include "window/grid_layouts.h"

namespace vanzer {

namespace {

constexpr int troppeVolte = 100;

/// The numbers of a list, from `first` to `last`, each written with `width` digits.
struct Intervallo {
    int first;
    int last;
    int width;
    int step = 1;
};

QStringList values(const Intervallo& range, bool zeros = true) {
    QStringList list;
    for (int v = range.first; v <= range.last; v += range.step)
        list << (zeros ? Zero(v, range.width) : QString::number(v));
    return list;
}

constexpr std::array<Intervallo, 4> offeredSpeeds{{{50, 140, 3, 5}, {45, 110, 3, 5}, {30, 70, 3, 5}, {20, 60, 3, 5}}};
constexpr std::array<Intervallo, numeroCoppie> hours{
    {{0, 11, 2}, {11, 15, 2}, {18, 21, 2}, {20, 24, 2}, {0, 2, 2}, {0, 2, 2}, {0, 11, 2}, {16, 24, 2}, {1, 24, 2}}};
constexpr std::array<const char16_t*, 6> sources{u"1 - Soste itinerario", u"2 - Soste Guida",  u"3 - Entrambe",
                                                 u"4 - Sosta Maggiore ",  u"5 - Sosta minore", u"6 - Nessuna sosta!"};

const QStringList quarters{QStringLiteral("00"), QStringLiteral("15"), QStringLiteral("30"), QStringLiteral("45")};

void fillStart(Form& form) {
    const int year = form.ports.clock.now().date().year();
    form.cmbInizio(0).setEntries(values({1, 31, 2}));
    form.cmbInizio(1).setEntries(values({1, 12, 2}));
    form.cmbInizio(2).setEntries(values({1998, year + 5, 4}));
    form.cmbInizio(3).setEntries(values({0, 24, 2}));
    form.cmbInizio(4).setEntries(quarters);
}

void fillClocksAndRests(Form& form) {
    for (int i = 0; i < numeroCoppie; ++i) {
        form.cmbOra(i).setEntries(values(hours[static_cast<std::size_t>(i)]));
        form.cmbMin(i).setEntries(quarters);
    }
    form.cmbRipM.setEntries({QStringLiteral("00"), QStringLiteral("05"), QStringLiteral("10"), QStringLiteral("15"),
                             QStringLiteral("20"), QStringLiteral("30"), QStringLiteral("45"), QStringLiteral("60")});
    form.cmbRipH.setEntries(values({0, 8, 2}));
    form.cmbRipG.setEntries(values({0, 5, 2}));
    form.cmbRipGG.setEntries(values({0, 10, 2}));
}

void fillStops(Form& form) {
    QStringList list;
    for (const char16_t* source : sources)
        list << QString::fromUtf16(source);
    form.cmbSoste.setEntries(list);
    form.cmbGiorni.setText(QStringLiteral("000"));
    form.cmbSosta(0).setEntries(values({0, 15, 2}));
    form.cmbSosta(1).setEntries(values({0, 23, 2}));
    form.cmbSosta(2).setEntries(quarters);
    QStringList visit = values({0, 15, 2});
    for (int days = 1; days <= 8; ++days)
        visit << u'G' + QString::number(days);
    form.cmbGH.setEntries(visit);
    form.cmbGM.setEntries(quarters);
}

void writeStandardValues(Form& form) {
    static constexpr std::array<const char16_t*, 4> speed{u"75", u"65", u"50", u"30"};
    static constexpr std::array<std::array<const char16_t*, 2>, numeroCoppie> clock{{{u"09", u"00"},
                                                                                     {u"12", u"30"},
                                                                                     {u"20", u"00"},
                                                                                     {u"22", u"30"},
                                                                                     {u"02", u"30"},
                                                                                     {u"01", u"45"},
                                                                                     {u"09", u"00"},
                                                                                     {u"18", u"00"},
                                                                                     {u"06", u"00"}}};
    for (int i = 0; i < 4; ++i)
        form.cmbMediaKm(i).setText(QString::fromUtf16(speed[static_cast<std::size_t>(i)]));
    for (int i = 0; i < numeroCoppie; ++i) {
        const auto& pair = clock[static_cast<std::size_t>(i)];
        writePair(form, i, QString::fromUtf16(pair[0]), QString::fromUtf16(pair[1]));
    }
    form.cmbRipM.setText(QStringLiteral("15"));
    form.cmbRipH.setText(QStringLiteral("03"));
    form.cmbRipG.setText(QStringLiteral("01"));
    form.cmbRipGG.setText(QStringLiteral("05"));
    form.cmbRange.setText(QStringLiteral("15"));
    form.cmbSoste.setText(voceSoste(form, QStringLiteral("3")));
}

store::Recordset& openDefaults(Form& form) {
    form.archivio.StringaSQL = QStringLiteral("SELECT * FROM Parametri");
    form.archivio.RecordSetImposta(0, store::Parametri);
    return form.archivio.Rs(store::Parametri);
}

float timeShown(Form& form, int pair) {
    return ghmStringa2Centesimi(form.cmbOra(pair).text() + u':' + form.cmbMin(pair).text(), giornoIntero);
}

/// Corrects one pair: empty lists take their first entry, an hour outside its list takes the nearest one. Returns the
/// time before the correction, hundredths of an hour.
float ControlloOrarioCmbOra(Form& form, int pair, bool& corrected) {
    ListControl& hour = form.cmbOra(pair);
    ListControl& minute = form.cmbMin(pair);
    if (hour.text().isEmpty())
        hour.setText(hour.List(0));
    if (minute.text().isEmpty())
        minute.setText(minute.List(0));
    const float time = timeShown(form, pair);
    const double wholeHours = Int(static_cast<double>(time) / 100);
    const QString first = hour.List(0);
    const QString last = hour.List(hour.count() - 1);
    if (Val(first) > wholeHours) {
        hour.setText(first);
        corrected = true;
    }
    if (Val(last) < wholeHours) {
        hour.setText(last);
        corrected = true;
    }
    return time;
}

int within(double value, int greatest) {
    const int n = roundToInt(value);
    return n < 0 || n > greatest ? 0 : n;
}

void readRests(Form& form) {
    NumeriViaggio& s = *form.viaggio;
    s.RiposoMinuti = within(Val(form.cmbRipM.text()) * 100 / 60, 100);
    s.RiposoOre = within(Val(form.cmbRipH.text()), 10);
    s.RiposoGiorno = within(Val(form.cmbRipG.text()), 4);
    s.RiposoDopoGiorni = within(Val(form.cmbRipGG.text()), 10);
}

void readStart(Form& form) {
    NumeriViaggio& s = *form.viaggio;
    s.GiornoInizio = roundToInt(Val(form.cmbInizio(0).text()));
    s.MeseInizio = roundToInt(Val(form.cmbInizio(1).text()));
    s.AnnoInizio = roundToInt(Val(form.cmbInizio(2).text()));
    s.GiulianoInizio = Data2Giul(Zero(s.GiornoInizio, 2) + Zero(s.MeseInizio, 2) + Zero(s.AnnoInizio, 4));
    s.GiulianoCorrente = s.GiulianoInizio;
    s.OraInizioViaggio = ghmStringa2Centesimi(form.cmbInizio(3).text() + u':' + form.cmbInizio(4).text(), giornoIntero);
    s.OraCorrente = s.OraInizioViaggio;
}

/// Writes a clock time, hundredths of an hour, into the lists of a pair.
void writeTime(Form& form, int pair, float value) {
    const bool endOfDay = value >= giornoIntero;
    const QString text = Right(ghmCentesimi2Stringa(value, giornoIntero), 5);
    writePair(form, pair, endOfDay ? QStringLiteral("24") : Left(text, 2), Mid(text, 4, 2));
}

/// Brings the times into the order of a day. True if a change needs another round of checks.
bool orderDay(Form& form) {
    const NumeriViaggio s = *form.viaggio;
    bool corrected = false;
    if (s.OraPranzo - 100 < s.OraColazione) {
        form.cmbOra(coppiaColazione).setText(form.cmbOra(coppiaColazione).List(0));
        corrected = true;
    }
    if (s.OraCena - 100 < s.OraPranzo + s.DurataPranzo) {
        form.cmbOra(coppiaPranzo).setText(form.cmbOra(coppiaPranzo).List(0));
        corrected = true;
    }
    if (s.OraCena + s.DurataCena > s.OraNotte) {
        writeTime(form, coppiaNotte, s.OraCena + s.DurataCena);
        corrected = true;
    }
    if (s.OraNotte > giornoIntero)
        writePair(form, coppiaNotte, QStringLiteral("24"), QStringLiteral("00"));
    if (s.InizioVisita < s.OraColazione) {
        writePair(form, coppiaInizioVisita, form.cmbOra(coppiaColazione).text(), form.cmbMin(coppiaColazione).text());
        corrected = true;
    }
    if (s.FineVisita > s.OraNotte) {
        writePair(form, coppiaFineVisita, form.cmbOra(coppiaNotte).text(), form.cmbMin(coppiaNotte).text());
        corrected = true;
    }
    return corrected;
}

} // namespace

void writePair(Form& form, int pair, const QString& hour, const QString& minute) {
    form.cmbOra(pair).setText(hour);
    form.cmbMin(pair).setText(minute);
}

QString voceSoste(Form& form, const QString& code) {
    const QString s = Trim(code).isEmpty() ? QStringLiteral("3") : Trim(code);
    return form.cmbSoste.List(roundToInt(Maggiore(Val(s) - 1, 0.0)));
}

void MetteAdesso(Form& form) {
    const QDateTime now = form.ports.clock.now();
    form.cmbInizio(0).setText(Zero(now.date().day(), 2));
    form.cmbInizio(1).setText(Zero(now.date().month(), 2));
    form.cmbInizio(2).setText(Zero(now.date().year(), 4));
    form.cmbInizio(3).setText(Zero(now.time().hour(), 2));
    const int quarter = now.time().minute() / 15;
    form.cmbInizio(4).setText(Zero(quarter * 15, 2));
    MettiGiornoSett(form);
}

void CaricaRange(Form& form) {
    form.cmbRange.setEntries({QStringLiteral("00"), QStringLiteral("05"), QStringLiteral("10"), QStringLiteral("15"),
                              QStringLiteral("20"), QStringLiteral("25"), QStringLiteral("30"), QStringLiteral("45"),
                              QStringLiteral("60")});
    form.cmbRange.setText(QStringLiteral("25"));
}

void CaricaComboBox(Form& form) {
    fillStart(form);
    for (int i = 0; i < 4; ++i)
        form.cmbMediaKm(i).setEntries(values(offeredSpeeds[static_cast<std::size_t>(i)], false));
    fillClocksAndRests(form);
    fillStops(form);
    CaricaDefaultMeta(form, 0);
    MetteAdesso(form);
}

void CaricaDefaultMeta(Form& form, int modo) {
    if (openDefaults(form).EOF_() || modo == 2) {
        writeStandardValues(form);
        MemorizzaVariabiliMeta(form);
        static_cast<void>(openDefaults(form));
    }
    const store::Recordset& record = form.archivio.Rs(store::Parametri);
    for (int i = 0; i < 4; ++i)
        form.cmbMediaKm(i).setText(record.testo(QString::fromUtf16(campiMedie[static_cast<std::size_t>(i)])));
    for (const CampoCoppia& f : campiCoppie) {
        const QString value = record.testo(QString::fromUtf16(f.field));
        writePair(form, f.pair, Left(value, 2), Mid(value, 3, 2));
    }
    form.cmbRipM.setText(record.testo(QStringLiteral("RiposoMinuti")));
    form.cmbRipH.setText(record.testo(QStringLiteral("RiposoOre")));
    form.cmbRipG.setText(record.testo(QStringLiteral("RiposoGiorno")));
    form.cmbRipGG.setText(record.testo(QStringLiteral("RiposoDopoGiorni")));
    form.cmbSoste.setText(voceSoste(form, record.testo(QStringLiteral("CalcoloSoste"))));
    form.cmbRange.setText(record.testo(QStringLiteral("Range")));
}

void MemorizzaVariabiliMeta(Form& form) {
    store::Recordset& record = openDefaults(form);
    if (record.EOF_())
        record.AddNew();
    else
        record.Edit();
    for (int i = 0; i < 4; ++i)
        record.write(QString::fromUtf16(campiMedie[static_cast<std::size_t>(i)]), form.cmbMediaKm(i).text());
    for (const CampoCoppia& f : campiCoppie)
        record.write(QString::fromUtf16(f.field), form.cmbOra(f.pair).text() + form.cmbMin(f.pair).text());
    record.write(QStringLiteral("RiposoMinuti"), form.cmbRipM.text());
    record.write(QStringLiteral("RiposoOre"), form.cmbRipH.text());
    record.write(QStringLiteral("RiposoGiorno"), form.cmbRipG.text());
    record.write(QStringLiteral("RiposoDopoGiorni"), form.cmbRipGG.text());
    record.write(QStringLiteral("CalcoloSoste"), Left(form.cmbSoste.text(), 1));
    record.write(QStringLiteral("Range"), form.cmbRange.text());
    record.Update();
}

void ControllaVariabiliConvertite(Form& form) {
    NumeriViaggio& s = *form.viaggio;
    bool corrected = true;
    for (int round = 0; corrected && round < troppeVolte; ++round) {
        corrected = false;
        // Reading corrects the lists. The values are still those before the correction.
        std::array<float, numeroCoppie> times{};
        for (int i = 0; i < numeroCoppie; ++i)
            times[static_cast<std::size_t>(i)] = ControlloOrarioCmbOra(form, i, corrected);
        for (int i = 0; i < numeroCoppie; ++i)
            variabileCoppia(s, i) = times[static_cast<std::size_t>(i)];
        readRests(form);
        readStart(form);
        corrected = orderDay(form) || corrected;
    }
    form.yield();
    s.GiorniDesiderati = roundToInt(Val(form.cmbGiorni.text()));
    s.OreGuidaGiorno = s.OraNotte - s.OraColazione - s.DurataPranzo - s.DurataCena;
    s.OreVisitaGiorno = s.FineVisita - s.InizioVisita;
}

void Aggiorna(Form& form, bool tieniSchermo) {
    MettiGiornoSett(form);
    ControllaVariabiliConvertite(form);
    NumeriViaggio& s = *form.viaggio;
    limitClocks(s);
    const NumeriViaggio bounded = s; // writing back raises change events, which set the variables from half a pair
    for (const int pair : {0, 1, 2, 3, 4, 5, 8, 6, 7}) {
        NumeriViaggio copy = bounded;
        writeTime(form, pair, variabileCoppia(copy, pair));
    }
    form.cmbRipM.setText(Zero(Int(s.RiposoMinuti * 60.0 / 100 + 0.5), 2));
    form.cmbRipH.setText(Zero(s.RiposoOre, 2));
    form.cmbRipG.setText(Zero(s.RiposoGiorno, 2));
    form.cmbRipGG.setText(Zero(s.RiposoDopoGiorni, 2));
    if (tieniSchermo)
        return;
    form.cmbRicercaTappa.setVisible(false);
    form.mfgTab.setWidth(larghezzaTabella);
    form.frmframe(riquadroTappe).setVisible(false);
    form.yield();
}

void MettiGiornoSett(Form& form) {
    const auto date = [](const auto& fields) { return fields(0).text() + fields(1).text() + fields(2).text(); };
    form.txtInizioGSett.setText(GiornoSettimana(date(form.cmbInizio)));
    const auto& end = form.txtFine;
    if (Val(end(0).text()) > 0 && Val(end(1).text()) > 0 && Val(end(2).text()) > 0)
        end(5).setText(GiornoSettimana(date(end)));
}

void ImpostaGiorniMeseInizio(Form& form) {
    const int shown = roundToInt(Val(form.cmbInizio(0).text()));
    const int days = GiorniMese(roundToInt(Val(form.cmbInizio(2).text())), roundToInt(Val(form.cmbInizio(1).text())));
    form.cmbInizio(0).setEntries(values({1, days, 2}));
    form.cmbInizio(0).setText(Zero(Minore(shown, days), 2));
    MettiGiornoSett(form);
}

void cmbOra_Change(Form& form, int i) {
    variabileCoppia(*form.viaggio, i) = timeShown(form, i);
}

void cmbInizio_Click(Form& form, int i) {
    if (i != 0)
        ImpostaGiorniMeseInizio(form);
    Aggiorna(form, true);
}

void cmbgiorni_Change(Form& form) {
    if (Val(form.cmbGiorni.text()) > 997)
        form.cmbGiorni.setText(QStringLiteral("997"));
}

} // namespace vanzer
