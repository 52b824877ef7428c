// SPDX-License-Identifier: MIT
// Walking and changing records, commands, marks of use.
#include "store_fixture.h"

#include "store/query_sql.h"

namespace vanzer::store {
namespace {

const QString allLegs = QStringLiteral("SELECT * FROM Itinerari");

/// Ways to open the same legs that differ in how a walk keeps its state.
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

/// Walks by steps: n next, f first, l last, c count, a adds N0, N1 …, e moves the record in every order, d deletes, o
/// another set changes P1. Returns the places it reached, and the counts.
std::string walked(Recordset& legs, const char* steps, const std::function<void()>& other) {
    std::string seen;
    for (int added = 0; *steps != 0; ++steps) {
        switch (*steps) {
        case 'n': legs.MoveNext(); break;
        case 'f': legs.MoveFirst(); break;
        case 'l': legs.MoveLast(); break;
        case 'd': legs.Delete(); break;
        case 'o': other(); break;
        case 'c': seen += std::to_string(legs.RecordCount()) + ' '; break;
        case 'e':
            legs.Edit();
            legs.write("Sequenza", "5000");
            legs.write("CodiceMeta", "000002");
            legs.Update();
            EXPECT_EQ(legs.testo("Sequenza"), "5000");
            break;
        default:
            legs.AddNew();
            legs.write("Localita", QStringLiteral("N%1").arg(added++)); // so that the query doesn't find it
            legs.Update();
        }
        if (QByteArrayView("nfleo").contains(*steps))
            seen += legs.EOF_() ? "- " : legs.testo("Localita").toStdString() + ' ';
    }
    return seen;
}

// Every record is seen once, even if the walk or another set changes the table. Added records come at the end.
TEST_F(StoreRecords, AWalkKeepsItsOrderWhateverIsWritten) {
    addLegs(4);
    constexpr std::pair<const char*, const char*> walks[] = {
        {"ceanedanenedannnnc", "4 P0 P1 P1 P2 P2 P3 P3 N0 N1 N2 - 5 "},
        {"acldancfnnnnn", "5 N0 N1 5 P0 P1 P2 P3 N1 - "}, // the second added record gets the identity of the first
        {"aalfnnnndnn", "N1 P0 P1 P2 P3 N0 N1 - "},
        {"nonon", "P1 P1 P2 P2 P3 "},
        {"lana", "P3 N0 "},
    };
    const auto changeP1 = [this] {
        for (Recordset& set = open("SELECT * FROM Itinerari WHERE Localita = 'P1'"); !set.EOF_(); set.MoveNext()) {
            set.Edit();
            set.write("Localita", "CHANGED");
            set.Update();
        }
    };
    for (const QString& way : waysToLegs) {
        for (const auto& [steps, places] : walks) {
            const Comando undone(archive);
            EXPECT_EQ(walked(open(way, 2), steps, changeP1), places) << way.toStdString() << ' ' << steps;
        }
        EXPECT_EQ(open(allLegs).RecordCount(), 4);
    }
}

QStringList placesOf(Recordset& legs) {
    QStringList places;
    for (; !legs.EOF_(); legs.MoveNext())
        places += legs.testo("Localita");
    return places;
}

// If a page of the file can't be read, a walk is at its end, and can be started again.
TEST_F(StoreRecords, AWalkThatFailsIsAtItsEnd) {
    addLegs(400);
    constexpr int pageSize = 4096; // bytes
    QFile file(path(directory, "Vanzer.mdb"));
    ASSERT_TRUE(file.open(QIODevice::ReadWrite | QIODevice::Unbuffered));
    const QByteArray whole = file.readAll();
    // The archive hasn't read these pages yet.
    const auto put = [&](qsizetype page, const QByteArray& bytes) {
        ASSERT_TRUE(file.seek(page * pageSize) && file.write(bytes) == pageSize);
        archive.Db(0)->prepare("PRAGMA shrink_memory")->step();
    };
    const auto write = [this](Recordset& legs) {
        const Comando undone(archive);
        Recordset other(*archive.Db(0), {TabelleNomi(Itinerari), {}, {}});
        other.AddNew();
        other.Update();
        placesOf(legs);
    };
    const std::pair<std::string, std::function<void(Recordset&)>> works[] = {
        {"next", [](Recordset& legs) { placesOf(legs); }},
        {"first", [](Recordset& legs) { legs.MoveFirst(); }},
        {"last", [](Recordset& legs) { legs.MoveLast(); }},
        {"write", write}};
    for (const QString& way : waysToLegs) {
        const QStringList all = placesOf(open(way, 2));
        ASSERT_EQ(all.size(), 400);
        for (const auto& [name, work] : works) {
            int failures = 0;
            for (qsizetype page = 1; page < whole.size() / pageSize; ++page) {
                SCOPED_TRACE(testing::Message() << way.toStdString() << ", " << name << ", page " << page);
                Recordset& legs = open(way, 2);
                if (name != "first")
                    legs.MoveNext();
                put(page, QByteArray(pageSize, 0));
                if (const auto failure = failureOf([&, &work = work] { work(legs); })) {
                    ++failures;
                    EXPECT_EQ(failure, StoreError::Kind::Corrupt);
                    EXPECT_TRUE(legs.EOF_() || name == "write") << "the write's failure isn't one of the walk";
                    EXPECT_TRUE(!legs.EOF_() || failureOf([&] { (void)legs.testo("Localita"); }));
                    (void)failureOf([&] { placesOf(legs); });
                }
                put(page, whole.sliced(page * pageSize, pageSize));
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
        archive.rollbackCommand(); // rolls back what the failure left open
        EXPECT_FALSE(archive.Db(0)->inTransaction()) << row.steps;
        EXPECT_EQ(open(allLegs).RecordCount(), row.stored) << row.steps;
        archive.CancellaTabella(Itinerari, QString(), QString());
    }
}

TEST_F(StoreRecords, AFullDiskSpoilsTheCommandAndNothingElse) {
    addLegs(10);
    const StatementLease limit = archive.Db(0)->prepare("PRAGMA max_page_count=40");
    limit->step();
    const auto adds = [this](int legs) { return failureOf([this, legs] { addLegs(legs); }); };
    EXPECT_EQ(adds(10'000), StoreError::Kind::Full);
    archive.beginCommand();
    EXPECT_EQ(adds(10'000), StoreError::Kind::Full);
    EXPECT_EQ(adds(1), StoreError::Kind::Full); // the outer command has failed, even if its caller ignores that
    EXPECT_EQ(failureOf([&] { archive.commitCommand(); }), StoreError::Kind::Full);
    EXPECT_EQ(open(allLegs).RecordCount(), 10);
    EXPECT_EQ(adds(1), std::nullopt);
    EXPECT_EQ(open(allLegs).RecordCount(), 11);
}

TEST_F(StoreRecords, DeletingByPattern) {
    constexpr struct {
        const char* field;
        const char* value;
        int left;
        const char* progress;
    } rows[] = {{"CodiceMeta", "000001", 0, "0/12 12/12 "},
                {"codicemeta", "000002", 12, ""},
                {"Localita", "P1*", 9, "0/3 3/3 "},
                {"", "", 0, "0/12 12/12 "}};
    for (const auto& row : rows) {
        const Comando undone(archive);
        addLegs(12);
        std::string progress;
        archive.CancellaTabella(Itinerari, row.field, row.value, [&progress](qint64 done, qint64 total) {
            progress += std::to_string(done) + '/' + std::to_string(total) + ' ';
        });
        EXPECT_EQ(progress, row.progress);
        EXPECT_TRUE(archive.Rs(Archive::slotAppoggio).EOF_());
        EXPECT_EQ(archive.NumeroRecord(), 12 - row.left);
        EXPECT_EQ(open(allLegs).RecordCount(), row.left) << row.field << row.value;
    }
}

TEST_F(StoreRecords, MarksOfUseAreSetAndTakenBack) {
    addGuide({{"P", "1"}, {"Q", "2"}, {"P", "3"}, {"P", "4"}});
    const auto marks = [this] { return texts("SELECT * FROM GuidaCitta", "FlagVisto").join(u' ').toStdString(); };
    EXPECT_EQ(marks(), "- - - -");
    Recordset& walked = open("SELECT * FROM GuidaCitta WHERE Localita = 'P'", 3);
    const std::pair<InsiemeDiRighe, const char*> uses[] = {
        {{}, "0 0 0 0"}, {{1, 3}, "1 0 1 0"}, {{3, 4}, "0 0 1 1"}, {{}, "0 0 0 0"}};
    for (const auto& [used, marked] : uses) {
        archive.putMarksBack(used);
        EXPECT_EQ(marks(), marked);
        EXPECT_FALSE(walked.EOF_());
    }
}

TEST_F(StoreRecords, WhatTheGuideKnowsIsReadOnceUntilItIsWritten) {
    addGuide({{"L'Aquila", "Duomo"}, {"Arco", "Area"}});
    const auto read = [this] {
        QStringList found;
        for (const char* place : {"Arco", "ARCO", "Bari"}) {
            for (const VoceGuida& entry : archive.guida().readPlace(place))
                found += entry.descrizione;
        }
        for (const VoceGuida& entry : archive.guida().readPattern("L?Aquila"))
            found += entry.descrizione;
        return found.join(u',').toStdString();
    };
    const auto change = [this](const char* text) {
        Recordset entry(*archive.Db(0), {TabelleNomi(GuidaCitta), {}, {}});
        entry.MoveLast();
        entry.Edit();
        entry.write("Descrizione", text);
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
        const Comando undone(archive);
        change("Rocca");
        EXPECT_EQ(read(), "Rocca,Rocca,Duomo");
    }
    EXPECT_EQ(read(), "Lago,Lago,Duomo");
    archive.CancellaTabella(GuidaCitta, "Localita", "Arco");
    EXPECT_EQ(read(), "Duomo");
    archive.close();
    archive.openArchive();
    EXPECT_EQ(read(), "Duomo");
}

} // namespace
} // namespace vanzer::store
