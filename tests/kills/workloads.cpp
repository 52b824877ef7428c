#include "kills/workloads.h"

#include "support/desk.h"
#include "support/old_files_writer.h"

namespace vanzer::kills {

namespace {

constexpr int destinations = 25;
constexpr int legsOfEach = 60;
constexpr int entries = 800;

QString placeOf(int trip, int leg) {
    return QStringLiteral("PAESE %1-%2").arg(trip).arg(leg);
}

void put(store::Recordset& records, const QList<std::pair<const char16_t*, QString>>& values) {
    records.AddNew();
    for (const auto& [field, text] : values)
        records.scrive(QString::fromUtf16(field), text);
    records.Update();
}

/// An archive of other travellers: destinations with their legs, and a guide.
void fullArchive(const QString& folder) {
    Desk(folder).run({u"start"_s});
    store::Archive archive(folder);
    archive.apriArchivio();
    store::Comando all(archive);
    const auto table = [&archive](int number) {
        return store::Recordset(*archive.Db(0), {store::TabelleNomi(number), {}, {}});
    };
    store::Recordset mete = table(store::MeteVanzer);
    store::Recordset legs = table(store::Itinerari);
    store::Recordset guide = table(store::GuidaCitta);
    for (int trip = 1; trip <= destinations; ++trip) {
        const QString code = QStringLiteral("%1").arg(trip, 6, 10, QChar(u'0'));
        put(mete,
            {{u"CodiceMeta", code}, {u"Localita", u"GIRO "_s + QString::number(trip)}, {u"Nazione", u"ITALIA"_s}});
        for (int leg = 1; leg <= legsOfEach; ++leg)
            put(legs, {{u"CodiceMeta", code},
                       {u"Sequenza", QStringLiteral("%1").arg(leg, 4, 10, QChar(u'0'))},
                       {u"Localita", placeOf(trip, leg)},
                       {u"Chilometri", u"30"_s},
                       {u"TipoStrada", u"S"_s}});
    }
    for (int i = 0; i < entries; ++i)
        put(guide, {{u"Localita", placeOf(1 + i % destinations, 1 + i % legsOfEach)},
                    {u"CodiceGuida", u"02"_s},
                    {u"Descrizione", u"Da vedere numero "_s + QString::number(i)},
                    {u"TempoSosta", u"01:00"_s}});
    all.commit();
}

/// The full archive, of a version whose categories lacked a field.
void olderArchive(const QString& folder) {
    fullArchive(folder);
    changeSchema(folder, "ALTER TABLE TipoGuida DROP COLUMN TempoObbligatorio");
}

/// Other travellers' file beside an archive of one's own.
void exchangeFile(const QString& folder) {
    const QString other = folder + u"/altri"_s;
    QDir().mkpath(other);
    fullArchive(other);
    Desk(other).run({u"start"_s, u"click cmdExport"_s, u"click cmdImportExport(0)"_s, u"click cmdTutto(0)"_s,
                     u"file giri.iei"_s, u"answer 6"_s, u"click cmdImExp(0)"_s});
    QFile::rename(other + u"/giri.iei"_s, folder + u"/giri.iei"_s);
    QDir(other).removeRecursively();
    Desk(folder).run(QStringList{u"start"_s} + storedTrip(u"CASA"_s, 20));
}

void oldFiles(const QString& folder) {
    QList<QStringList> mete;
    QList<QStringList> guide;
    for (int trip = 1; trip <= 8; ++trip) {
        const QString code = QStringLiteral("%1").arg(trip, 6, 10, QChar(u'0'));
        mete += QStringList{code, u"VECCHIO GIRO "_s + QString::number(trip), u"ITALIA"_s, u"04052001"_s, u"0800"_s};
        QList<QStringList> legs;
        for (int leg = 1; leg <= legsOfEach; ++leg) {
            legs += QStringList{placeOf(trip, leg), u"30"_s, u"S"_s};
            guide += QStringList{placeOf(trip, leg), u"Da vedere"_s, u"02"_s, u"0100"_s, u"0"_s};
        }
        writeOldFile(folder + u"/vanz%1.dat"_s.arg(code.right(4)), oldItinerary(legs));
    }
    writeOldFile(folder + u"/VanzMete.dat"_s, oldFile(store::vecchieMete(), mete));
    writeOldFile(folder + u"/VanzGuid.dat"_s, oldFile(store::vecchiaGuida(), guide));
}

/// Those lines are the writing ones that end a question.
Workload made(const char* name, std::function<void(const QString&)> prepare, QStringList lines, bool inSteps = false) {
    Workload work{name, std::move(prepare), std::move(lines), {}, inSteps};
    for (int i = 0; i < work.lines.size(); ++i) {
        if (i > 0 && (work.lines[i - 1].startsWith(u"answer") || work.lines[i].startsWith(u"click cmdCalcola")))
            work.writing.push_back(i);
    }
    if (work.writing.empty())
        work.writing.push_back(0);
    return work;
}

QStringList workOnItineraries() {
    QStringList lines{u"start"_s};
    for (int round = 0; round < 3; ++round) {
        const QString name = u"VALLE "_s + QString(QChar(u'A' + round));
        lines += storedTrip(name, 25);
        lines += {u"click cmdItinerario"_s,
                  u"row mfgTab 3"_s,
                  u"set cmbSosta(1) 09"_s,
                  u"click cmdInserisce"_s,
                  u"answer 6"_s,
                  u"click cmdFine"_s,
                  u"set cmbGiorni 004"_s,
                  u"answer 6"_s,
                  u"click cmdSalva"_s,
                  u"click cmdCalcola"_s,
                  u"click cmdCalcola"_s,
                  u"set cmbMediaKm(0) 80"_s,
                  u"answer 6"_s,
                  u"click cmdDefault(0)"_s};
    }
    lines += {u"answer 6 6"_s, u"click cmdCancItin"_s, u"answer 6"_s, u"click cmdCancMeta"_s};
    return lines;
}

} // namespace

const std::vector<Workload>& workloads() {
    static const std::vector<Workload> all{
        made(
            "itineraries", [](const QString&) {}, workOnItineraries()),
        made("import", exchangeFile,
             {u"start"_s, u"click cmdExport"_s, u"file giri.iei"_s, u"click cmdImportExport(1)"_s,
              u"click cmdTutto(1)"_s, u"answer 6"_s, u"click cmdImExp(0)"_s}),
        made("rebuild", olderArchive, {u"start"_s}),
        made("conversion", oldFiles, {u"start"_s, u"answer 6"_s, u"click cmdConverte"_s}, true),
    };
    return all;
}

} // namespace vanzer::kills
