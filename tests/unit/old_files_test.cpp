// SPDX-License-Identifier: MIT
// The files of the earlier version: their records, and their conversion into the archive.
#include <QDir>

#include "exchange/conversion.h"
#include "store/schema.h"
#include "support/old_files_writer.h"
#include "support/window_test.h"

namespace vanzer {

namespace {

TEST(OldFiles, OnlyTheBlanksBehindTheLastFieldMayBeMissing) {
    const auto& mete = vecchieMete();
    const QByteArray destination = oldRecord(mete, {u"1"_s, u"NÎMES"_s});
    EXPECT_TRUE(FileVecchio(mete, destination.first(119)).record(1));
    EXPECT_FALSE(FileVecchio(mete, destination.first(118)).record(1));
    const FileVecchio two(mete, destination + destination.first(1));
    EXPECT_EQ(two.numero(), 2);
    EXPECT_TRUE(two.record(1) && !two.record(0) && !two.record(2) && !two.record(3));
    const QByteArray entry = oldRecord(vecchiaGuida(), {u"NÎMES"_s, u"Arènes"_s});
    EXPECT_TRUE(FileVecchio(vecchiaGuida(), entry).record(1)) << "no flag";
    EXPECT_FALSE(FileVecchio(vecchiaGuida(), entry.chopped(1) + 'x').record(1)) << "a flag that is none";
}

TEST(OldFiles, TheCountOfLegsIsBelievedOnlyWhereItHolds) {
    const QList<QStringList> three{{u"A*A1"_s}, {u"B"_s}, {u"C"_s}};
    const QByteArray differing = oldItinerary(three).replace(0, 64, oldRecord(vecchieTappe(), {u"3"_s, u"2"_s}));
    const struct {
        QByteArray contents;
        TappeVecchie legs;
    } rows[] = {{{}, {0, 0}},
                {oldItinerary(three), {3, 0}},
                {oldItinerary(three, u"1"_s), {1, 2}},
                {oldItinerary(three, u"9"_s), {3, 1}},
                {oldItinerary(three, u"-1"_s), {0, 4}},
                {differing, {0, 4}},
                {oldItinerary(three).chopped(5), {3, 0}}}; // the last record is cut
    for (const auto& row : rows) {
        const TappeVecchie legs = tappeDaLeggere({vecchieTappe(), row.contents});
        EXPECT_EQ(std::pair(legs.tappe, legs.tralasciati), std::pair(row.legs.tappe, row.legs.tralasciati))
            << row.contents.toStdString();
    }
}

TEST(OldFiles, LegsPartPlaceAndRoad) {
    const QString rows[][3] = {// place with its road, time; then place, road and stop of the leg, empty for no leg
                               {u"MODENA * A1 *A22 "_s, u"010230"_s, u"MODENA|A1 *A22 |01:02:30"_s},
                               {u"ÅNDALSNES*E136"_s, u"000100"_s, u"ÅNDALSNES|E136 |00:01:00"_s},
                               {u"østersund"_s, u"00010"_s, u"østersund| |00:01:0"_s},
                               {u"*A1"_s, {}, {}},
                               {u" MODENA"_s, {}, {}},
                               {u"3 CIME"_s, {}, {}}};
    for (const auto& [local, time, expected] : rows) {
        const auto leg = tappaConvertita({local, u"41"_s, u"A"_s, time, u"1"_s});
        EXPECT_EQ(leg ? leg->Localita + u'|' + leg->NomeStrada + u'|' + leg->TempoSosta : QString(), expected);
    }
}

/// A window on its own archive, with old files beside it.
class Conversion : public WindowTest {
  protected:
    void old(const QString& name, const QByteArray& contents) { ASSERT_TRUE(writeOldFile(inFolder(name), contents)); }
    QStringList convert(const batch::VisitedYield::Visitor& visitor = {}) {
        does(u"answer 6"_s);
        atAYield(visitor);
        form().cmdConverte.click();
        return asked();
    }
    QString files() const { return QDir(folder->path()).entryList({u"*.dat*"_s}, QDir::Files, QDir::Name).join(u'|'); }

    /// Writes two destinations with an itinerary each, and a guide.
    void oldArchive() {
        const auto& mete = vecchieMete();
        old(u"VANZMETE.DAT"_s, oldFile(mete, {{u"1"_s, u"ROMA"_s}, {u"2"_s, u"..BARI"_s}, {u"000003"_s, u"PISA"_s}}));
        old(u"vanz0001.dat"_s, oldItinerary({{u"TERNI*SS3"_s, u"104"_s, u"P"_s, u"000100"_s, u"0"_s}}));
        old(u"Vanz0003.dat"_s, oldItinerary({{u"LUCCA"_s}, {u"PISA"_s}}));
        old(u"VanzGuid.dat"_s, oldFile(vecchiaGuida(), {{u"PISA"_s, u"Torre (la)"_s, u"1"_s, u"130"_s},
                                                        {u"PISA"_s, u"Torre (vista)"_s, u"2"_s, u"20"_s},
                                                        {}}));
    }
};

TEST_F(Conversion, StoppedAnywhereItLosesNothingAndGoesOn) {
    // ROMA's code is taken. ROMA gets another one, with its legs, wherever the conversion is interrupted.
    folder.emplace();
    old(u"VanzMete.dat"_s, oldFile(vecchieMete(), {{u"1"_s, u"VIENNA"_s}}));
    old(u"vanz0001.dat"_s, oldItinerary({{u"GRAZ"_s}}));
    start();
    convert();
    desk.reset();
    const QString archive = inFolder(u"Vanzer.mdb"_s);
    ASSERT_TRUE(QFile::copy(archive, archive + u".prima"_s));
    const QString done = u"Conversione eseguita...\n\n«ROMA» entra con il codice 000002."_s;
    int stops = 0;
    for (int yield = 1;; ++yield) {
        desk.reset();
        ASSERT_TRUE(QFile::remove(archive) && QFile::copy(archive + u".prima"_s, archive));
        oldArchive();
        start();
        int seen = 0;
        const QStringList told = convert([&] {
            if (++seen < yield || form().cmdEsce.caption() != u"&Stop")
                return false;
            does(u"answer 6; click cmdEsce"_s);
            return true;
        });
        if (told.last() == done)
            break;
        ++stops;
        EXPECT_TRUE(told.last().startsWith(u"Conversione interrotta!\n"_s)) << told.last().toStdString();
        EXPECT_NE(files(), QString());
        start();
        EXPECT_TRUE(form().cmdConverte.reachable()) << files().toStdString();
        EXPECT_EQ(convert().last(), done);
        EXPECT_EQ(files(), QString());
        const QString fields[][3] = {
            {u"MeteVanzer"_s, u"Localita"_s, u"VIENNA|ROMA|PISA"_s},
            {u"MeteVanzer"_s, u"OraPranzo"_s, u"1230|1230|1230"_s},
            {u"Itinerari"_s, u"Localita"_s, u"GRAZ|TERNI|LUCCA|PISA"_s},
            {u"Itinerari"_s, u"CodiceMeta"_s, u"000001|000002|000003|000003"_s},
            {u"GuidaCitta"_s, u"Descrizione"_s, u"Torre (la)|Torre (vista)"_s},
            {u"TipoGuida"_s, u"CodiceGuida"_s, u"01|02|03|04|05|06|07|08|09"_s},
        };
        for (const auto& [table, field, texts] : fields)
            EXPECT_EQ(stored(table, field), texts);
    }
    EXPECT_GT(stops, 8);
}

TEST_F(Conversion, WhatCannotBeReadIsTold) {
    folder.emplace();
    oldArchive();
    start();
    ASSERT_TRUE(QFile::remove(inFolder(u"VanzGuid.dat"_s)) && QDir(folder->path()).mkdir(u"VanzGuid.dat"_s));
    const QString told = convert().last();
    EXPECT_TRUE(told.startsWith(u"Il file VanzGuid.dat non può essere letto:"_s)) << told.toStdString();
    EXPECT_EQ(stored(u"Itinerari"_s, u"Localita"_s), u"TERNI|LUCCA|PISA"_s);
    EXPECT_TRUE(form().cmdNuovo.enabled());
}

TEST(OldFilesWaiting, OnlyFilesThatCanBeConverted) {
    const struct {
        QString file, code; ///< of a destination
        bool waits;
    } rows[] = {{u"VanzMete.dat"_s, {}, true},
                {u"VANZGUID.DAT"_s, {}, true},
                {u"vanz0012.dat"_s, u"990012"_s, true},
                {u"vanz0012.dat"_s, u"000013"_s, false},
                {u"vanz0012.vecchio"_s, u"000012"_s, false},
                {u"VanzMete.txt"_s, u"00Mete"_s, false},
                {u"vanz7.dat"_s, u"7"_s, true},
                {u"vanz.dat"_s, {}, false}};
    for (const auto& row : rows) {
        const QTemporaryDir directory;
        ASSERT_TRUE(writeOldFile(directory.filePath(row.file), "x"));
        EXPECT_EQ(store::vecchiFileInAttesa(directory.path(), [&row] { return QStringList{row.code}; }), row.waits)
            << row.file.toStdString();
    }
    for (const QString& code : {u"00/../"_s, u""_s, u"  00Guid"_s, u"00mete"_s, u"00 1*"_s})
        EXPECT_EQ(store::fileVecchieTappe(code), QString());
}

} // namespace

} // namespace vanzer
