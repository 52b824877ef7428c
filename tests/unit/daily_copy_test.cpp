// The copy of the day: which ones are kept, when there is none, and what the user is told of them.
#include "store_fixture.h"

#include <QDir>

#include "batch/queue_ports.h"
#include "batch/session.h"
#include "store/daily_copy.h"
#include "window/startup.h"

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
        copiaDelGiorno(*archive.Db(0), QDate(2026, 5, day), progress);
    }

    void writeOver(qint64 at, const QByteArray& bytes) {
        archive.chiudi();
        QFile f(file());
        ASSERT_TRUE(f.open(QIODevice::ReadWrite) && f.seek(at) && f.write(bytes) == bytes.size());
    }
};

TEST_F(DailyCopy, TheTenNewestAreKept) {
    addLegs(3);
    const auto stored = archive.tabella("Itinerari").record;
    ASSERT_TRUE(QDir().mkpath(copies()));
    const QStringList own{"Vanzer 2026-05-99.mdb", "Vanzer buono.mdb", "appunti.txt"};
    for (const QString& name : own)
        ASSERT_TRUE(QFile(copies() + u'/' + name).open(QIODevice::WriteOnly));
    ASSERT_TRUE(QFile(copies() + QStringLiteral("/Vanzer 2026-05-03.mdb.parte")).open(QIODevice::WriteOnly));
    for (int day = 1; day <= 13; ++day)
        copy(day);
    QStringList expected;
    for (int day = 4; day <= 13; ++day)
        expected += nameOf(day);
    EXPECT_EQ(kept(), expected + own);

    addLegs(1);
    copy(13); // the day has its copy
    QDir restored(directory.filePath(QStringLiteral("altrove")));
    ASSERT_TRUE(restored.mkpath(QStringLiteral(".")));
    ASSERT_TRUE(QFile::copy(copies() + u'/' + nameOf(13), restored.filePath(QStringLiteral("Vanzer.mdb"))));
    Archive other(restored.path());
    other.apriArchivio();
    EXPECT_EQ(other.tabella("Itinerari").record, stored);

    copy(2); // a clock that was put back
    EXPECT_TRUE(kept().contains(nameOf(2)));
    EXPECT_EQ(kept().size(), copieTenute + own.size());
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
        archive.chiudi();
        clock.set(QDateTime(QDate(2026, 5, day), QTime(8, 0)));
        form = nuovaFinestra({.directory = directory.path(), .decimalMark = u'.', .versione = {}}, ports);
        caricaFinestra(*form);
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
    first->archivio.chiudi();

    writeOver(qint64{4096} * 200, QByteArray(4096, 'x'));
    start(8);
    EXPECT_FALSE(form->chiusa);
    const QString damaged = shown();
    EXPECT_TRUE(damaged.contains(u"danneggiato") && damaged.contains(where) && damaged.contains(nameOf(7)))
        << damaged.toStdString();
    EXPECT_EQ(kept(), QStringList{nameOf(7)});
    form->archivio.chiudi();

    writeOver(0, "that is no archive");
    start(9);
    EXPECT_TRUE(form->chiusa);
    const QString unreadable = shown();
    EXPECT_TRUE(unreadable.startsWith(QStringLiteral("Errore apertura database ") + file()));
    EXPECT_TRUE(unreadable.contains(where) && unreadable.contains(nameOf(7))) << unreadable.toStdString();
}

} // namespace
} // namespace vanzer::store
