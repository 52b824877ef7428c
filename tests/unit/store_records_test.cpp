// Walking and changing records, commands, marks of use.
#include "store_fixture.h"

#include "store/query_sql.h"

namespace vanzer::store {
namespace {

const QString allLegs = QStringLiteral("SELECT * FROM Itinerari");

/// The ways to open the same legs that keep a walk in different states.
const QStringList waysToLegs{allLegs, QStringLiteral("SELECT * FROM Itinerari WHERE CodiceMeta = '000001'"),
                             QStringLiteral("SELECT * FROM Itinerari ORDER BY Sequenza")};

using StoreRecords = StoreTest;

TEST_F(StoreRecords, FieldsKeepWhatTheyCan) {
    Recordset& rs = open(allLegs);
    EXPECT_TRUE(rs.EOF_());
    EXPECT_EQ(archive.NumeroRecord(), 0);
    rs.AddNew();
    rs.write("localita", "123456789012345678901234567890X");
    rs.write("NOMESTRADA", "");
    rs.write(0, QString(5, u'0') + QString::fromUcs4(U"\U0001f690", 1)); // the last character doesn't fit whole
    rs.write("Start", "Vero");
    rs.writeYesNo("FineGiorno", true);
    rs.write("Flag1", "gone");
    rs.writeNull("Flag1");
    rs.Update();
    EXPECT_EQ(rs.RecordCount(), 1);
    rs.MoveFirst();
    const std::pair<const char*, const char*> kept[] = {{"Localita", "123456789012345678901234567890"},
                                                        {"NomeStrada", " "},
                                                        {"CodiceMeta", "00000"},
                                                        {"FineGiorno", "1"},
                                                        {"Start", "True"},
                                                        {"Sequenza", ""},
                                                        {"Flag1", ""}};
    for (const auto& [field, text] : kept)
        EXPECT_EQ(rs.testo(field), text) << field;
    EXPECT_TRUE(rs.siNo("FineGiorno") && rs.siNo("Start") && !rs.siNo("Fine"));
    EXPECT_TRUE(rs.hasValue("Fine")) << "nothing written is stored as no";
    EXPECT_FALSE(rs.hasValue("Sequenza") || rs.hasValue("Flag1"));
    EXPECT_EQ(rs.campo("MEDIA"), -1);
    EXPECT_EQ(rs.campo("flag2"), 12);
}

TEST_F(StoreRecords, MisuseIsTold) {
    addLegs(1);
    Recordset& rs = open(allLegs);
    EXPECT_EQ(failureOf([&] { rs.write("Flag1", "x"); }), StoreError::Kind::Other);
    EXPECT_EQ(failureOf([&] { rs.Update(); }), StoreError::Kind::Other);
    EXPECT_EQ(failureOf([&] { (void)rs.testo("Nulla"); }), StoreError::Kind::Other);
    rs.Delete();
    EXPECT_EQ(failureOf([&] { (void)rs.testo(0); }), StoreError::Kind::Other);
    EXPECT_EQ(failureOf([&] { rs.Edit(); }), StoreError::Kind::Other);
    EXPECT_FALSE(rs.EOF_());
    archive.close();
    EXPECT_TRUE(archive.Rs(Archive::slotAppoggio).EOF_());
    EXPECT_EQ(failureOf([&] { archive.RecordSetImposta(0, 1); }), StoreError::Kind::Other);
}

// Every record is seen once, however the walk changes its table: each one is moved in the order that is being walked,
// every third is deleted, and for every second a new one is added, which comes at the end.
TEST_F(StoreRecords, WritingWhileWalking) {
    addLegs(30);
    for (const QString& way : waysToLegs) {
        Comando undone(archive);
        QStringList seen;
        int added = 0;
        Recordset& rs = open(way);
        EXPECT_EQ(rs.RecordCount(), 30);
        for (; !rs.EOF_(); rs.MoveNext()) {
            const QString place = rs.testo("Localita");
            seen += place;
            if (place.startsWith(u'N'))
                continue;
            rs.Edit();
            rs.write("Sequenza", QStringLiteral("5000"));
            rs.write("CodiceMeta", QStringLiteral("000002"));
            rs.Update();
            EXPECT_EQ(rs.testo("Sequenza"), "5000");
            EXPECT_EQ(rs.testo("Localita"), place);
            if (seen.size() % 3 == 0)
                rs.Delete();
            if (seen.size() % 2 == 0) {
                rs.AddNew();
                rs.write("Localita", QStringLiteral("N%1").arg(added++));
                rs.Update();
            }
        }
        QStringList expected;
        for (int i = 0; i < 30; ++i)
            expected += QStringLiteral("P%1").arg(i);
        for (int i = 0; i < 15; ++i)
            expected += QStringLiteral("N%1").arg(i);
        EXPECT_EQ(seen.join(u' ').toStdString(), expected.join(u' ').toStdString()) << way.toStdString();
        EXPECT_EQ(rs.RecordCount(), 35) << way.toStdString();
        EXPECT_EQ(open(allLegs).RecordCount(), 35) << way.toStdString();
    }
    EXPECT_EQ(open(allLegs).RecordCount(), 30);
}

TEST_F(StoreRecords, AddedRecordsLieInTheSetAtOnce) {
    addLegs(3);
    for (const QString& way : waysToLegs) {
        Comando undone(archive);
        Recordset& rs = open(way);
        const auto add = [&rs](const QString& place) {
            rs.AddNew();
            rs.write("Localita", place); // it isn't what the query asks for
            rs.Update();
        };
        add("A");
        EXPECT_EQ(rs.RecordCount(), 4);
        rs.MoveLast();
        EXPECT_EQ(rs.testo("Localita"), "A");
        rs.Delete(); // the next one takes over its identity
        add("B");
        rs.MoveNext();
        EXPECT_FALSE(rs.EOF_());
        rs.MoveFirst();
        EXPECT_EQ(rs.testo("Localita"), "P0");
        QStringList seen;
        for (; !rs.EOF_(); rs.MoveNext())
            seen += rs.testo("Localita");
        EXPECT_EQ(seen.join(u' '), "P0 P1 P2 B") << way.toStdString();
        EXPECT_EQ(rs.RecordCount(), 4);
    }
}

TEST_F(StoreRecords, OtherSetsOfATableStepAside) {
    addLegs(5);
    for (const QString& way : waysToLegs) {
        Comando undone(archive);
        Recordset& walked = open(way, 2);
        walked.MoveNext();
        EXPECT_EQ(walked.testo("Localita"), "P1");
        for (Recordset& other = open("SELECT * FROM Itinerari WHERE Localita = 'P1'"); !other.EOF_();
             other.MoveNext()) {
            other.Edit();
            other.write("Localita", "CHANGED");
            other.Update();
        }
        EXPECT_EQ(walked.testo("Localita"), "P1");
        walked.MoveNext();
        EXPECT_EQ(walked.testo("Localita"), "P2");
    }
}

/// The archive's file with one page after the other damaged under the open archive, which has read nothing of it yet.
class DamagedPages {
  public:
    DamagedPages(Database& database, const QString& path) : database_(database), file_(path) {
        static_cast<void>(file_.open(QIODevice::ReadWrite | QIODevice::Unbuffered));
        whole_ = file_.readAll();
    }
    [[nodiscard]] int pages() const { return static_cast<int>(whole_.size() / pageSize); }
    void damage(int page) { put(page, QByteArray(pageSize, 0)); }
    void mend(int page) { put(page, whole_.mid(qsizetype{page} * pageSize, pageSize)); }

  private:
    static constexpr int pageSize = 4096; // bytes

    void put(int page, const QByteArray& bytes) {
        file_.seek(qint64{page} * pageSize);
        file_.write(bytes);
        const StatementLease forget = database_.prepare("PRAGMA shrink_memory");
        forget->step();
    }

    Database& database_;
    QFile file_;
    QByteArray whole_;
};

QStringList placesOf(Recordset& legs) {
    QStringList places;
    for (; !legs.EOF_(); legs.MoveNext())
        places += legs.testo("Localita");
    return places;
}

// Whatever a walk does when a page can't be read, it is at its end then, and can be begun anew.
TEST_F(StoreRecords, AWalkThatFailsIsAtItsEnd) {
    addLegs(400);
    const auto write = [this](Recordset& legs) {
        const Comando undone(archive);
        Recordset other(*archive.Db(0), {TabelleNomi(Itinerari), {}, {}});
        other.AddNew();
        other.Update();
        placesOf(legs);
    };
    const struct {
        const char* name;
        std::function<void(Recordset&)> work;
        bool begun = true;
        bool moves = true; ///< a failure is one of the walk itself
    } works[] = {{"next", [](Recordset& legs) { placesOf(legs); }},
                 {"first", [](Recordset& legs) { legs.MoveFirst(); }, false},
                 {"last", [](Recordset& legs) { legs.MoveLast(); }},
                 {"write", write, true, false}};
    DamagedPages file(*archive.Db(0), path(directory, "Vanzer.mdb"));
    for (const QString& way : waysToLegs) {
        const QStringList all = placesOf(open(way, 2));
        ASSERT_EQ(all.size(), 400);
        for (const auto& [name, work, begun, moves] : works) {
            int failures = 0;
            for (int page = 1; page < file.pages(); ++page) {
                SCOPED_TRACE(testing::Message() << way.toStdString() << ", " << name << ", page " << page);
                Recordset& legs = open(way, 2);
                if (begun)
                    legs.MoveNext();
                file.damage(page);
                if (const auto failure = failureOf([&, &work = work] { work(legs); })) {
                    ++failures;
                    EXPECT_EQ(failure, StoreError::Kind::Corrupt);
                    EXPECT_TRUE(!moves || legs.EOF_());
                    EXPECT_TRUE(!legs.EOF_() || failureOf([&] { (void)legs.testo("Localita"); }));
                    (void)failureOf([&] { placesOf(legs); });
                }
                file.mend(page);
                legs.MoveFirst();
                EXPECT_EQ(placesOf(legs), all);
            }
            EXPECT_GT(failures, 0) << way.toStdString() << name;
        }
    }
}

TEST_F(StoreRecords, CommandsAreWholeOrNothing) {
    constexpr struct {
        const char* steps; ///< ( begin, w write, ) commit, x roll back
        int stored;
        bool fails;
    } rows[] = {{"ww", 2, false},        {"()", 0, false},      {"(ww)", 2, false},  {"(wwx", 0, false},
                {"(w(w)w)", 3, false},   {"(w(w)wx", 0, false}, {"(w(wx)", 0, true}, {"(w(wxw", 0, true},
                {"(w)(wx(w)", 2, false}, {")", 0, true}};
    for (const auto& row : rows) {
        const auto failure = failureOf([&] {
            for (const char* step = row.steps; *step != 0; ++step) {
                switch (*step) {
                case '(': archive.beginCommand(); break;
                case ')': archive.commitCommand(); break;
                case 'x': archive.rollbackCommand(); break;
                default: open(allLegs).AddNew(); archive.Rs(Archive::slotAppoggio).Update();
                }
            }
        });
        EXPECT_EQ(failure.has_value(), row.fails) << row.steps;
        archive.rollbackCommand(); // what the failure left open
        EXPECT_FALSE(archive.Db(0)->inTransaction()) << row.steps;
        EXPECT_EQ(open(allLegs).RecordCount(), row.stored) << row.steps;
        archive.CancellaTabella(Itinerari, QString(), QString());
    }
}

TEST_F(StoreRecords, AFullDiskSpoilsTheCommandAndNothingElse) {
    addLegs(10);
    const StatementLease limit = archive.Db(0)->prepare("PRAGMA max_page_count=40");
    limit->step();
    const auto failure = failureOf([&] { addLegs(10'000); });
    EXPECT_EQ(failure, StoreError::Kind::Full);
    archive.beginCommand();
    EXPECT_EQ(failureOf([&] { addLegs(10'000); }), StoreError::Kind::Full);
    const auto again = failureOf([&] { addLegs(1); });
    EXPECT_EQ(again, StoreError::Kind::Full); // the outer command has failed, whatever its caller overlooks
    EXPECT_EQ(failureOf([&] { archive.commitCommand(); }), StoreError::Kind::Full);
    EXPECT_EQ(open(allLegs).RecordCount(), 10);
    addLegs(1);
    EXPECT_EQ(open(allLegs).RecordCount(), 11);
}

TEST_F(StoreRecords, DeletingByPattern) {
    constexpr struct {
        const char* field;
        const char* value;
        int left;
    } rows[] = {{"CodiceMeta", "000001", 0},
                {"codicemeta", "000002", 12},
                {"Localita", "P1*", 9},
                {"Localita", "p1", 11},
                {"", "", 0}};
    using Progress = std::vector<std::pair<qint64, qint64>>;
    for (const auto& row : rows) {
        Comando undone(archive);
        addLegs(12);
        Progress progress;
        archive.CancellaTabella(Itinerari, row.field, row.value,
                                [&](qint64 done, qint64 total) { progress.emplace_back(done, total); });
        const qint64 deleted = 12 - row.left;
        EXPECT_TRUE(archive.Rs(Archive::slotAppoggio).EOF_());
        EXPECT_EQ(archive.NumeroRecord(), deleted);
        EXPECT_EQ(open(allLegs).RecordCount(), row.left) << row.field << row.value;
        EXPECT_EQ(progress, deleted == 0 ? Progress() : (Progress{{0, deleted}, {deleted, deleted}}));
    }
}

TEST_F(StoreRecords, MarksOfUseAreSetAndTakenBack) {
    std::vector<std::pair<QString, QString>> entries;
    entries.reserve(20'000);
    for (int i = 0; i < 20'000; ++i)
        entries.emplace_back(QStringLiteral("P%1").arg(i), QStringLiteral("x"));
    addGuide(entries);
    const QString unmarked = QStringLiteral("SELECT * FROM GuidaCitta WHERE FlagVisto = '0'");
    EXPECT_EQ(open(unmarked).RecordCount(), 0); // new entries have no mark at all
    archive.putMarksBack({});
    EXPECT_EQ(open(unmarked).RecordCount(), 20'000);

    InsiemeDiRighe used;
    InsiemeDiRighe fewer;
    Recordset& walked = open("SELECT * FROM GuidaCitta WHERE Localita LIKE 'P7*' AND FlagVisto = '0'", 3);
    for (int i = 0; i < 10; ++i, walked.MoveNext()) {
        used.insert(walked.rowid());
        if (i > 0)
            fewer.insert(walked.rowid());
    }
    archive.putMarksBack(used);
    EXPECT_FALSE(walked.EOF_());
    archive.putMarksBack(fewer);
    EXPECT_EQ(open(unmarked).RecordCount(), 19'991);
    for (Recordset& marked = open("SELECT * FROM GuidaCitta WHERE FlagVisto = '1'"); !marked.EOF_(); marked.MoveNext())
        EXPECT_TRUE(fewer.contains(marked.rowid()));
    archive.putMarksBack({});
    EXPECT_EQ(open(unmarked).RecordCount(), 20'000);
}

TEST_F(StoreRecords, WhatTheGuideKnowsIsReadOnceUntilItIsWritten) {
    addGuide({{QStringLiteral("L'Aquila"), QStringLiteral("Duomo")}, {QStringLiteral("Arco"), QStringLiteral("Area")}});
    const auto read = [this] {
        QStringList found;
        for (const char* place : {"Arco", "ARCO", "Bari"}) {
            for (const VoceGuida& entry : archive.guida().readPlace(QString::fromLatin1(place)))
                found += entry.descrizione;
        }
        for (const VoceGuida& entry : archive.guida().readPattern(QStringLiteral("L?Aquila")))
            found += entry.descrizione;
        return found.join(u',').toStdString();
    };
    const auto change = [this](const char* text) {
        Recordset entry(*archive.Db(0), {TabelleNomi(GuidaCitta), {}, {}});
        entry.MoveLast();
        entry.Edit();
        entry.write("Descrizione", QString::fromLatin1(text));
        entry.Update();
    };
    EXPECT_EQ(read(), "Area,Area,Duomo");
    archive.putMarksBack({1, 2});
    const qint64 before = archive.Db(0)->lavoro();
    EXPECT_EQ(read(), "Area,Area,Duomo");
    EXPECT_EQ(archive.Db(0)->lavoro(), before) << "marks of use are no reason to read again";
    change("Lago");
    EXPECT_EQ(read(), "Lago,Lago,Duomo");
    {
        Comando undone(archive);
        change("Rocca");
        EXPECT_EQ(read(), "Rocca,Rocca,Duomo");
    }
    EXPECT_EQ(read(), "Lago,Lago,Duomo");
    archive.CancellaTabella(GuidaCitta, QStringLiteral("Localita"), QStringLiteral("Arco"));
    EXPECT_EQ(read(), "Duomo");
    archive.close();
    archive.openArchive();
    EXPECT_EQ(read(), "Duomo");
}

} // namespace
} // namespace vanzer::store
