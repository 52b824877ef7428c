// Every command that writes much, with the disk failing at each of its operations in turn: what was stored stays, the
// user is told, and the command can be given again.
#include <gtest/gtest.h>

#include <functional>

#include <QTemporaryDir>

#include <sqlite3.h>

#include "faults/faulty_disk.h"
#include "support/desk.h"

namespace vanzer::faults {
namespace {

/// A command that is given while the disk fails.
struct Command {
    const char* name;
    std::function<void(const QString& folder)> prepare; ///< files, and what was stored on earlier days
    QStringList before;                                 ///< with the disk in order; nothing if the start is the command
    QStringList risky;
    QStringList again;    ///< what a user does after a failure, to come to the same end
    bool inSteps = false; ///< stores more than once
};

void PrintTo(const Command& command, std::ostream* out) {
    *out << command.name;
}

void emptyFolder(const QString& /*folder*/) {}

/// An archive whose categories lack a field, with today's copy there already.
void olderArchive(const QString& folder) {
    Desk(folder).run(QStringList{u"start"_s} + storedTrip(u"GARDA"_s, 30) + storedTrip(u"COMO"_s, 5) +
                     QStringList{u"start"_s});
    changeSchema(folder, "ALTER TABLE TipoGuida DROP COLUMN TempoObbligatorio");
}

const QStringList choiceOfImport{u"click cmdExport"_s, u"file amici.iei"_s, u"click cmdImportExport(1)"_s,
                                 u"click cmdTutto(1)"_s};
const QStringList importIt{u"answer 6"_s, u"click cmdImExp(0)"_s};
const QStringList convertIt{u"answer 6"_s, u"click cmdConverte"_s};
const QStringList endEditing{u"answer 6"_s, u"click cmdFine"_s};
const QStringList saveDefaults{u"answer 6"_s, u"click cmdDefault(0)"_s};
const QStringList saveTrip{u"answer 6"_s, u"click cmdSalva"_s};
const QStringList deleteTrip{u"answer 6"_s, u"click cmdCancMeta"_s};

const std::vector<Command>& commands() {
    static const std::vector<Command> all{
        {"first start", emptyFolder, {}, {u"start"_s}, {u"start"_s}},
        {"saved itinerary", emptyFolder,
         QStringList{u"start"_s} + storedTrip(u"COMO"_s, 4) + newTrip(u"GARDA"_s, 12) +
             QStringList{u"answer 6"_s, u"click cmdMemorizza"_s} +
             QStringList{u"set txtTappa RIVA"_s, u"set txtKm 7"_s, u"click cmdInserisce"_s},
         endEditing, endEditing},
        {"deleted destination", emptyFolder,
         QStringList{u"start"_s} + storedTrip(u"COMO"_s, 4) + storedTrip(u"GARDA"_s, 12), deleteTrip, deleteTrip},
        {"import", [](const QString& folder) { copyFolder(QStringLiteral(VANZER_EXCHANGE_FILES), folder); },
         QStringList{u"start"_s} + storedTrip(u"VERONA"_s, 4) + choiceOfImport, importIt, choiceOfImport + importIt},
        {"guide entry",
         emptyFolder,
         QStringList{u"start"_s} + storedTrip(u"GARDA"_s, 12) +
             QStringList{u"click cmdGuidaCitta"_s, u"row mfgTab 1"_s, u"set txtGDescr Rocca"_s, u"set cmbGH 01"_s,
                         u"set cmbGM 30"_s},
         {u"click cmdSalvaRiga"_s},
         {u"click cmdSalvaRiga"_s}},
        {"default values", emptyFolder, {u"start"_s, u"set cmbMediaKm(0) 80"_s}, saveDefaults, saveDefaults},
        {"saved destination",
         emptyFolder,
         {u"start"_s, u"click cmdNuovo"_s, u"set txtLocalita COMO"_s, u"set txtNazione ITALIA"_s},
         saveTrip,
         saveTrip},
        {"rebuild", olderArchive, {}, {u"start"_s}, {u"start"_s}},
        {"conversion",
         [](const QString& folder) { copyFolder(QStringLiteral(VANZER_OLD_FILES), folder); },
         {u"start"_s},
         convertIt,
         convertIt,
         true},
    };
    return all;
}

class UnderFaults : public testing::TestWithParam<Command> {
  protected:
    void SetUp() override {
        ASSERT_TRUE(folders.isValid());
        QDir().mkpath(prepared);
        GetParam().prepare(prepared);
        const QString sound = folders.filePath(u"sound"_s);
        copyFolder(prepared, sound);
        {
            Desk desk(sound);
            desk.run(GetParam().before);
            before = atStart() ? storedIn(prepared) : desk.records();
            usualBoxes = desk.run(GetParam().risky);
        }
        after = storedIn(sound);
        filesAfter = filesIn(sound);
        ASSERT_NE(before, after);
    }

    /// The boxes that don't come up when all is well.
    QStringList troubles(Desk& desk, const QStringList& lines) const {
        QStringList told = desk.run(lines);
        told.removeIf([this](const QString& text) { return usualBoxes.contains(text); });
        return told;
    }

    /// The messages say what was kept.
    static void expectClear(const QStringList& told) {
        for (const QString& text : told)
            EXPECT_TRUE(text.contains(u"com'era") || text.contains(u"Non è stato inserito nulla") ||
                        text.contains(u"si può riprendere"))
                << text.toStdString();
    }

    bool attempt(const FaultyDisk::Fault& fault, int n) {
        const QString folder = folders.filePath(u"work"_s);
        copyFolder(prepared, folder);
        bool failed = false;
        {
            Desk desk(folder);
            desk.run(GetParam().before);
            disk.arm(fault, n);
            const QStringList told = troubles(desk, GetParam().risky);
            disk.disarm();
            expectClear(told);
            failed = !told.isEmpty();
            EXPECT_TRUE(desk.alive() || (atStart() && failed));
            const std::string now = desk.records();
            if (!failed) {
                EXPECT_EQ(now, after);
            } else if (!GetParam().inSteps && !(atStart() && now == after)) {
                EXPECT_EQ(now, before);
            }
            if (failed) {
                EXPECT_EQ(troubles(desk, GetParam().again).join(u'\n').toStdString(), "");
                EXPECT_EQ(desk.records(), after);
            }
        }
        EXPECT_EQ(storedIn(folder), after);
        EXPECT_EQ(filesIn(folder), filesAfter);
        QDir(folder).removeRecursively();
        return failed;
    }

    /// The start is several commands: what came first may be stored when what comes behind fails.
    [[nodiscard]] static bool atStart() { return GetParam().before.isEmpty(); }

    FaultyDisk disk;
    QTemporaryDir folders;
    const QString prepared = folders.filePath(u"prepared"_s);
    QStringList usualBoxes;
    std::string before, after, filesAfter;
};

TEST_P(UnderFaults, WhatWasStoredStaysAndTheUserIsTold) {
    disk.withEachFault(GetParam().name, [this](const auto& fault, int n) { return attempt(fault, n); });
}

INSTANTIATE_TEST_SUITE_P(Commands, UnderFaults, testing::ValuesIn(commands()), [](const auto& instance) {
    return QString::fromLatin1(instance.param.name).replace(u' ', u'_').toStdString();
});

// What is stored on the way, such as the trip that was looked at last, can be made anew.
TEST(FullDisk, TripsAreLookedUpAndCalculatedAllTheSame) {
    FaultyDisk disk;
    QTemporaryDir home;
    Desk desk(home.path());
    desk.run(QStringList{u"start"_s} + storedTrip(u"COMO"_s, 3) + newTrip(u"GARDA"_s, 12) +
             QStringList{u"row mfgTab 3"_s, u"set cmbSosta(0) 02"_s, u"click cmdInserisce"_s} + endEditing +
             QStringList{u"set cmbGiorni 009"_s} + saveTrip);
    disk.arm({Operation::Write, SQLITE_FULL, true}, 1);
    const QStringList told = desk.run({u"click cmdCalcola"_s, u"click cmdCalcola"_s, u"click cmdRicerca"_s,
                                       u"pick cmbRicerca COMO"_s, u"click cmdCalcola"_s, u"click cmdCalcola"_s});
    disk.disarm();
    EXPECT_TRUE(disk.hit());
    ASSERT_EQ(told.size(), 1) << told.join(u'\n').toStdString();
    EXPECT_TRUE(told.first().startsWith(u"Elaborazione")) << told.first().toStdString();
    EXPECT_TRUE(contains(desk.records(), "MetaCorrente|000002"));
    desk.run({u"click cmdRicerca"_s, u"pick cmbRicerca COMO"_s});
    EXPECT_TRUE(contains(desk.records(), "MetaCorrente|000001"));
}

TEST(Refused, AnItineraryOfTooManyRecords) {
    QTemporaryDir home;
    batch::Session session({.directory = home.path(), .decimalMark = u'.', .versione = {}});
    session.start();
    Form& form = *session.window();
    form.cmdNuovo.click();
    form.txtLocalita.type(u"GARDA"_s);
    form.txtNazione.type(u"ITALIA"_s);
    session.boxes.enqueue(rispostaSi);
    form.cmdSalva.click();
    form.cmdItinerario.click();
    const auto leave = [&form, &session](int legs) {
        TestiTabella rows;
        rows.setRows(legs);
        for (int r = 0; r < legs; ++r) {
            rows.at(r, 1) = u"RIVA"_s;
            rows.at(r, 3) = u"7"_s;
            rows.at(r, 4) = u"A"_s;
        }
        form.mfgTab.setContents(std::move(rows));
        session.boxes.enqueue(rispostaSi);
        form.cmdFine.click();
        return session.boxes.exchange({}).last()[u"text"_s].toString();
    };
    EXPECT_EQ(leave(10'000).toStdString(), "Impossibile: l'itinerario supera 9.999 tratti!");
    EXPECT_EQ(form.archivio.tabella(u"Itinerari"_s).record.size(), 0U);
    EXPECT_TRUE(form.cmdFine.reachable());
    EXPECT_EQ(form.mfgTab.rows(), 10'001);
    static_cast<void>(leave(9'999));
    EXPECT_EQ(form.archivio.tabella(u"Itinerari"_s).record.size(), 9'999U);
}

// The copy of the day is made or the user is told; the archive and the copies of other days stay as they are.
TEST(CopyUnderFaults, IsWholeOrTold) {
    const QDate today(2026, 5, 20);
    FaultyDisk disk;
    QTemporaryDir folders;
    const QString prepared = folders.filePath(u"prepared"_s);
    QDir().mkpath(prepared);
    Desk(prepared).run(QStringList{u"start"_s} + storedTrip(u"GARDA"_s, 30));
    for (int day = 5; day < 15; ++day)
        Desk(prepared, QDate(2026, 5, day)).run({u"start"_s});
    const QString copies = u"/Copie"_s;
    const std::string olderCopies = filesIn(prepared + copies);
    const std::string before = storedIn(prepared);
    const QString work = folders.filePath(u"work"_s);
    const QString copy = work + u"/Copie/Vanzer 2026-05-20.mdb"_s;
    disk.withEachFault("copy of the day", [&](const auto& fault, int n) {
        copyFolder(prepared, work);
        QStringList told;
        {
            Desk desk(work, today);
            disk.arm(fault, n);
            told = desk.run({u"start"_s});
            disk.disarm();
            EXPECT_TRUE(desk.alive() || !told.isEmpty());
        }
        EXPECT_TRUE(QFile::exists(copy) || !told.isEmpty());
        EXPECT_TRUE(QFile::exists(copy) || filesIn(work + copies) == olderCopies) << filesIn(work + copies);
        EXPECT_EQ(storedIn(work), before);
        EXPECT_TRUE(Desk(work, today).run({u"start"_s}).isEmpty());
        const QString restored = folders.filePath(u"restored"_s);
        QDir().mkpath(restored);
        EXPECT_TRUE(QFile::copy(copy, restored + u"/Vanzer.mdb"_s));
        EXPECT_EQ(storedIn(restored), before);
        QDir(restored).removeRecursively();
        QDir(work).removeRecursively();
        return !told.isEmpty();
    });
}

} // namespace
} // namespace vanzer::faults
