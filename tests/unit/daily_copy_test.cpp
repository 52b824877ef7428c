// SPDX-License-Identifier: MIT
// The daily copies: which ones are kept, when none is made, and what the user is told.
#include "store_fixture.h"

#include <algorithm>

#include <QDir>

#include <sys/stat.h>

#include "startup/startup.h"
#include "store/daily_copy.h"
#include "support/desk.h"

namespace vanzer::store {
namespace {

class DailyCopy : public StoreTest {
  protected:
    static constexpr int ample = 30'000; ///< legs of an archive that needs more than one step to copy

    [[nodiscard]] QString copies() const { return path(directory, "Copie"); }
    [[nodiscard]] QString ofDay(int day) const { return copies() + u'/' + nameOf(day); }
    [[nodiscard]] QStringList kept() const { return QDir(copies()).entryList(QDir::Files, QDir::Name); }
    [[nodiscard]] static QString nameOf(int day) {
        return QStringLiteral("Vanzer 2026-05-%1.mdb").arg(day, 2, 10, QChar(u'0'));
    }

    void copy(int day, const Database::CopyProgress& progress = {}) {
        makeDailyCopy(*archive.Db(0), QDate(2026, 5, day), progress);
    }

    void writeOver(qint64 at, const QByteArray& bytes) {
        archive.close();
        QFile f(file());
        ASSERT_TRUE(f.open(QIODevice::ReadWrite) && f.seek(at) && f.write(bytes) == bytes.size());
    }
};

TEST(CopiesKept, AreTheNewestOfDaysWeeksAndMonthsAndTheFullest) {
    const QDate today(2026, 5, 10); // a Sunday
    const struct {
        const char* name;
        int days; ///< number of earlier days, each with a copy
        int trips;
        QString others; ///< other days, with their number of trips if that isn't one
        QString kept;   ///< besides the ten days of May
    } cases[] = {
        {"two years of days",
         730,
         1,
         {},
         "2026-04-30 2026-04-26 2026-04-19 2026-04-12 2026-04-05 2026-03-31 2026-03-29 2026-03-22 2026-02-28 "
         "2026-01-31 2025-12-31 2025-11-30 2025-10-31 2025-09-30 2025-08-31 2025-07-31 2025-06-30"},
        {"rare starts", 0, 1, "2020-07-01 2019-02-03", "2020-07-01 2019-02-03"},
        {"emptied", 12, 1, "2026-04-20:7 2026-04-19:8 2026-04-18:9 2026-04-17:9 2026-04-16:8",
         "2026-04-30 2026-04-20 2026-04-19 2026-04-18"},
        {"unreadable", 12, -1, "2026-04-19:-1 2026-04-18:0", "2026-04-30 2026-04-19"},
        {"a wrong clock", 10, 1,
         "2036-01-12 2036-01-11 2036-01-10 2036-01-09 2036-01-08 2036-01-07 2036-01-06 2036-01-05 2036-01-04 "
         "2036-01-03 2036-01-02:2 2036-01-01:2",
         "2036-01-12 2036-01-11 2036-01-10 2036-01-09 2036-01-08 2036-01-07 2036-01-06 2036-01-05 2036-01-04 "
         "2036-01-02"},
    };
    for (const auto& c : cases) {
        std::vector<CopiaTrovata> copies;
        for (int i = 0; i < c.days; ++i)
            copies.push_back({{}, today.addDays(-i), c.trips});
        for (const QString& other : c.others.split(u' ', Qt::SkipEmptyParts)) {
            const QString trips = other.section(u':', 1);
            copies.push_back(
                {{}, QDate::fromString(other.first(10), Qt::ISODate), trips.isEmpty() ? 1 : trips.toInt()});
        }
        std::ranges::sort(copies, std::greater(), &CopiaTrovata::day);
        for (const CopiaTrovata& gone : copieDaTogliere(copies, today))
            std::erase_if(copies, [&gone](const CopiaTrovata& copy) { return copy.day == gone.day; });
        const auto isOfMay = [](const CopiaTrovata& copy) { return copy.day.year() == 2026 && copy.day.month() == 5; };
        EXPECT_EQ(std::erase_if(copies, isOfMay), static_cast<std::size_t>(std::min(c.days, 10))) << c.name;
        QStringList kept;
        for (const CopiaTrovata& copy : copies)
            kept << copy.day.toString(Qt::ISODate);
        EXPECT_EQ(kept.join(u' '), c.kept) << c.name;
    }
}

TEST_F(DailyCopy, OnesTooManyGoAndOthersFilesStay) {
    addLegs(3);
    const auto stored = archive.tabella("Itinerari").record;
    ASSERT_TRUE(QDir().mkpath(copies()));
    const QStringList own{"Vanzer 2026-05-99.mdb", "Vanzer buono.mdb", "appunti.txt", "prima.parte",
                          "vanzer 2026-05-01.mdb"};
    for (const QString& name : own + QStringList{"Vanzer 2026-05-03.mdb.parte", "Vanzer 2026-05-04.mdb.parte-journal"})
        write(copies() + u'/' + name, {});
    for (int day = 5; day <= 17; ++day)
        copy(day);
    QStringList expected;
    for (int day = 8; day <= 17; ++day) // 10 May is a Sunday
        expected += nameOf(day);
    EXPECT_EQ(kept(), expected + own);

    addLegs(1);
    copy(17); // the day has its copy already
    const QTemporaryDir restored;
    ASSERT_TRUE(QFile::copy(ofDay(17), path(restored, "Vanzer.mdb")));
    Archive other(restored.path());
    other.openArchive();
    EXPECT_EQ(other.tabella("Itinerari").record, stored);
    other.close();

    copy(2); // the clock was set back
    EXPECT_EQ(kept(), QStringList{nameOf(2)} + expected + own);
}

TEST_F(DailyCopy, FullOnesOutliveEmptyOnesAndAllAreCountedWithoutATrace) {
    {
        Comando command(archive);
        Recordset rs(*archive.Db(0), {TabelleNomi(MeteVanzer), {}, {}});
        for (int i = 0; i < 3; ++i) {
            rs.AddNew();
            rs.Update();
        }
        command.commit();
    }
    copy(4);
    archive.CancellaTabella(MeteVanzer, {}, {});
    for (int day = 5; day <= 17; ++day)
        copy(day);
    archive.close();
    ASSERT_TRUE(QFile::resize(ofDay(17), 5000));
    QString found;
    for (const CopiaTrovata& copy : copieAccanto(file()))
        found += QString("%1 %2 %3|").arg(copy.path.last(6).first(2)).arg(copy.day.day()).arg(copy.mete);
    EXPECT_EQ(found, "17 17 -1|16 16 0|15 15 0|14 14 0|13 13 0|12 12 0|11 11 0|10 10 0|09 9 0|08 8 0|04 4 3|");
    EXPECT_EQ(kept().size(), 11);
}

TEST_F(DailyCopy, HasTheRightsOfTheArchive) {
    const auto rights = [](const QString& path) {
        struct stat s {};
        return ::stat(QFile::encodeName(path).constData(), &s) == 0 ? s.st_mode & 0777U : 0U;
    };
    addLegs(ample);
    ASSERT_TRUE(QDir().mkpath(copies()));
    ASSERT_EQ(::chmod(QFile::encodeName(copies()).constData(), 0755), 0);
    for (const auto& [ofArchive, ofFolder] : {std::pair(0600U, 0700U), {0640U, 0750U}}) {
        ASSERT_EQ(::chmod(QFile::encodeName(file()).constData(), ofArchive), 0);
        unsigned half = 0;
        copy(1, [&](qint64 /*done*/, qint64 /*total*/) {
            half = rights(ofDay(1) + QStringLiteral(".parte"));
            return true;
        });
        EXPECT_EQ(half, ofArchive);
        EXPECT_EQ(rights(ofDay(1)), ofArchive);
        EXPECT_EQ(rights(copies()), ofFolder);
        ASSERT_TRUE(QDir(copies()).removeRecursively());
    }
}

TEST_F(DailyCopy, OneThatIsLeftOrFailsLeavesNothing) {
    addLegs(ample);
    copy(1);
    int asked = 0;
    copy(2, [&asked](qint64 done, qint64 total) {
        EXPECT_LT(done, total);
        return ++asked < 1;
    });
    EXPECT_EQ(asked, 1);
    writeOver(qint64{4096} * 200, QByteArray(4096, 'x')); // inside the file, which still opens
    archive.DatabaseApre(0);
    EXPECT_EQ(failureOf([&] { copy(3); }), StoreError::Kind::Corrupt);
    EXPECT_EQ(kept(), QStringList{nameOf(1)});
    ASSERT_TRUE(QDir(copies()).removeRecursively());
    ASSERT_TRUE(QFile(copies()).open(QIODevice::WriteOnly)); // a file in place of the folder
    EXPECT_EQ(failureOf([&] { copy(4); }), StoreError::Kind::ReadOnly);
}

/// A window on this archive, on days in May.
class WindowOnCopies : public DailyCopy {
  protected:
    /// Starts the window. Returns the texts of the boxes.
    QString start(int day, const QStringList& answers = {}) {
        archive.close();
        desk.reset();
        desk.emplace(directory.path(), QDate(2026, 5, day));
        return desk->tries(answers + QStringList(u"start"_s)).join(u'\n');
    }
    std::size_t legs() { return desk->program().window()->archivio.tabella("Itinerari").record.size(); }

    std::optional<Desk> desk;
};

TEST_F(WindowOnCopies, AreMadeAtTheFirstStartOfADayAndCanBeStopped) {
    addLegs(ample);
    EXPECT_EQ(start(7), "");
    EXPECT_EQ(kept(), QStringList{nameOf(7)});
    desk.reset();
    batch::QueuedBoxes boxes;
    batch::QueuedDialogs dialogs;
    batch::SetClock clock;
    clock.set(QDateTime(QDate(2026, 5, 8), QTime(8, 0)));
    batch::VisitedYield events;
    DetachedStarter programs;
    Ports ports{boxes, dialogs, clock, events, programs};
    const auto form = nuovaFinestra({.directory = directory.path(), .decimalMark = u'.', .versione = {}}, ports);
    events.expect([&] {
        if (form->lblElaborazione.caption() != u"Copia dell'archivio" || !form->txtPerc.visible())
            return false;
        EXPECT_EQ(form->cmdEsce.caption(), "&Stop");
        boxes.enqueue(rispostaSi);
        form->cmdEsce.click();
        return true;
    });
    loadWindow(*form);
    EXPECT_EQ(boxes.exchange({}).size(), 1) << "the question";
    EXPECT_EQ(kept(), QStringList{nameOf(7)});
    EXPECT_TRUE(form->cmdNuovo.reachable() && form->cmdEsce.caption() == u"&Esce" && !form->txtPerc.visible());
}

TEST_F(WindowOnCopies, AreNamedWhereTheyHelp) {
    addLegs(ample);
    EXPECT_EQ(start(7), "");
    const QString where = QDir::toNativeSeparators(copies());
    // The archive is in use, so the message names no copy.
    const QString inUse = Desk(directory.path()).run({u"start"_s}).join(u'\n');
    EXPECT_TRUE(inUse.contains(u"è già aperto da un altro Vanzer") && !inUse.contains(where)) << inUse.toStdString();
    desk.reset();
    const struct {
        qint64 at;
        QByteArray bytes;
        QString told;
    } damages[] = {{qint64{4096} * 200, QByteArray(4096, 'x'), u"danneggiato"_s},
                   {0, "that is no archive", u"Errore apertura database "_s + file()}};
    for (const auto& [at, bytes, what] : damages) {
        writeOver(at, bytes);
        const QString told = start(8);
        EXPECT_TRUE(told.contains(what) && told.contains(where) && told.contains(nameOf(7))) << told.toStdString();
        EXPECT_EQ(desk->alive(), at > 0);
        EXPECT_EQ(kept(), QStringList{nameOf(7)});
        desk.reset();
    }
}

// A damaged index is repaired at once, and isn't reported as damage, since its records are whole.
TEST_F(WindowOnCopies, AMissingArchiveIsAskedForAndABrokenIndexMended) {
    addLegs(2);
    start(7);
    desk.reset();
    breakIndexOfLegs(file());
    EXPECT_TRUE(start(7).contains(u"Gli indici"));
    EXPECT_EQ(legs(), 2U);
    for (const auto& [answer, left] : {std::pair(u"answer 2"_s, -1), {u"answer 6"_s, 2}, {u"answer 7"_s, 0}}) {
        desk.reset();
        ASSERT_TRUE(!QFile::exists(file()) || QFile::remove(file()));
        EXPECT_TRUE(start(8, {answer}).contains(nameOf(7)));
        EXPECT_EQ(desk->alive() ? static_cast<int>(legs()) : -1, left);
        EXPECT_EQ(QFile::exists(file()), left >= 0);
    }
}

} // namespace
} // namespace vanzer::store
