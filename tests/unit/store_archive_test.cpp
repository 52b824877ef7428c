// The file: descriptors, making, check, rebuild, locking, damage, crashes.
#include "store_fixture.h"

#include <csignal>

#include <QDir>
#include <QFileInfo>

#include <sys/wait.h>
#include <unistd.h>

namespace vanzer::store {
namespace {

TEST(Descriptor, IsRead) {
    using enum FieldKind;
    const auto fields = campiDescritti("A[T=6],b[y],C[B],D[D],E[I],F[S],G[L],H[t=96]");
    const std::vector<FieldDef> expected{{"A", Text, 6},      {"b", YesNo, 0},  {"C", Binary, 0}, {"D", DateTime, 0},
                                         {"E", Integer16, 0}, {"F", Single, 0}, {"G", Double, 0}, {"H", Text, 96}};
    EXPECT_EQ(fields, expected);
    EXPECT_TRUE(campiDescritti("").empty());
    EXPECT_EQ(campiDescritti("A[T=6],xyz").size(), 1U);
    EXPECT_EQ(campiDescritti(TabelleCampi(MeteVanzer)).size(), 28U);
    EXPECT_EQ(campiDescritti(TabelleCampi(Parametri)).size(), 21U);
}

class StoreArchive : public StoreTest {
  protected:
    [[nodiscard]] QString file() const { return path(directory, "Vanzer.mdb"); }

    /// Makes the archive anew with tables of the caller's own; a table without a descriptor is left out.
    void makeOld(int table, const QString& descriptor, const std::function<void(Recordset&)>& fill = {}) {
        archive.chiudi();
        QFile::remove(file());
        const auto old = Database::crea(file());
        for (int t = primaTabella; t <= ultimaTabella; ++t) {
            const QString fields = t == table ? descriptor : TabelleCampi(t);
            if (!fields.isEmpty())
                old->creaTabella(TabelleNomi(t), campiDescritti(fields));
        }
        if (fill) {
            Recordset rs(*old, {TabelleNomi(table), {}, {}});
            fill(rs);
        }
    }

    [[nodiscard]] QStringList filesLeft() const { return QDir(directory.path()).entryList(QDir::Files); }
};

TEST_F(StoreArchive, TablesAndIndexesAsDeclared) {
    const char* const indexes[] = {
        "", "CodiceMeta,Localita", "CodiceMeta,Sequenza,Localita", "Localita,Gruppo", "CodiceGuida", "MetaCorrente",
        ""};
    for (int round = 0; round < 2; ++round) { // the second time nothing is made twice
        for (int t = primaTabella; t <= ultimaTabella; ++t) {
            EXPECT_EQ(archive.Db(0)->tabella(TabelleNomi(t))->campi, campiDescritti(TabelleCampi(t))) << t;
            EXPECT_EQ(archive.indici(TabelleNomi(t)).join(u',').toStdString(), indexes[t]);
            EXPECT_TRUE(archive.Rs(t).EOF_());
        }
        archive.apriArchivio();
    }
    EXPECT_EQ(archive.CercaCampoTabella(1, "MediaSuperstrada"), 6);
    EXPECT_EQ(archive.CercaCampoTabella(1, "Sequenza"), std::nullopt);
    EXPECT_EQ(archive.CaricaRiferimentiVettoreCampiTabelleDatabase(5, {"x", "", "METACORRENTE"}), "0300\\");
    archive.chiudi();
    EXPECT_EQ(filesLeft(), QStringList{"Vanzer.mdb"});
}

TEST_F(StoreArchive, IsRebuiltWhereATableDiffers) {
    struct Row {
        const char* what;
        QString descriptor; // of TipoGuida in the old file
        bool rebuilt;
        const char* records; // afterwards: all fields, "-" without a value
    };
    const Row rows[] = {
        {"as declared", "CodiceGuida[T=2],Descrizione[T=32],TempoObbligatorio[Y]", false, "01 Ott\u00e0mo True"},
        {"surplus field", "CodiceGuida[T=2],Descrizione[T=32],TempoObbligatorio[Y],Altro[T=9]", false,
         "01 Ott\u00e0mo True -"},
        {"other order and case", "descrizione[T=32],CODICEGUIDA[T=2],TempoObbligatorio[Y]", false,
         "Ott\u00e0mo 01 True"},
        {"other kind", "CodiceGuida[T=2],Descrizione[T=32],TempoObbligatorio[I]", false, "01 Ott\u00e0mo 1"},
        {"leading fields", "CodiceGuida[T=2],Descrizione[T=32]", true, "01 Ott\u00e0mo False"},
        {"one field", "CodiceGuida[T=2]", true, "01 - False"},
        {"shorter text", "CodiceGuida[T=2],Descrizione[T=31],TempoObbligatorio[Y]", true, "01 Ott\u00e0mo True"},
        {"longer text", "CodiceGuida[T=6],Descrizione[T=32],TempoObbligatorio[Y]", true, "01 Ott\u00e0mo True"},
        {"number becomes text", "CodiceGuida[I],Descrizione[T=32]", true, "1 Ott\u00e0mo False"},
        {"missing table", "", true, ""},
    };
    for (const Row& row : rows) {
        makeOld(
            TipoGuida, row.descriptor,
            row.descriptor.isEmpty() ? std::function<void(Recordset&)>() : [&](Recordset& rs) {
                rs.AddNew();
                rs.scrive("CodiceGuida", rs.size(rs.campo("CodiceGuida")) == 6 ? QString("01xxxx") : QString("01"));
                if (rs.campo("Descrizione") >= 0)
                    rs.scrive("Descrizione", "Ott\u00e0mo");
                if (rs.campo("TempoObbligatorio") >= 0)
                    rs.scrive("TempoObbligatorio", "1");
                rs.Update();
            });
        QFile leftover(path(directory, "DBTemp.mdb"));
        ASSERT_TRUE(leftover.open(QIODevice::WriteOnly) && leftover.write("half a copy") > 0);
        leftover.close();
        archive.apriArchivio();
        EXPECT_FALSE(archive.Rettifica);
        EXPECT_EQ(QFileInfo::exists(leftover.fileName()), !row.rebuilt) << row.what;
        QStringList found;
        for (Recordset& rs = archive.Rs(TipoGuida); !rs.EOF_(); rs.MoveNext()) {
            for (int i = 0; i < rs.count(); ++i)
                found += rs.haValore(i) ? rs.testo(i) : QStringLiteral("-");
        }
        EXPECT_EQ(found.join(u' ').toStdString(), row.records) << row.what;
        EXPECT_EQ(archive.indici("TipoGuida").join(u',').toLower(), "codiceguida") << row.what;
    }
}

TEST_F(StoreArchive, ARebuildKeepsEveryTable) {
    addLegs(300);
    addGuide({{"A", "one"}, {QString(), "two"}});
    const auto legs = archive.tabella("Itinerari").record;
    const auto guide = archive.tabella("GuidaCitta").record;
    EXPECT_EQ(guide[1][0], TabellaLetta::Cella());
    EXPECT_EQ(guide[1][6], TabellaLetta::Cella(false));
    archive.Db(0)->cambiaSchema("DROP TABLE Parametri");
    archive.apriArchivio();
    EXPECT_EQ(archive.tabella("Itinerari").record, legs);
    EXPECT_EQ(archive.tabella("guidacitta").record, guide);
    EXPECT_EQ(archive.tabella("Parametri").campi.size(), 21);
    archive.chiudi();
    EXPECT_EQ(filesLeft(), QStringList{"Vanzer.mdb"});
}

TEST_F(StoreArchive, ASecondOpenerIsTurnedAwayAtOnce) {
    Archive second(directory.path());
    try {
        second.apriArchivio();
        ADD_FAILURE() << "opened twice";
    } catch (const StoreError& error) {
        EXPECT_EQ(error.kind(), StoreError::Kind::Busy);
        EXPECT_TRUE(error.testo().contains(u"è già aperto da un altro Vanzer")) << error.what();
        EXPECT_TRUE(error.testo().contains(QDir::toNativeSeparators(file()))) << error.what();
    }
    addLegs(1);
    EXPECT_EQ(failureOf([&] { second.apriArchivio(); }), StoreError::Kind::Busy);
    archive.chiudi();
    EXPECT_EQ(failureOf([&] { second.apriArchivio(); }), std::nullopt);
}

TEST_F(StoreArchive, WhatIsNoArchiveIsLeftAsItIs) {
    archive.chiudi();
    QByteArray damaged = contents(file());
    damaged.replace(0, 16, "not what we want");
    for (const QByteArray& bytes : {QByteArray("hello"), QByteArray(5000, 'x'), damaged}) {
        QFile f(file());
        ASSERT_TRUE(f.open(QIODevice::WriteOnly) && f.write(bytes) == bytes.size());
        f.close();
        EXPECT_EQ(failureOf([&] { archive.apriArchivio(); }), StoreError::Kind::Corrupt);
        EXPECT_EQ(archive.PercorsoDatabase, file());
        EXPECT_EQ(contents(file()), bytes);
        EXPECT_EQ(filesLeft(), QStringList{"Vanzer.mdb"});
    }
}

TEST_F(StoreArchive, PlacesWhereNothingCanBeOpened) {
    Archive nowhere(path(directory, "missing"));
    EXPECT_EQ(failureOf([&] { nowhere.apriArchivio(); }), StoreError::Kind::NotFound);
    EXPECT_EQ(failureOf([&] { (void)Database::apre(path(directory, "none.mdb")); }), StoreError::Kind::NotFound);
    EXPECT_FALSE(QFileInfo::exists(path(directory, "none.mdb"))); // opening never makes a file
    archive.chiudi();
    QFile::setPermissions(directory.path(), QFile::ReadOwner | QFile::ExeOwner);
    if (!QFileInfo(directory.path()).isWritable()) { // the administrator may write anywhere
        EXPECT_EQ(failureOf([&] { archive.apriArchivio(); }), StoreError::Kind::ReadOnly);
    }
    QFile::setPermissions(directory.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

// The child dies in mid-command, after part of it has already gone to the file.
TEST_F(StoreArchive, AKilledCommandLeavesNoTrace) {
    addLegs(2'000);
    archive.chiudi();
    const pid_t child = fork();
    if (child == 0) {
        Archive killed(directory.path());
        killed.apriArchivio();
        killed.Db(0)->prepara("PRAGMA cache_size=5")->step();
        killed.beginCommand();
        killed.CancellaTabella(Itinerari, "CodiceMeta", "000001");
        ::raise(SIGKILL);
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL);
    ASSERT_GT(QFileInfo(file() + "-journal").size(), 10'000) << "nothing was half written";
    archive.apriArchivio();
    EXPECT_EQ(open("SELECT * FROM Itinerari").RecordCount(), 2'000);
    EXPECT_EQ(open("SELECT * FROM Itinerari WHERE CodiceMeta = '000001'").RecordCount(), 2'000);
}

// The system would let the program write on to a file that nobody finds again.
TEST_F(StoreArchive, AFileThatIsNotInItsPlaceAnyMoreIsTold) {
    addLegs(2);
    ASSERT_TRUE(QFile::rename(file(), path(directory, "altrove.mdb")));
    EXPECT_EQ(failureOf([&] { addLegs(1); }), StoreError::Kind::NotFound);
    ASSERT_TRUE(QFile::rename(path(directory, "altrove.mdb"), file()));
    addLegs(1);
    EXPECT_EQ(open("SELECT * FROM Itinerari").RecordCount(), 3);
}

// A rebuild that can't be finished: the new file's place is taken by a directory.
TEST_F(StoreArchive, AFailedRebuildKeepsTheOldFile) {
    addLegs(50);
    archive.Db(0)->cambiaSchema("DROP TABLE Parametri");
    archive.chiudi();
    const QByteArray before = contents(file());
    ASSERT_TRUE(QDir(directory.path()).mkpath("DBTemp.mdb/x"));
    EXPECT_NE(failureOf([&] { archive.apriArchivio(); }), std::nullopt);
    EXPECT_EQ(contents(file()), before);
    ASSERT_TRUE(QDir(path(directory, "DBTemp.mdb")).removeRecursively());
    archive.apriArchivio();
    EXPECT_EQ(open("SELECT * FROM Itinerari").RecordCount(), 50);
}

} // namespace
} // namespace vanzer::store
