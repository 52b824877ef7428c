// The copy of the day: which ones are kept, when there is none, and what the user is told of them.
#include "store_fixture.h"

#include <algorithm>

#include <QDir>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

#include "batch/queue_ports.h"
#include "batch/session.h"
#include "startup/startup.h"
#include "store/daily_copy.h"

namespace vanzer::store {
namespace {

class DailyCopy : public StoreTest {
  protected:
    static constexpr int ample = 30'000; ///< legs of an archive that takes more than one step to copy

    [[nodiscard]] QString file() const { return path(directory, "Vanzer.mdb"); }
    [[nodiscard]] QString copies() const { return path(directory, "Copie"); }
    [[nodiscard]] QStringList kept() const {
        QStringList names = QDir(copies()).entryList(QDir::Files);
        names.sort();
        return names;
    }
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
        int days; ///< before them, a copy for each of so many days
        int trips;
        QString others; ///< days, with their trips if they are more than one
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
         "2036-01-03 "
         "2036-01-02:2 2036-01-01:2",
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
    copy(17); // the day has its copy
    const QTemporaryDir restored;
    ASSERT_TRUE(QFile::copy(copies() + u'/' + nameOf(17), path(restored, "Vanzer.mdb")));
    Archive other(restored.path());
    other.openArchive();
    EXPECT_EQ(other.tabella("Itinerari").record, stored);
    other.close();

    copy(2); // a clock that was put back
    EXPECT_EQ(kept(), QStringList{nameOf(2)} + expected + own);
}

TEST_F(DailyCopy, FullOnesOutliveEmptyOnesAndAllAreCountedWithoutATrace) {
    const auto trips = [this](int count) {
        open(QStringLiteral("SELECT * FROM MeteVanzer"));
        Comando command(archive);
        archive.CancellaTabella(MeteVanzer, {}, {});
        Recordset rs(*archive.Db(0), {TabelleNomi(MeteVanzer), {}, {}});
        for (int i = 0; i < count; ++i) {
            rs.AddNew();
            rs.write("CodiceMeta", QString::number(i));
            rs.Update();
        }
        command.commit();
    };
    trips(3);
    copy(4);
    trips(0);
    for (int day = 5; day <= 17; ++day)
        copy(day);
    writeOver(0, {});
    ASSERT_TRUE(QFile::resize(copies() + u'/' + nameOf(17), 5000));
    QStringList found;
    for (const CopiaTrovata& copy : copieAccanto(file()))
        found += copy.path.last(6).first(2) + QString(" %1 %2").arg(copy.day.day()).arg(copy.mete);
    EXPECT_EQ(found.join(u'|'),
              "17 17 -1|16 16 0|15 15 0|14 14 0|13 13 0|12 12 0|11 11 0|10 10 0|09 9 0|08 8 0|04 4 3");
    EXPECT_EQ(kept().size(), 11);
}

#ifdef Q_OS_UNIX
TEST_F(DailyCopy, HasTheRightsOfTheArchive) {
    const auto rights = [](const QString& path) {
        struct stat s {};
        return ::stat(QFile::encodeName(path).constData(), &s) == 0 ? s.st_mode & 0777U : 0U;
    };
    addLegs(ample);
    ASSERT_TRUE(QDir().mkpath(copies()));
    ASSERT_EQ(::chmod(QFile::encodeName(copies()).constData(), 0755), 0);
    ASSERT_EQ(::chmod(QFile::encodeName(file()).constData(), 0600), 0);
    unsigned half = 0;
    copy(1, [&](qint64 /*done*/, qint64 /*total*/) {
        half = rights(copies() + u'/' + nameOf(1) + QStringLiteral(".parte"));
        return true;
    });
    EXPECT_EQ(half, 0600U);
    EXPECT_EQ(rights(copies() + u'/' + nameOf(1)), 0600U);
    EXPECT_EQ(rights(copies()), 0700U);
    ASSERT_TRUE(QDir(copies()).removeRecursively());
    ASSERT_EQ(::chmod(QFile::encodeName(file()).constData(), 0640), 0);
    copy(1);
    EXPECT_EQ(rights(copies() + u'/' + nameOf(1)), 0640U);
    EXPECT_EQ(rights(copies()), 0750U);
}
#endif

TEST_F(DailyCopy, OneThatIsLeftOrFailsLeavesNothing) {
    addLegs(ample);
    copy(1);
    int asked = 0;
    copy(2, [&asked](qint64 done, qint64 total) {
        EXPECT_LT(done, total);
        return ++asked < 1;
    });
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(kept(), QStringList{nameOf(1)});

    // A page inside is damaged: the file opens all the same.
    writeOver(qint64{4096} * 200, QByteArray(4096, 'x'));
    archive.DatabaseApre(0);
    try {
        copy(3);
        ADD_FAILURE() << "copied what is damaged";
    } catch (const StoreError& error) {
        EXPECT_EQ(error.kind(), StoreError::Kind::Corrupt);
        EXPECT_EQ(error.path(), file());
    }
    EXPECT_EQ(kept(), QStringList{nameOf(1)});
    ASSERT_TRUE(QDir(copies()).removeRecursively());
    ASSERT_TRUE(QFile(copies()).open(QIODevice::WriteOnly)); // a file where the folder should be
    EXPECT_EQ(failureOf([&] { copy(4); }), StoreError::Kind::ReadOnly);
}

/// The window on this archive, on a day of May.
class WindowOnCopies : public DailyCopy {
  protected:
    void start(int day) {
        archive.close();
        clock.set(QDateTime(QDate(2026, 5, day), QTime(8, 0)));
        form = nuovaFinestra({.directory = directory.path(), .decimalMark = u'.', .versione = {}}, ports);
        loadWindow(*form);
    }
    [[nodiscard]] QString shown() {
        QStringList texts;
        for (const QJsonValue& box : boxes.exchange({}))
            texts += box[u"text"].toString();
        return texts.join(u'\n');
    }

    batch::QueuedBoxes boxes;
    batch::QueuedDialogs dialogs;
    batch::SetClock clock;
    batch::VisitedYield events;
    DetachedStarter programs;
    Ports ports{boxes, dialogs, clock, events, programs};
    std::unique_ptr<Form> form;
};

TEST_F(WindowOnCopies, AreMadeAtTheFirstStartOfADayAndCanBeStopped) {
    addLegs(ample);
    start(7);
    EXPECT_EQ(shown(), "");
    EXPECT_EQ(kept(), QStringList{nameOf(7)});
    form.reset();
    events.expect([this] {
        if (form->lblElaborazione.caption() != u"Copia dell'archivio" || !form->txtPerc.visible())
            return false;
        EXPECT_EQ(form->cmdEsce.caption(), "&Stop");
        boxes.enqueue(rispostaSi);
        form->cmdEsce.click();
        return true;
    });
    start(8);
    EXPECT_EQ(shown(), "Vuoi interrompere l'elaborazione?");
    EXPECT_EQ(kept(), QStringList{nameOf(7)});
    EXPECT_FALSE(form->chiusa);
    EXPECT_TRUE(form->cmdNuovo.reachable());
    EXPECT_EQ(form->cmdEsce.caption(), "&Esce");
    EXPECT_FALSE(form->txtPerc.visible());
}

TEST_F(WindowOnCopies, AreNamedWhereTheyHelp) {
    addLegs(ample);
    start(7);
    EXPECT_EQ(shown(), "");
    const QString where = QDir::toNativeSeparators(copies());

    // The archive is in use: no copy is needed.
    const std::unique_ptr<Form> first = std::move(form);
    start(7);
    const QString inUse = shown();
    EXPECT_TRUE(inUse.contains(u"è già aperto da un altro Vanzer") && !inUse.contains(where)) << inUse.toStdString();
    first->archivio.close();

    writeOver(qint64{4096} * 200, QByteArray(4096, 'x'));
    start(8);
    EXPECT_FALSE(form->chiusa);
    const QString damaged = shown();
    EXPECT_TRUE(damaged.contains(u"danneggiato") && damaged.contains(where) && damaged.contains(nameOf(7)))
        << damaged.toStdString();
    EXPECT_EQ(kept(), QStringList{nameOf(7)});
    form->archivio.close();

    writeOver(0, "that is no archive");
    start(9);
    EXPECT_TRUE(form->chiusa);
    const QString unreadable = shown();
    EXPECT_TRUE(unreadable.startsWith(QStringLiteral("Errore apertura database ") + file()));
    EXPECT_TRUE(unreadable.contains(where) && unreadable.contains(nameOf(7))) << unreadable.toStdString();
}

// A damaged index isn't waited for until tomorrow, nor told as damage: what it leads to is whole.
TEST_F(WindowOnCopies, AMissingArchiveIsAskedForAndABrokenIndexMended) {
    addLegs(2);
    start(7);
    form->archivio.close();
    breakIndexOfLegs(file());
    start(7);
    EXPECT_TRUE(shown().contains(u"Gli indici"));
    EXPECT_EQ(form->archivio.tabella("Itinerari").record.size(), 2U);
    form->archivio.close();

    struct Choice {
        int answer;
        std::optional<std::size_t> legs; ///< of the archive that is there afterwards
    };
    for (const Choice& choice : {Choice{rispostaAnnulla, std::nullopt}, {rispostaSi, 2}, {rispostaNo, 0}}) {
        ASSERT_TRUE(choice.answer == rispostaSi || !QFile::exists(file()) || QFile::remove(file()));
        boxes.enqueue(choice.answer);
        start(8);
        EXPECT_TRUE(shown().contains(nameOf(7)));
        EXPECT_EQ(form->chiusa, !choice.legs);
        EXPECT_EQ(QFile::exists(file()), choice.legs.has_value());
        if (choice.legs) {
            EXPECT_EQ(form->archivio.tabella("Itinerari").record.size(), *choice.legs);
        }
        form->archivio.close();
    }
}

} // namespace
} // namespace vanzer::store
