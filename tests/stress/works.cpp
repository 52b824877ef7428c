#include "stress/works.h"

#include <ostream>

#include "stress/attempts.h"
#include "support/desk.h"
#include "support/old_files_writer.h"

namespace vanzer::stress {

namespace {

const QString archiveName = u"/Vanzer.mdb"_s;
const QDate aLaterDay(2026, 5, 20);

/// As many legs as the seed says.
int legs(int least) {
    return least + static_cast<int>(options().seed % 32);
}

void put(const QString& path, const QByteArray& contents) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(contents) == contents.size());
}

void emptyFolder(const QString& /*folder*/) {}

/// An archive whose categories lack a field, with today's copy there already.
void olderArchive(const QString& folder) {
    travelled(folder);
    Desk(folder).run({u"start"_s});
    changeSchema(folder, "ALTER TABLE TipoGuida DROP COLUMN TempoObbligatorio");
}

/// Other travellers' file beside an archive of one's own.
void exchangeFile(const QString& folder) {
    const QString other = folder + u"/altri"_s;
    travelled(other);
    Desk(other).run({u"start"_s, u"click cmdExport"_s, u"click cmdImportExport(0)"_s, u"click cmdTutto(0)"_s,
                     u"file giri.iei"_s, u"answer 6"_s, u"click cmdImExp(0)"_s});
    EXPECT_TRUE(QFile::rename(other + u"/giri.iei"_s, folder + u"/giri.iei"_s));
    QDir(other).removeRecursively();
    Desk(folder).run(QStringList{u"start"_s} + storedTrip(u"CASA"_s, 20));
}

/// Files of the generation before, and an archive which has the code of one of their trips already.
void oldFiles(const QString& folder) {
    Desk(folder).run(QStringList{u"start"_s} + storedTrip(u"CASA"_s, 3));
    QList<QStringList> mete;
    QList<QStringList> guide;
    for (int trip = 1; trip <= 3; ++trip) {
        const QString code = QStringLiteral("%1").arg(trip, 6, 10, QChar(u'0'));
        mete += QStringList{code, u"VECCHIO GIRO "_s + QString::number(trip), u"ITALIA"_s, u"04052001"_s, u"0800"_s};
        QList<QStringList> itinerary;
        for (int leg = 0; leg < legs(6); ++leg) {
            const QString place = QStringLiteral("PAESE %1-%2").arg(trip).arg(leg);
            itinerary += QStringList{place, u"30"_s, u"S"_s};
            guide += QStringList{place, u"Da vedere"_s, u"02"_s, u"0100"_s, u"0"_s};
        }
        EXPECT_TRUE(writeOldFile(folder + u"/vanz%1.dat"_s.arg(code.right(4)), oldItinerary(itinerary)));
    }
    EXPECT_TRUE(writeOldFile(folder + u"/VanzMete.dat"_s, oldFile(vecchieMete(), mete)));
    EXPECT_TRUE(writeOldFile(folder + u"/VanzGuid.dat"_s, oldFile(vecchiaGuida(), guide)));
}

/// The copies of ten earlier days.
void manyCopies(const QString& folder) {
    travelled(folder);
    for (int day = 5; day < 15; ++day)
        Desk(folder, QDate(2026, 5, day)).run({u"start"_s});
}

/// The user has given the copy of another day the archive's name and place.
void restoredCopy(const QString& folder) {
    travelled(folder);
    Desk(folder, QDate(2026, 5, 5)).run(QStringList{u"start"_s} + storedTrip(u"LECCO"_s, 3));
    QFile::remove(folder + archiveName);
    EXPECT_TRUE(QFile::copy(folder + u"/Copie/Vanzer 2026-05-05.mdb"_s, folder + archiveName));
}

/// The archive is missing beside its copies, and the user takes one up.
void missingArchive(const QString& folder) {
    restoredCopy(folder);
    QFile::remove(folder + archiveName);
}

void withOutputs(const QString& folder, const QStringList& names) {
    travelled(folder);
    for (const QString& name : names)
        put(folder + u'/' + name, "quello di prima");
}

} // namespace

void travelled(const QString& folder) {
    QDir().mkpath(folder);
    Desk(folder).run(QStringList{u"start"_s} + storedTrip(u"COMO"_s, 4) + storedTrip(u"GARDA"_s, legs(12)) +
                     QStringList{u"click cmdGuidaCitta"_s, u"row mfgTab 1"_s, u"set txtGDescr Rocca"_s,
                                 u"set cmbGH 01"_s, u"set cmbGM 30"_s, u"click cmdSalvaRiga"_s,
                                 u"click cmdFineInserimento"_s});
}

std::vector<Work> works() {
    const QStringList start{u"start"_s};
    const QStringList takeUp{u"answer 6"_s, u"start"_s};
    const QStringList endEditing{u"answer 6"_s, u"click cmdFine"_s};
    const QStringList saveTrip{u"answer 6"_s, u"click cmdSalva"_s};
    const QStringList deleteTrip{u"answer 6"_s, u"click cmdCancMeta"_s};
    const QStringList saveDefaults{u"answer 6"_s, u"click cmdDefault(0)"_s};
    const QStringList chooseImport{u"click cmdExport"_s, u"file giri.iei"_s, u"click cmdImportExport(1)"_s,
                                   u"click cmdTutto(1)"_s};
    const QStringList importIt{u"answer 6"_s, u"click cmdImExp(0)"_s};
    const QStringList convertIt{u"answer 6"_s, u"click cmdConverte"_s};
    const QStringList exportIt{u"click cmdExport"_s,   u"click cmdImportExport(0)"_s,
                               u"click cmdTutto(0)"_s, u"file giro.iei"_s,
                               u"answer 6 6"_s,        u"click cmdImExp(0)"_s};
    const QStringList printIt{u"click cmdCalcola"_s,         u"click cmdStampa"_s,       u"check chkTabella 1"_s,
                              u"click cmdEsegui(0)"_s,       u"pick lstStampanti PDF"_s, u"file {}/giro.pdf"_s,
                              u"click cmdSelStampante(0)"_s, u"click cmdCalcola"_s};
    const QStringList lookUp{u"click cmdRicerca"_s, u"pick cmbRicerca COMO"_s};
    const QStringList calculate{u"click cmdCalcola"_s, u"click cmdCalcola"_s};
    const QStringList exported{u"giro.iei"_s};
    const QStringList printed{u"Vanztabl.txt"_s, u"ListaLocalita.txt"_s, u"giro.pdf"_s};
    return {
        {"first_start", emptyFolder, {}, start, start, {}, {}, true},
        {"saved_itinerary",
         travelled,
         start + newTrip(u"ISEO"_s, legs(12)) +
             QStringList{u"answer 6"_s, u"click cmdMemorizza"_s, u"set txtTappa RIVA"_s, u"set txtKm 7"_s,
                         u"click cmdInserisce"_s},
         endEditing,
         endEditing,
         {}},
        {"deleted_destination", travelled, start, deleteTrip, deleteTrip, deleteTrip},
        {"import", exchangeFile, start + chooseImport, importIt, chooseImport + importIt, chooseImport + importIt},
        {"guide_entry",
         travelled,
         {u"start"_s, u"click cmdGuidaCitta"_s, u"row mfgTab 2"_s, u"set txtGDescr Duomo"_s, u"set cmbGH 01"_s},
         {u"click cmdSalvaRiga"_s},
         {u"click cmdSalvaRiga"_s},
         {}},
        {"default_values", emptyFolder, {u"start"_s, u"set cmbMediaKm(0) 80"_s}, saveDefaults, saveDefaults, {}},
        {"saved_destination",
         emptyFolder,
         {u"start"_s, u"click cmdNuovo"_s, u"set txtLocalita COMO"_s, u"set txtNazione ITALIA"_s},
         saveTrip,
         saveTrip,
         {}},
        {"rebuild", olderArchive, {}, start, start, {}, {}, true},
        {"conversion", oldFiles, start, convertIt, convertIt, convertIt, {}, true},
        {"copy_of_the_day", manyCopies, {}, start, start, {}, {}, true, false, aLaterDay},
        {"restored_copy", restoredCopy, {}, start, start, {}, {}, true, false, aLaterDay},
        {"resumed_copy", missingArchive, {}, takeUp, takeUp, {}, {}, true, false, aLaterDay},
        {"export", [exported](const QString& folder) { withOutputs(folder, exported); }, start, exportIt, exportIt,
         exportIt, exported},
        {"print", [printed](const QString& folder) { withOutputs(folder, printed); }, start, printIt, printIt, printIt,
         printed},
        {"looked_up_and_calculated", travelled, start, calculate + lookUp + calculate, lookUp, {}, {}, true, true},
    };
}

void PrintTo(const Work& work, std::ostream* out) {
    *out << work.name;
}

} // namespace vanzer::stress
