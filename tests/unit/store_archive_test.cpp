// SPDX-License-Identifier: MIT
// The archive's file: creation, check, rebuild, lock, damage, crashes.
#include "store_fixture.h"

#include <csignal>
#include <map>

#include <QDir>
#include <QFileInfo>

#include <sys/wait.h>
#include <unistd.h>

#include "store/kept_archive.h"

namespace vanzer::store {
namespace {

/// A program that deletes all legs and dies in mid-command, after a part has reached the file.
void dieDeleting(const QString& folder) {
    const pid_t child = fork();
    if (child == 0) {
        Archive dying(folder);
        dying.openArchive();
        dying.Db(0)->prepare("PRAGMA cache_size=5")->step();
        dying.beginCommand();
        dying.CancellaTabella(Itinerari, {}, {});
        ::raise(SIGKILL);
    }
    int status = 0;
    EXPECT_EQ(waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL);
}

class StoreArchive : public StoreTest {
  protected:
    /// Makes the archive anew with these records in another table TipoGuida. An empty descriptor leaves the table out.
    void makeOld(const QString& descriptor, const std::vector<std::map<QString, QString>>& records) {
        archive.close();
        QFile::remove(file());
        const auto old = Database::create(file());
        for (int t = primaTabella; t <= ultimaTabella; ++t) {
            const QString fields = t == TipoGuida ? descriptor : TabelleCampi(t);
            if (!fields.isEmpty())
                old->createTable(TabelleNomi(t), campiDescritti(fields));
        }
        for (const auto& record : records) {
            Recordset rs(*old, {TabelleNomi(TipoGuida), {}, {}});
            rs.AddNew();
            for (const auto& [field, text] : record) {
                if (rs.campo(field) >= 0)
                    rs.write(field, text);
            }
            rs.Update();
        }
    }

    [[nodiscard]] QStringList filesLeft() const { return QDir(directory.path()).entryList(QDir::Files); }
};

TEST_F(StoreArchive, IsRebuiltWhereATableDiffers) {
    const struct {
        QString descriptor; ///< of TipoGuida in the old file
        bool rebuilt;
        QString records; ///< records after the rebuild: all fields, "-" for no value
        QString code = "01";
    } rows[] = {
        {"CodiceGuida[T=2],Descrizione[T=32],TempoObbligatorio[Y]", false, "01 Ott\u00e0mo True"},
        {"CodiceGuida[T=2],Descrizione[T=32],TempoObbligatorio[Y],Altro[T=9]", false, "01 Ott\u00e0mo True -"},
        {"descrizione[T=32],CODICEGUIDA[T=2],TempoObbligatorio[Y]", false, "Ott\u00e0mo 01 True"},
        {"CodiceGuida[T=2],Descrizione[T=32],TempoObbligatorio[I]", false, "01 Ott\u00e0mo 1"},
        {"CodiceGuida[T=2],Descrizione[T=32]", true, "01 Ott\u00e0mo False"},
        {"CodiceGuida[T=2]", true, "01 - False"},
        {"CodiceGuida[T=2],Descrizione[T=31],TempoObbligatorio[Y]", true, "01 Ott\u00e0mo True"},
        {"CodiceGuida[T=6],Descrizione[T=32],TempoObbligatorio[Y]", true, "01 Ott\u00e0mo True", "01xxxx"},
        {"CodiceGuida[I],Descrizione[T=32]", true, "1 Ott\u00e0mo False"},
        {"", true, ""}, // a missing table
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.descriptor.toStdString());
        const std::map<QString, QString> record{
            {"CodiceGuida", row.code}, {"Descrizione", "Ott\u00e0mo"}, {"TempoObbligatorio", "1"}};
        makeOld(row.descriptor, std::vector(row.descriptor.isEmpty() ? 0U : 1U, record));
        const QString leftover = path(directory, "DBTemp.mdb");
        write(leftover, "half a copy");
        archive.openArchive();
        EXPECT_FALSE(archive.Rettifica);
        EXPECT_EQ(QFileInfo::exists(leftover), !row.rebuilt);
        QStringList found;
        for (Recordset& rs = archive.Rs(TipoGuida); !rs.EOF_(); rs.MoveNext()) {
            for (int i = 0; i < rs.count(); ++i)
                found += rs.hasValue(i) ? rs.testo(i) : QStringLiteral("-");
        }
        EXPECT_EQ(found.join(u' '), row.records);
        EXPECT_EQ(archive.indici("TipoGuida").join(u',').toLower(), "codiceguida");
    }
}

TEST_F(StoreArchive, WhatIsNoArchiveIsLeftAsItIs) {
    archive.close();
    QByteArray damaged = contents(file());
    damaged.replace(0, 16, "not what we want");
    const QByteArray whole = contents(file());
    QByteArray foreign = whole;
    foreign.replace(68, 4, "Else");
    for (const QByteArray& bytes : {QByteArray(), whole.left(511), QByteArray(5000, 'x'), damaged, foreign}) {
        write(file(), bytes);
        EXPECT_EQ(failureOf([&] { archive.openArchive(); }), StoreError::Kind::Corrupt);
        EXPECT_EQ(archive.PercorsoDatabase, file());
        EXPECT_EQ(contents(file()), bytes);
        EXPECT_EQ(filesLeft(), QStringList{"Vanzer.mdb"});
    }
}

TEST_F(StoreArchive, PlacesWhereNothingCanBeOpened) {
    Archive nowhere(path(directory, "missing"));
    EXPECT_EQ(failureOf([&] { nowhere.openArchive(); }), StoreError::Kind::NotFound);
    EXPECT_EQ(failureOf([&] { (void)Database::open(path(directory, "none.mdb")); }), StoreError::Kind::NotFound);
    EXPECT_FALSE(QFileInfo::exists(path(directory, "none.mdb"))); // opening never makes a file
    EXPECT_EQ(failureOf([&] { (void)Database::open(directory.path()); }), StoreError::Kind::Io);
    archive.close();
    QFile::setPermissions(directory.path(), QFile::ReadOwner | QFile::ExeOwner);
    if (!QFileInfo(directory.path()).isWritable()) { // the administrator may write anywhere
        EXPECT_EQ(failureOf([&] { archive.openArchive(); }), StoreError::Kind::ReadOnly);
    }
    QFile::setPermissions(directory.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

// The journal of a killed program is rolled back into its own archive only, never into another one in its place.
TEST_F(StoreArchive, OnlyItsOwnJournalIsRolledBack) {
    addLegs(2'000);
    const QString copy = path(directory, "copia.mdb");
    ASSERT_TRUE(makeWholeCopy(*archive.Db(0), copy, {}));
    addLegs(1'000);
    archive.close();
    dieDeleting(directory.path());
    const QString journal = file() + "-journal";
    const QByteArray left = contents(journal);
    ASSERT_GT(left.size(), 10'000) << "nothing was half written";
    archive.openArchive();
    EXPECT_EQ(open("SELECT * FROM Itinerari").RecordCount(), 3'000);
    addLegs(1);
    addLegs(1);
    archive.close();
    const QByteArray later = contents(file());
    for (const QByteArray& other : {contents(copy), later}) {
        write(file(), other);
        write(journal, left);
        EXPECT_EQ(archive.openArchive().giornaleEstraneo, journal + ".estraneo");
        EXPECT_EQ(contents(journal + ".estraneo"), left);
        EXPECT_EQ(open("SELECT * FROM Itinerari").RecordCount(), other == later ? 3'002 : 2'000);
        EXPECT_EQ(archive.Db(0)->check(), Database::Salute::Sano);
        archive.close();
        EXPECT_TRUE(QFile::remove(journal + ".estraneo"));
    }
}

// Without a check, the program could write on into a file that was replaced or removed, or into another archive.
TEST_F(StoreArchive, AFileThatIsAnotherNowIsToldAndLeft) {
    addLegs(2);
    ASSERT_TRUE(QFile::rename(file(), path(directory, "altrove.mdb")));
    EXPECT_EQ(failureOf([&] { addLegs(1); }), StoreError::Kind::NotFound);
    ASSERT_TRUE(QFile::rename(path(directory, "altrove.mdb"), file()));
    addLegs(1);
    QTemporaryDir elsewhere;
    const QString other = path(elsewhere, "Vanzer.mdb");
    Archive(elsewhere.path()).openArchive();
    const QByteArray ours = contents(file());
    QByteArray sameSize = contents(other);
    sameSize.resize(ours.size());
    for (const QByteArray& bytes :
         {sameSize, ours.left(ours.size() - 4096), QByteArray(ours.size(), '\0'), QByteArray()}) {
        write(file(), bytes);
        for (int again = 0; again < 2; ++again)
            EXPECT_EQ(failureOf([&] { addLegs(1); }), StoreError::Kind::Replaced);
        EXPECT_EQ(contents(file()), bytes);
        write(file(), ours);
    }
    addLegs(1);
    EXPECT_EQ(open("SELECT * FROM Itinerari").RecordCount(), 4);
}

TEST_F(StoreArchive, AFileOfAnotherVersionIsRefusedOrCarriedOver) {
    archive.close();
    QByteArray newer = contents(file());
    newer[71] = 2;
    write(file(), newer);
    EXPECT_EQ(failureOf([&] { archive.openArchive(); }), StoreError::Kind::Newer);
    EXPECT_EQ(contents(file()), newer);
    makeOld("Descrizione[T=32],CodiceGuida[T=2]", {}); // a rebuild would make codes of the names
    const QByteArray reordered = contents(file());
    EXPECT_EQ(failureOf([&] { archive.openArchive(); }), StoreError::Kind::Unlike);
    EXPECT_EQ(contents(file()), reordered);

    makeOld("Nota[T=9],CodiceGuida[T=2],Descrizione[T=40]",
            {{{"Nota", "bella"}, {"CodiceGuida", "01"}, {"Descrizione", QString(40, u'x')}}, {}});
    {
        const auto old = Database::open(file());
        old->changeSchema("CREATE TABLE Extra(a TEXT, b INTEGER, c AS (b + 1))");
        old->changeSchema("INSERT INTO Extra(a, b) VALUES('x', 7)");
        old->changeSchema("CREATE TRIGGER t AFTER INSERT ON TipoGuida BEGIN DELETE FROM TipoGuida; END");
    }
    const auto opening = archive.openArchive();
    EXPECT_EQ(opening.valoriTagliati, 1);
    const auto record = archive.tabella("TipoGuida").record.at(0);
    using Cell = TabellaLetta::Cella;
    EXPECT_EQ(record, (std::vector<Cell>{"01", QString(32, u'x'), false, "bella"}));
    EXPECT_EQ(archive.tabella("TipoGuida").record.at(1), (std::vector<Cell>{Cell(), Cell(), false, Cell()}));
    EXPECT_EQ(archive.tabella("Extra").record.at(0), (std::vector<Cell>{"x", "7"}));
    archive.close();
    EXPECT_TRUE(Database::open(opening.archivioDiPrima)->intatto()); // kept for ten starts
    for (int start = 1; start <= avviiTenuti; ++start) {
        EXPECT_EQ(QDir(directory.path() + "/Copie").count(), 3U) << start;
        countStart(file());
    }
    EXPECT_EQ(QDir(directory.path() + "/Copie").count(), 2U);
}

TEST_F(StoreArchive, IndexesThatDontAgreeAreMadeAnew) {
    addLegs(2);
    archive.close();
    archive.openArchive();
    EXPECT_TRUE(archive.Db(0)->chiusoInOrdine());
    archive.close();
    breakIndexOfLegs(file());
    archive.openArchive();
    const QString legs = "SELECT * FROM Itinerari WHERE CodiceMeta = '000001'";
    EXPECT_EQ(open(legs).RecordCount(), 0) << "the index still agrees";
    EXPECT_FALSE(archive.Db(0)->chiusoInOrdine());
    EXPECT_EQ(archive.Db(0)->check(), Database::Salute::IndiciRifatti);
    EXPECT_EQ(open(legs).RecordCount(), 2);
}

} // namespace
} // namespace vanzer::store
