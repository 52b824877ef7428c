// SPDX-License-Identifier: MIT
// Readers of files from others: exchange files, route lists, stop files, old files.
#include <algorithm>
#include <numeric>
#include <set>
#include <tuple>

#include "core/code_page.h"
#include "core/columns.h"
#include "core/text.h"
#include "core/text_file.h"
#include "exchange/conversion.h"
#include "exchange/iei_file.h"
#include "exchange/itn_filter.h"
#include "exchange/route_package.h"
#include "readers.h"
#include "support/memory_archive.h"

namespace vanzer::fuzz {

using namespace Qt::StringLiterals;

namespace {

MemoryArchive someArchive() {
    MemoryArchive archive;
    archive.put(store::MeteVanzer, {{u"CodiceMeta"_s, u"000001"_s}, {u"Localita"_s, u"BARI"_s}});
    archive.put(store::Itinerari, {{u"CodiceMeta"_s, u"000001"_s}, {u"Localita"_s, u"ROMA NORD"_s}});
    archive.put(store::GuidaCitta, {{u"Localita"_s, u"Roma Nord"_s}, {u"Descrizione"_s, u"Duomo (centro)"_s}});
    return archive;
}

QStringList codesInFile(const QByteArray& input) {
    LettoreIei reader(MemoryArchive::names());
    RigheTesto lines(input);
    QStringList codes;
    while (lines.prossima()) {
        if (reader.read(lines.riga()) != LettoreIei::Riga::Record || reader.sezione() != store::MeteVanzer)
            continue;
        if (const QString code = reader.colonna(reader.campo(u"CodiceMeta")).toString(); !code.isEmpty())
            codes << code;
    }
    return codes;
}

/// Checks the records that were added.
void checkRecords(const MemoryArchive& archive, const std::set<QString>& codes) {
    for (int section = primaSezione; section <= ultimaSezione; ++section) {
        const auto& table = archive.tables[static_cast<std::size_t>(section)];
        for (std::size_t r = table.size() - archive.added[static_cast<std::size_t>(section)]; r < table.size(); ++r) {
            for (const QString& text : table[r]) {
                promise(!text.isEmpty(), "no stored text is empty");
                promise(std::ranges::none_of(text, [](QChar c) { return c == u'"' || (c < u' ' && c != u'\t'); }),
                        "quotes and control characters are left out");
                promise(!text.contains(separatoreIei(section)), "no text holds its separator");
            }
            if (section != store::GuidaCitta)
                promise(codes.contains(MemoryArchive::text(section, table[r], u"CodiceMeta")),
                        "every code was given out");
        }
    }
}

/// The text as it is read back: trimmed, in the code page, with separator letters replaced.
QString asRead(const QString& text) {
    QString plain = Trim(text).normalized(QString::NormalizationForm_C);
    const QString letters = u"ÿŸþÞýÝ"_s;
    for (qsizetype i = 0; i < letters.size(); ++i)
        plain.replace(letters[i], u"yYtTyY"_s[i]);
    return Trim(fromCodePage(toCodePage(plain)));
}

/// Records that are written and read again are the same, except for letters that a text loses.
void checkRoundTrip(const MemoryArchive& archive) {
    ScrittoreIei file;
    std::vector<MemoryArchive::Record> written;
    for (int section = primaSezione; section <= ultimaSezione; ++section) {
        file.testa(section, MemoryArchive::names()[static_cast<std::size_t>(section)]);
        for (const MemoryArchive::Record& record : archive.tables[static_cast<std::size_t>(section)]) {
            for (const QString& text : record)
                file.testo(section, text);
            file.fineRiga();
            written.push_back(record);
        }
    }
    LettoreIei reader(MemoryArchive::names());
    RigheTesto lines(file.contenuto());
    std::size_t read = 0;
    while (lines.prossima()) {
        if (reader.read(lines.riga()) != LettoreIei::Riga::Record)
            continue;
        promise(read < written.size(), "no more records come back than were written");
        for (std::size_t i = 0; i < written[read].size(); ++i)
            promise(Trim(reader.valore(static_cast<int>(i))) == asRead(written[read][i]),
                    "a record comes back as it was written");
        ++read;
    }
    promise(read == written.size(), "as many records come back as were written");
}

/// Imports every destination of an exchange file into an archive with similar records. Then exports what was imported.
void readExchangeFile(const QByteArray& input) {
    MemoryArchive archive = someArchive();
    const QStringList chosen = codesInFile(input);
    CodiciMete codes;
    if (codes.assign(archive.column(store::MeteVanzer, u"CodiceMeta"), chosen, 6) != CodiciMete::Esito::Assegnati)
        return;
    std::set<QString> given;
    for (CodiciMete left = codes; const QString& old : chosen) {
        promise(given.insert(*left.perMeta(old)).second, "each destination has a code of its own");
        left.refuse(old); // the next destination with that code takes its turn
    }
    Importazione import(MemoryArchive::names(), codes, archive);
    RigheTesto lines(input);
    while (lines.prossima() && import.riga(lines.riga())) {
    }
    const ContatoriImport& counts = import.contatori();
    promise(archive.added == std::array<std::size_t, 4>{0, static_cast<std::size_t>(counts.meteInserite),
                                                        static_cast<std::size_t>(counts.tappeInserite),
                                                        static_cast<std::size_t>(counts.vociInserite)},
            "the counts are right");
    checkRecords(archive, given);
    checkRoundTrip(archive);
}

void checkLegs(const PercorsoImportato& route) {
    promise(route.formato != Pacchetto::Sconosciuto || route.tappe.empty(), "an unknown list gives no legs");
    qint64 km = 0;
    for (const TappaImportata& leg : route.tappe) {
        km += leg.km;
        promise(km == leg.kmProgressivo, "kilometres add up");
        promise(leg.luogo == maiuscolo(Trim(leg.luogo)), "places are trimmed and in capitals");
        promise(leg.strade == Trim(leg.strade), "roads are trimmed");
        promise(leg.traghetto == contains(leg.strade, u"TRAGH"), "a ferry is known by its road");
    }
}

constexpr int nameSize = 30;

/// Places that begin with, contain or repeat the stops' names, and some others.
std::vector<RigaPercorso> routeThrough(const QStringList& stops) {
    std::vector<RigaPercorso> legs{{u"PARTENZA"_s, {}, 0}};
    int number = 0;
    for (const QString& stop : stops.mid(0, 40)) {
        const QString name = maiuscolo(stop);
        const QString places[] = {name, name + u" NORD"_s, u"USCITA "_s + name, u"INGRESSO IN "_s + name, u"BIVIO"_s};
        legs.push_back({places[number % 5], u"A%1"_s.arg(number % 7), number});
        ++number;
    }
    legs.push_back({u"ARRIVO"_s, u"SS9"_s, 9});
    return legs;
}

/// A simple version of marking stops, row by row, to compare with.
QStringList markedOneByOne(const std::vector<RigaPercorso>& legs, const QStringList& stops) {
    QStringList places;
    for (const RigaPercorso& leg : legs)
        places << leg.luogo;
    for (qsizetype n = 0; n < stops.size(); ++n) {
        QString name = stops[n];
        if (name.isEmpty())
            continue;
        auto found = std::ranges::find_if(
            places, [&](const QString& place) { return !place.contains(u"[0") && beginsWith(place, name); });
        if (found == places.end()) {
            Colonne columns;
            SeparaColonne(name, columns);
            QString longest;
            for (int i = 1; i <= columns.numero; ++i)
                longest = columns(i).size() > longest.size() ? columns(i) : longest;
            if (!longest.isEmpty())
                found = std::ranges::find_if(places, [&](const QString& place) { return contains(place, longest); });
        }
        if (found != places.end())
            *found += u" ["_s + Zero(static_cast<double>(n + 1), 5) + u']';
    }
    return places;
}

void checkFolded(const std::vector<RigaPercorso>& legs, const std::vector<RigaRimasta>& left) {
    int last = 0;
    int km = 0;
    for (const RigaRimasta& leg : left) {
        promise(leg.riga > last && leg.riga <= static_cast<int>(legs.size()), "legs stay in their order");
        last = leg.riga;
        km += leg.cella.km;
        const qsizetype bracket = leg.cella.luogo.indexOf(u'[');
        promise(bracket <= nameSize, "a name keeps to its width");
    }
    const int driven = std::accumulate(legs.begin(), legs.begin() + last, 0,
                                       [](int sum, const RigaPercorso& leg) { return sum + leg.km; });
    promise(km == driven, "no kilometre is lost before the last leg that stays");
}

/// Reads a route list, and reads it again with other line ends.
void readRoutePackage(const QByteArray& input) {
    const PercorsoImportato route = readPackage(input);
    checkLegs(route);
    if (route.formato == Pacchetto::Sconosciuto || input.contains('\r'))
        return;
    const PercorsoImportato again = readPackage(QByteArray(input).replace("\n", "\r\n"));
    const auto texts = [](const TappaImportata& leg) { return std::tie(leg.luogo, leg.strade, leg.kmProgressivo); };
    promise(std::ranges::equal(route.tappe, again.tappe, {}, texts, texts), "line ends don't matter");
}

/// Reads a stop file and reduces a route to its stops. Some of their names are in the route.
void readStopFile(const QByteArray& input) {
    const QStringList stops = readDestinations(input).mid(0, 500);
    std::vector<RigaPercorso> legs = routeThrough(stops);
    const QStringList expected = markedOneByOne(legs, stops);
    markDestinations(legs, stops);
    for (std::size_t i = 0; i < legs.size(); ++i)
        promise(legs[i].luogo == expected[static_cast<qsizetype>(i)], "every stop marks the leg that the rule names");
    checkFolded(legs, foldLegs(legs, nameSize));
}

/// Every text of a record stands in its bytes, without control characters.
void checkRecord(const FormatoVecchio& format, const QByteArray& bytes, const RecordVecchio& record) {
    qsizetype at = 0;
    for (std::size_t i = 0; i < format.campi.size(); ++i) {
        const int width = format.campi[i].larghezza;
        const QString there = fromCodePage(QByteArrayView(bytes).sliced(at, width));
        promise(record[i].leftJustified(width, u' ') == there || (format.campi[i].siNo && there == u" "),
                "a text is its bytes without the padding");
        promise(std::ranges::none_of(record[i], [](QChar c) { return c < u' '; }), "a text holds no control");
        at += width;
    }
}

void checkLegs(const FileVecchio& file) {
    const TappeVecchie legs = tappeDaLeggere(file);
    promise(legs.tappe >= 0 && legs.tappe <= std::max(0, file.numero() - 1), "no more legs than there are");
    promise(legs.tappe + legs.tralasciati >= file.numero() - 1, "every record is read or counted");
}

void checkConverted(const FormatoVecchio& format, const RecordVecchio& record) {
    if (&format == &vecchieMete() && metaDaConvertire(record))
        promise(codiceConvertito(record).size() == 6, "codes have six digits");
    if (&format == &vecchieTappe()) {
        const auto leg = tappaConvertita(record);
        promise(!leg || (!leg->Localita.isEmpty() && !leg->NomeStrada.isEmpty() && !leg->TempoSosta.isEmpty()),
                "texts that are stored aren't empty");
    }
    if (&format == &vecchiaGuida()) {
        const VoceConvertita entry = voceConvertita(record);
        promise(entry.CodiceGuida.size() == 2 && entry.TempoSosta.size() == 5, "codes and times fit");
    }
}

/// Reads the bytes as each kind of old file.
void readOldFile(const QByteArray& input) {
    for (const auto* const format : {&vecchieMete(), &vecchieTappe(), &vecchiaGuida()}) {
        const FileVecchio file(*format, input);
        for (int n = 1; n <= file.numero(); ++n) {
            if (const auto record = file.record(n)) {
                checkRecord(*format, input.sliced(static_cast<qsizetype>(n - 1) * format->lunghezza), *record);
                checkConverted(*format, *record);
            }
        }
        checkLegs(file);
    }
}

const Reader iei("iei", readExchangeFile);
const Reader routes("pacchetto", readRoutePackage);
const Reader stops("mete", readStopFile);
const Reader oldFiles("vecchi", readOldFile);

} // namespace

} // namespace vanzer::fuzz
