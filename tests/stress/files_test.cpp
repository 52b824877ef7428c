// Folders where nothing can be written, an archive that another program has, an itinerary that is too long.
#include <cerrno>

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include <sys/stat.h>
#include <unistd.h>

#include "store/safe_files.h"
#include "stress/attempts.h"
#include "stress/system_calls.h"
#include "stress/works.h"
#include "support/desk.h"

namespace vanzer::stress {
namespace {

/// Nobody may write into the folder while it lives; the administrator works as somebody else meanwhile.
class NoRight {
  public:
    explicit NoRight(const QString& folder) : folder_(folder.toStdString()) {
        EXPECT_EQ(chmod(folder_.c_str(), 0555), 0);
        EXPECT_TRUE(!administrator_ || setresuid(nobody, nobody, 0) == 0);
    }
    ~NoRight() {
        EXPECT_TRUE(!administrator_ || setresuid(0, 0, 0) == 0);
        EXPECT_EQ(chmod(folder_.c_str(), 0755), 0);
    }
    NoRight(const NoRight&) = delete;
    NoRight& operator=(const NoRight&) = delete;

  private:
    static constexpr uid_t nobody = 65534;

    std::string folder_;
    bool administrator_ = geteuid() == 0;
};

/// A folder that isn't there while it lives.
class Gone {
  public:
    explicit Gone(QString folder) : folder_(std::move(folder)) { EXPECT_TRUE(QDir().rename(folder_, aside())); }
    ~Gone() { EXPECT_TRUE(QDir().rename(aside(), folder_)); }
    Gone(const Gone&) = delete;
    Gone& operator=(const Gone&) = delete;

  private:
    [[nodiscard]] QString aside() const { return folder_ + u".altrove"_s; }

    QString folder_;
};

TEST(Files, ThatCannotBeWrittenAreToldByNameAndTheOlderOnesStay) {
    struct Output {
        const char* name;
        QStringList lines, files;
    };
    QTemporaryDir home;
    ASSERT_EQ(chmod(home.path().toLocal8Bit().constData(), 0755), 0);
    const QString folder = home.filePath(u"viaggi"_s);
    QDir().mkpath(folder);
    Desk desk(folder);
    desk.run(QStringList{u"start"_s} + storedTrip(u"GARDA"_s, 12));
    const Output outputs[] = {
        {"export",
         {u"click cmdExport"_s, u"click cmdImportExport(0)"_s, u"click cmdTutto(0)"_s, u"file giro.iei"_s,
          u"answer 6 6"_s, u"click cmdImExp(0)"_s},
         {u"giro.iei"_s}},
        {"print",
         {u"click cmdCalcola"_s, u"click cmdStampa"_s, u"check chkTabella 1"_s, u"click cmdEsegui(0)"_s,
          u"pick lstStampanti PDF"_s, u"file "_s + folder + u"/giro.pdf"_s, u"click cmdSelStampante(0)"_s,
          u"click cmdCalcola"_s},
         {u"Vanztabl.txt"_s, u"ListaLocalita.txt"_s, u"giro.pdf"_s}},
    };
    for (const auto& [name, lines, files] : outputs) {
        SCOPED_TRACE(name);
        int sync = 0;
        desk.run(lines);
        const Disk before = Disk::of(folder);
        const auto expectTold = [&files = files](const QString& told, const QString& reason) {
            EXPECT_TRUE(told.contains(reason)) << told.toStdString();
            for (const QString& file : files)
                EXPECT_TRUE(told.contains(file)) << told.toStdString();
        };
        {
            const NoRight lasting(folder);
            expectTold(desk.run(lines).join(u'\n'), u"non è permesso"_s);
        }
        {
            const Gone lasting(folder);
            expectTold(desk.run(lines).join(u'\n'), u"la sua cartella non c'è"_s);
        }
        {
            Watch lasting(folder);
            lasting.arm({.calls = +Call::Sync, .error = EIO, .lasting = true}, 1);
            expectTold(desk.run(lines).join(u'\n'), u"il disco non conferma la scrittura"_s);
        }
        EXPECT_TRUE(Disk::of(folder).contents == before.contents);
        EXPECT_TRUE(desk.alive());
        Watch watch(folder);
        bool inPlace = false; // told all the same, as the folder isn't safe
        do {
            const std::string older = "quello di prima";
            QFile output(folder + u'/' + files.first());
            ASSERT_TRUE(output.open(QIODevice::WriteOnly | QIODevice::Truncate) && output.write(older.c_str()) > 0);
            output.close();
            watch.arm({.calls = +Call::Sync, .error = EIO}, ++sync);
            const QString told = desk.run(lines).join(u'\n');
            inPlace |= told.contains(u"il disco non conferma la scrittura"_s) && told.contains(files.first()) &&
                       bytesOf(output.fileName()) != older;
        } while (watch.hit() && !inPlace);
        EXPECT_TRUE(inPlace);
    }
}

TEST(Files, PutIntoPlaceAreToldWhereTheyArentSafe) {
    const QTemporaryDir home;
    const QString made = home.filePath(u"nuovo.mdb"_s);
    const QString place = home.filePath(u"Vanzer.mdb"_s);
    for (const int sync : {1, 2}) { // of the file, of the folder
        Disk disk;
        disk.names = {{"nuovo.mdb", 1}, {"Vanzer.mdb", 2}};
        disk.contents = {{1, "nuovo"}, {2, "quello di prima"}};
        disk.lay(home.path());
        Watch watch(home.path());
        watch.arm({.calls = +Call::Sync, .error = EIO}, sync);
        EXPECT_THROW(store::putInPlace(made, place), store::StoreError);
        EXPECT_EQ(bytesOf(place), sync == 1 ? "quello di prima" : "nuovo");
    }
}

/// Whatever sync of a rebuild fails, the archive from before is there, as itself or kept.
TEST(Rebuild, KeepsTheArchiveFromBeforeWhereASyncFails) {
    bool keptAlone = false;
    for (int n = 1;; ++n) {
        const QTemporaryDir home;
        travelled(home.path());
        Desk(home.path()).run({u"start"_s});
        changeSchema(home.path(), "ALTER TABLE TipoGuida DROP COLUMN TempoObbligatorio");
        const QString archive = home.filePath(u"Vanzer.mdb"_s);
        const std::string before = bytesOf(archive);
        Watch watch(home.path());
        watch.arm({.calls = +Call::Sync, .error = EIO}, n);
        Desk desk(home.path());
        const QStringList told = desk.run({u"start"_s});
        const QStringList kept = QDir(home.filePath(u"Copie"_s)).entryList({u"*ricostruzione*"_s});
        if (!watch.hit())
            break;
        const bool rebuilt = bytesOf(archive) != before;
        EXPECT_TRUE(!rebuilt || kept == QStringList{u"Vanzer prima della ricostruzione (ancora 10 avvii).mdb"_s})
            << n << ' ' << kept.join(u' ').toStdString();
        keptAlone |= rebuilt && !told.isEmpty() && !desk.alive();
    }
    EXPECT_TRUE(keptAlone) << "the last sync never failed alone";
}

TEST(TwoPrograms, TheSecondIsToldByNameAndChangesNothing) {
    const QTemporaryDir home;
    const QString folder = home.filePath(u"viaggi"_s);
    QDir().mkpath(folder);
    Desk first(folder);
    first.run(QStringList{u"start"_s} + storedTrip(u"GARDA"_s, 5));
    // Not even the archive itself, chosen as a file to import, opens the door.
    const QStringList told =
        first.run({u"click cmdExport"_s, u"file Vanzer.mdb"_s, u"click cmdImportExport(1)"_s, u"click cmdImExp(1)"_s});
    EXPECT_TRUE(told.join(u' ').contains(u"è l'archivio stesso")) << told.join(u' ').toStdString();
    // In another process: whoever opens and closes the archive's file here lets go of its lock.
    const End second = inChild([&folder] {
        const Disk before = Disk::of(folder);
        Desk desk(folder);
        EXPECT_TRUE(
            desk.run({u"start"_s}).join(u' ').contains(folder + u"/Vanzer.mdb è già aperto da un altro Vanzer"_s));
        EXPECT_FALSE(desk.alive());
        EXPECT_EQ(desk.records(), "");
        const Disk after = Disk::of(folder);
        EXPECT_TRUE(after.names == before.names && after.contents == before.contents);
        return false;
    });
    EXPECT_EQ(second, End::Held);
    EXPECT_TRUE(first.run(storedTrip(u"COMO"_s, 5)).join(u' ').contains(u"Confermi inserimento meta?"));
    EXPECT_TRUE(contains(first.records(), "COMO 4"));
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

} // namespace
} // namespace vanzer::stress
