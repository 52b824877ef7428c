// SPDX-License-Identifier: MIT
// Folders that can't be written, an archive in use by another program, an itinerary that is too long.
#include <cerrno>
#include <functional>

#include <QDir>
#include <QTemporaryDir>

#include <sys/stat.h>
#include <unistd.h>

#include "store/error.h"
#include "store/safe_files.h"
#include "stress/attempts.h"
#include "stress/desk.h"
#include "stress/system_calls.h"
#include "window/form.h"

namespace vanzer::stress {
namespace {

constexpr const char* unsafe = "il disco non conferma la scrittura";

TEST(Files, ThatCannotBeWrittenAreToldByNameAndTheOlderOnesStay) {
    const QTemporaryDir home;
    ASSERT_EQ(chmod(home.path().toLocal8Bit().constData(), 0755), 0);
    const QString folder = home.filePath(u"viaggi"_s);
    const std::string path = folder.toStdString();
    prepare(folder, script(u"start; trip GARDA 12"_s));
    Desk desk(folder);
    desk.run({u"start"_s});
    Watch watch(folder);
    // Cases: a folder without write permission (the administrator becomes another user), a missing folder, a failing
    // sync.
    const bool administrator = geteuid() == 0;
    constexpr uid_t nobody = 65534;
    const struct {
        const char* reason;
        std::function<bool()> begin, end;
    } troubles[] = {
        {"non è permesso",
         [&] { return chmod(path.c_str(), 0555) + (administrator ? setresuid(nobody, nobody, 0) : 0) == 0; },
         [&] { return (administrator ? setresuid(0, 0, 0) : 0) + chmod(path.c_str(), 0755) == 0; }},
        {"la sua cartella non c'è", [&] { return QDir().rename(folder, home.filePath(u"altrove"_s)); },
         [&] { return QDir().rename(home.filePath(u"altrove"_s), folder); }},
        {unsafe, [&] { return watch.arm({.calls = +Call::Sync, .error = EIO, .lasting = true}, 1), true; },
         [&] { return watch.disarm(), true; }},
    };
    for (const QString& name : {u"export"_s, u"print"_s}) {
        SCOPED_TRACE(name.toStdString());
        const QStringList lines = script(u'+' + name, folder);
        const QStringList files = script(entry(section("scripts.txt", u"work "_s + name), u"outputs"_s));
        desk.run(lines);
        const Disk before = Disk::of(folder);
        for (const auto& [reason, begin, end] : troubles) {
            ASSERT_TRUE(begin());
            const std::string told = text(desk.run(lines));
            ASSERT_TRUE(end());
            EXPECT_TRUE(told.find(reason) != std::string::npos) << told;
            for (const QString& file : files)
                EXPECT_TRUE(told.find(file.toStdString()) != std::string::npos) << told;
        }
        EXPECT_TRUE(Disk::of(folder).contents == before.contents);
        EXPECT_TRUE(desk.alive());
        const std::string output = files.first().toStdString();
        bool inPlace = false; // told although the file is in place, as the folder isn't synced
        int sync = 0;
        do {
            prepare(folder, {u"put %1 > quello di prima"_s.arg(files.first())});
            watch.arm({.calls = +Call::Sync, .error = EIO}, ++sync);
            const std::string told = text(desk.run(lines));
            inPlace |= told.find(unsafe) != std::string::npos && told.find(output) != std::string::npos &&
                       Disk::of(folder)[output] != "quello di prima";
        } while (watch.hit && !inPlace);
        EXPECT_TRUE(inPlace);
        watch.disarm();
    }
}

TEST(Files, PutIntoPlaceAreToldWhereTheyArentSafe) {
    const QTemporaryDir home;
    for (const int sync : {1, 2}) { // sync of the file, sync of the folder
        prepare(home.path(), {u"put nuovo.mdb > nuovo"_s, u"put Vanzer.mdb > quello di prima"_s});
        Watch watch(home.path());
        watch.arm({.calls = +Call::Sync, .error = EIO}, sync);
        EXPECT_THROW(store::putInPlace(home.filePath(u"nuovo.mdb"_s), home.filePath(u"Vanzer.mdb"_s)),
                     store::StoreError);
        EXPECT_EQ(Disk::of(home.path())["Vanzer.mdb"], sync == 1 ? "quello di prima" : "nuovo");
    }
}

/// Whichever sync of a rebuild fails, the old archive still exists, in place or as a kept file.
TEST(Rebuild, KeepsTheArchiveFromBeforeWhereASyncFails) {
    bool keptAlone = false;
    for (int n = 1;; ++n) {
        const QTemporaryDir home;
        prepare(home.path(), script(u"+travelled; start; +another version"_s));
        const Disk before = Disk::of(home.path());
        Watch watch(home.path());
        watch.arm({.calls = +Call::Sync, .error = EIO}, n);
        Desk desk(home.path());
        const QStringList told = desk.run({u"start"_s});
        const QStringList kept = QDir(home.filePath(u"Copie"_s)).entryList({u"*ricostruzione*"_s});
        if (!watch.hit)
            break;
        const bool rebuilt = Disk::of(home.path())["Vanzer.mdb"] != before["Vanzer.mdb"];
        EXPECT_TRUE(!rebuilt || kept == QStringList{u"Vanzer prima della ricostruzione (ancora 10 avvii).mdb"_s})
            << n << ' ' << text(kept);
        keptAlone |= rebuilt && !told.isEmpty() && !desk.alive();
    }
    EXPECT_TRUE(keptAlone) << "the last sync never failed alone";
}

TEST(TwoPrograms, TheSecondIsToldByNameAndChangesNothing) {
    const QTemporaryDir home;
    Desk first(home.path());
    first.run(script(u"start; trip GARDA 5"_s));
    // Even the archive itself, chosen as a file to import, doesn't unlock it.
    const QStringList told =
        first.run(script(u"click cmdExport; file Vanzer.mdb; click cmdImportExport(1); click cmdImExp(1)"_s));
    EXPECT_TRUE(told.join(u' ').contains(u"è l'archivio stesso")) << text(told);
    // Runs in another process, because opening and closing the archive's file here would release its lock.
    const End second = inChild([&home] {
        const Disk before = Disk::of(home.path());
        Desk desk(home.path());
        EXPECT_TRUE(
            desk.run({u"start"_s}).join(u' ').contains(home.path() + u"/Vanzer.mdb è già aperto da un altro Vanzer"_s));
        EXPECT_FALSE(desk.alive());
        EXPECT_EQ(text(desk.records()), "");
        const Disk after = Disk::of(home.path());
        EXPECT_TRUE(after.names == before.names && after.contents == before.contents);
        return false;
    });
    EXPECT_EQ(second, End::Held);
    EXPECT_TRUE(first.run(script(u"trip COMO 5"_s)).join(u' ').contains(u"Confermi inserimento meta?"));
    EXPECT_TRUE(text(first.records()).find("COMO 4") != std::string::npos);
}

TEST(Refused, AnItineraryOfTooManyRecords) {
    const QTemporaryDir home;
    Desk desk(home.path());
    desk.run(script(u"start; legs GARDA 0"_s));
    Form& form = *desk.program().window();
    const auto leave = [&](int legs) {
        TestiTabella rows;
        rows.setRows(legs);
        for (int r = 0; r < legs; ++r) {
            rows.at(r, 1) = u"RIVA"_s;
            rows.at(r, 3) = u"7"_s;
            rows.at(r, 4) = u"A"_s;
        }
        form.mfgTab.setContents(std::move(rows));
        return desk.run(script(u"+end editing"_s)).last().toStdString();
    };
    const auto stored = [&form] { return form.archivio.tabella(u"Itinerari"_s).record.size(); };
    EXPECT_EQ(leave(10'000), "Impossibile: l'itinerario supera 9.999 tratti!");
    EXPECT_EQ(stored(), 0U);
    EXPECT_TRUE(form.cmdFine.reachable());
    EXPECT_EQ(form.mfgTab.rows(), 10'001);
    static_cast<void>(leave(9'999));
    EXPECT_EQ(stored(), 9'999U);
}

} // namespace
} // namespace vanzer::stress
