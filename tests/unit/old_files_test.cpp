// The files of the earlier generation: their records, and how they come into the archive.
#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

#include "batch/session.h"
#include "exchange/conversion.h"
#include "store/schema.h"
#include "support/old_files_writer.h"

namespace vanzer {

namespace {

using namespace Qt::StringLiterals;

TEST(OldFiles, FieldsFillTheirRecordsAndFitTheTables) {
    EXPECT_EQ(store::vecchieMete().larghezza(), 119);
    EXPECT_EQ(store::vecchieTappe().larghezza(), store::vecchieTappe().lunghezza);
    EXPECT_EQ(store::vecchiaGuida().larghezza(), store::vecchiaGuida().lunghezza);
    const auto fields = store::campiDescritti(store::TabelleCampi(store::MeteVanzer));
    for (std::size_t i = 0; i < store::vecchieMete().campi.size(); ++i)
        EXPECT_EQ(store::vecchieMete().campi[i].larghezza, fields[i].size) << fields[i].name.toStdString();
}

TEST(OldFiles, DamagedRecordsAreTold) {
    const auto& format = store::vecchiaGuida();
    const QByteArray good = oldRecord(format, {u"NÎMES"_s, u"Arènes"_s, u"1"_s, u"0130"_s, u"1"_s});
    const auto with = [&good](qsizetype at, char byte) { return QByteArray(good).replace(at, 1, QByteArray(1, byte)); };
    struct Row {
        const char* what;
        QByteArray contents;
        int records;
        bool whole; ///< the first record
    };
    const std::vector<Row> rows{
        {"whole", good, 1, true},
        {"two", good + good, 2, true},
        {"flag left blank", with(127, ' '), 1, true},
        {"a second one cut", good + good.first(1), 2, true},
        {"cut", good.first(127), 1, false},
        {"one byte", good.first(1), 1, false},
        {"empty", {}, 0, false},
        {"a zero byte", with(3, '\0'), 1, false},
        {"a zero byte in the padding", with(29, '\0'), 1, false},
        {"a line end", with(40, '\n'), 1, false},
        {"a place that the code page leaves free", with(40, '\x81'), 1, false},
        {"a flag that is none", with(127, 'x'), 1, false},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        const store::FileVecchio file(format, row.contents);
        EXPECT_EQ(file.numero(), row.records);
        const auto record = file.record(1);
        EXPECT_EQ(record.has_value(), row.whole);
        if (record) {
            EXPECT_EQ((*record)[0], u"NÎMES"_s);
            EXPECT_EQ((*record)[1], u"Arènes"_s);
        }
        EXPECT_FALSE(file.record(0));
        EXPECT_FALSE(file.record(row.records + 1));
    }
    // Only the blanks behind the last field are missing from a destination that was written last.
    const auto& mete = store::vecchieMete();
    const QByteArray destination = oldRecord(mete, {u"1"_s, u"NÎMES"_s});
    EXPECT_TRUE(store::FileVecchio(mete, destination.first(119)).record(1));
    EXPECT_FALSE(store::FileVecchio(mete, destination.first(118)).record(1));
}

TEST(OldFiles, TheCountOfLegsIsBelievedOnlyWhereItHolds) {
    const QList<QStringList> three{{u"A*A1"_s}, {u"B"_s}, {u"C"_s}};
    const auto differing = [&three] {
        QByteArray file = oldItinerary(three);
        return file.replace(0, 64, oldRecord(store::vecchieTappe(), {u"3"_s, u"2"_s}));
    };
    struct Row {
        const char* what;
        QByteArray contents;
        int legs;
        int left;
    };
    const std::vector<Row> rows{{"none", {}, 0, 0},
                                {"head alone", oldItinerary({}), 0, 0},
                                {"true", oldItinerary(three), 3, 0},
                                {"too low", oldItinerary(three, u"1"_s), 1, 2},
                                {"too high", oldItinerary(three, u"9"_s), 3, 1},
                                {"very high", oldItinerary(three, u"9999"_s), 3, 1},
                                {"below 0", oldItinerary(three, u"-1"_s), 0, 4},
                                {"differing", differing(), 0, 4},
                                {"damaged", differing().replace(1, 1, QByteArray(1, '\0')), 0, 4},
                                {"the last one cut", oldItinerary(three).chopped(5), 3, 0}};
    for (const Row& row : rows) {
        const TappeVecchie legs = tappeDaLeggere({store::vecchieTappe(), row.contents});
        EXPECT_EQ(legs.tappe, row.legs) << row.what;
        EXPECT_EQ(legs.tralasciati, row.left) << row.what;
    }
}

TEST(OldFiles, LegsPartPlaceAndRoad) {
    struct Row {
        QString locali, tempo;
        const char16_t* place; ///< null: no leg
        const char16_t* road;
        const char16_t* stop;
    };
    const std::vector<Row> rows{{u"MODENA*A1"_s, u"000000"_s, u"MODENA", u"A1 ", u" "},
                                {u"MODENA * A1 *A22 "_s, u"010230"_s, u"MODENA", u"A1 *A22 ", u"01:02:30"},
                                {u"MODENA"_s, {}, u"MODENA", u" ", u" "},
                                {u"ASTI*A21 FINO A TORTONA E POI LA SS10 PER CASALE"_s,
                                 {},
                                 u"ASTI",
                                 u"A21 FINO A TORTONA E POI LA SS10 PER CASALE ",
                                 u" "},
                                {u"ÅNDALSNES*E136"_s, u"000100"_s, u"ÅNDALSNES", u"E136 ", u"00:01:00"},
                                {u"østersund"_s, u"00010"_s, u"østersund", u" ", u"00:01:0"},
                                {u"*A1"_s, {}, nullptr, nullptr, nullptr},
                                {u" MODENA"_s, {}, nullptr, nullptr, nullptr},
                                {u"3 CIME"_s, {}, nullptr, nullptr, nullptr},
                                {{}, {}, nullptr, nullptr, nullptr}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.locali.toStdString());
        const auto leg = tappaConvertita({row.locali, u"41"_s, u"A"_s, row.tempo, u"1"_s});
        ASSERT_EQ(leg.has_value(), row.place != nullptr);
        if (leg) {
            EXPECT_EQ(leg->Localita, row.place);
            EXPECT_EQ(leg->NomeStrada, row.road);
            EXPECT_EQ(leg->TempoSosta, row.stop);
            EXPECT_EQ(leg->FineGiorno, u"1");
        }
    }
}

TEST(OldFiles, TimesOfNothingGetTheirDefaults) {
    struct Row {
        const char16_t* field;
        int size;
        const char16_t *value, *adjusted;
    };
    for (const Row& row : {Row{u"OraPranzo", 4, u"0000", u"1230"}, Row{u"orapranzo", 4, u"", u"1230"},
                           Row{u"OraPranzo", 4, u"1300", u"1300"}, Row{u"FineVisita", 4, u" ", u"2400"},
                           Row{u"OraInizio", 4, u"0000", u"0000"}, Row{u"Range", 2, u"", u"00"},
                           Row{u"RiposoOre", 2, u"03", u"03"}, Row{u"MediaLocale", 3, u"000", u"000"}})
        EXPECT_EQ(valoreAdeguato(row.field, row.size, QString::fromUtf16(row.value)), row.adjusted);
}

/// A window on an archive of its own, with old files beside it.
class Conversion : public testing::Test {
  protected:
    void old(const QString& name, const QByteArray& contents) {
        ASSERT_TRUE(writeOldFile(directory.filePath(name), contents));
    }
    void start() {
        session.clock.set(QDateTime(QDate(2003, 7, 5), QTime(8, 20)));
        session.start();
        ASSERT_NE(session.window(), nullptr);
    }
    [[nodiscard]] Form& form() { return *session.window(); }
    QStringList convert() {
        static_cast<void>(session.boxes.exchange({}));
        session.boxes.enqueue(rispostaSi);
        form().cmdConverte.click();
        QStringList texts;
        for (const QJsonValue box : session.boxes.exchange({}))
            texts += box[u"text"].toString();
        return texts;
    }
    /// One field of a table's records, joined.
    QString column(int table, const QString& field) {
        const store::TabellaLetta read = form().archivio.tabella(store::TabelleNomi(table));
        QStringList texts;
        for (const auto& record : read.record) {
            const auto& cell = record[static_cast<std::size_t>(read.campi.indexOf(field))];
            texts += std::holds_alternative<QString>(cell) ? std::get<QString>(cell) : u"-"_s;
        }
        return texts.join(u'|');
    }
    QString files() const {
        return QDir(directory.path()).entryList({u"*.dat*"_s}, QDir::Files, QDir::Name).join(u'|');
    }
    bool waiting() { return form().cmdConverte.visible() && form().cmdConverte.enabled(); }

    /// Two destinations with an itinerary each, and a guide.
    void oldArchive() {
        const auto& mete = store::vecchieMete();
        old(u"VANZMETE.DAT"_s, oldFile(mete, {{u"1"_s, u"ROMA"_s}, {u"2"_s, u"..BARI"_s}, {u"000003"_s, u"PISA"_s}}));
        old(u"vanz0001.dat"_s, oldItinerary({{u"TERNI*SS3"_s, u"104"_s, u"P"_s, u"000100"_s, u"0"_s}}));
        old(u"Vanz0003.dat"_s, oldItinerary({{u"LUCCA"_s}, {u"PISA"_s}}));
        old(u"VanzGuid.dat"_s, oldFile(store::vecchiaGuida(), {{u"PISA"_s, u"Torre (la)"_s, u"1"_s, u"130"_s},
                                                               {u"PISA"_s, u"Torre (vista)"_s, u"2"_s, u"20"_s},
                                                               {}}));
    }

    QTemporaryDir directory;
    batch::Session session{{.directory = directory.path(), .decimalMark = u'.', .versione = {}}};
};

TEST_F(Conversion, WhatIsThereStaysAndEqualKeysAreOverwritten) {
    oldArchive();
    start();
    convert();
    EXPECT_EQ(column(store::MeteVanzer, u"Range"_s), u"15|15"_s);
    old(u"VanzMete.dat"_s,
        oldFile(store::vecchieMete(), {{u"3"_s, u"LUCCA"_s, u"ITALIA"_s}, {u"1"_s, u"roma (centro)"_s}}));
    old(u"vanz0003.dat"_s, oldItinerary({{u"1 CASA"_s}, {u"VINCI"_s}, {u"LUCCA"_s}}));
    old(u"VanzGuid.dat"_s, oldFile(store::vecchiaGuida(), {{u"Pisa (centro)"_s, u"TORRE (VISTA)"_s, u"3"_s}}));
    start();
    EXPECT_TRUE(waiting());
    EXPECT_EQ(convert().last(), u"Conversione eseguita...\n\n«LUCCA» entra con il codice 000002."_s);
    EXPECT_EQ(column(store::MeteVanzer, u"Localita"_s), u"roma (centro)|PISA|LUCCA"_s);
    EXPECT_EQ(column(store::MeteVanzer, u"CodiceMeta"_s), u"000001|000003|000002"_s);
    EXPECT_EQ(column(store::Itinerari, u"Localita"_s), u"TERNI|LUCCA|PISA|VINCI|LUCCA"_s);
    EXPECT_EQ(column(store::Itinerari, u"CodiceMeta"_s), u"000001|000003|000003|000002|000002"_s);
    EXPECT_EQ(column(store::GuidaCitta, u"CodiceGuida"_s), u"01|03"_s);
}

TEST_F(Conversion, StoppedAnywhereItLosesNothingAndGoesOn) {
    // ROMA's code is taken: it comes in under another one, with its legs, whenever the work is broken off.
    old(u"VanzMete.dat"_s, oldFile(store::vecchieMete(), {{u"1"_s, u"VIENNA"_s}}));
    old(u"vanz0001.dat"_s, oldItinerary({{u"GRAZ"_s}}));
    start();
    convert();
    session.close();
    const QString archive = directory.filePath(u"Vanzer.mdb"_s);
    ASSERT_TRUE(QFile::copy(archive, archive + u".prima"_s));
    const QString done = u"Conversione eseguita...\n\n«ROMA» entra con il codice 000002."_s;
    int stops = 0;
    for (int yield = 1;; ++yield) {
        session.close();
        ASSERT_TRUE(QFile::remove(archive) && QFile::copy(archive + u".prima"_s, archive));
        oldArchive();
        start();
        int seen = 0;
        session.events.expect([&] {
            if (++seen < yield || form().cmdEsce.caption() != u"&Stop")
                return false;
            session.boxes.enqueue(rispostaSi);
            form().cmdEsce.click();
            return true;
        });
        const QStringList told = convert();
        session.events.expect({});
        if (told.last() == done)
            break;
        ++stops;
        EXPECT_TRUE(told.last().startsWith(u"Conversione interrotta!\n"_s)) << told.last().toStdString();
        EXPECT_NE(files(), QString());
        start();
        EXPECT_TRUE(waiting()) << files().toStdString();
        EXPECT_EQ(convert().last(), done);
        EXPECT_EQ(files(), QString());
        EXPECT_EQ(column(store::MeteVanzer, u"Localita"_s), u"VIENNA|ROMA|PISA"_s);
        EXPECT_EQ(column(store::MeteVanzer, u"OraPranzo"_s), u"1230|1230|1230"_s);
        EXPECT_EQ(column(store::Itinerari, u"Localita"_s), u"GRAZ|TERNI|LUCCA|PISA"_s);
        EXPECT_EQ(column(store::Itinerari, u"CodiceMeta"_s), u"000001|000002|000003|000003"_s);
        EXPECT_EQ(column(store::GuidaCitta, u"Descrizione"_s), u"Torre (la)|Torre (vista)"_s);
        EXPECT_EQ(column(store::TipoGuida, u"CodiceGuida"_s), u"01|02|03|04|05|06|07|08|09"_s);
    }
    EXPECT_GT(stops, 8);
}

TEST_F(Conversion, WhatCannotBeReadOrWrittenIsTold) {
    oldArchive();
    start();
    ASSERT_TRUE(QFile::remove(directory.filePath(u"VanzGuid.dat"_s)));
    ASSERT_TRUE(QDir(directory.path()).mkdir(u"VanzGuid.dat"_s));
    const QString told = convert().last();
    EXPECT_TRUE(told.startsWith(u"Il file VanzGuid.dat non può essere letto:"_s)) << told.toStdString();
    EXPECT_EQ(column(store::Itinerari, u"Localita"_s), u"TERNI|LUCCA|PISA"_s);
    EXPECT_TRUE(form().cmdNuovo.enabled());
}

TEST(OldFilesWaiting, OnlyFilesThatCanBeConverted) {
    struct Row {
        const char16_t* file;
        const char16_t* code;
        bool waits;
    };
    for (const Row& row :
         {Row{u"VanzMete.dat", u"", true}, Row{u"VANZGUID.DAT", u"", true}, Row{u"vanz0012.dat", u"000012", true},
          Row{u"vanz0012.dat", u"990012", true}, Row{u"vanz0012.dat", u"000013", false},
          Row{u"vanz0012.vecchio", u"000012", false}, Row{u"vanzMete.dat.vecchio", u"", false},
          Row{u"VanzMete.txt", u"00Mete", false}, Row{u"vanz7.dat", u"7", true}, Row{u"vanz.dat", u"", false}}) {
        const QTemporaryDir directory;
        ASSERT_TRUE(writeOldFile(directory.filePath(QString::fromUtf16(row.file)), "x"));
        EXPECT_EQ(
            store::vecchiFileInAttesa(directory.path(), [&row] { return QStringList{QString::fromUtf16(row.code)}; }),
            row.waits)
            << QString::fromUtf16(row.file).toStdString();
    }
    for (const char16_t* code : {u"00/../", u"", u"  00Guid", u"00mete", u"00 1*"})
        EXPECT_EQ(store::fileVecchieTappe(QString::fromUtf16(code)), QString());
}

} // namespace

} // namespace vanzer
