// Archives and journals that are damaged, and a large archive whose pages the disk doesn't give.
#include <cerrno>

#include <QTemporaryDir>

#include <sys/resource.h>

#include "stress/attacked.h"

namespace vanzer::stress {
namespace {

constexpr std::size_t page = 4096; // bytes
const std::string archiveName = "Vanzer.mdb";
const std::string journalName = "Vanzer.mdb-journal";

/// A command in each room.
QStringList roomsFrom(const QString& folder) {
    return {u"click cmdRicerca"_s,
            u"pick cmbRicerca GARDA"_s,
            u"click cmdItinerario"_s,
            u"answer 7"_s,
            u"click cmdFine"_s,
            u"click cmdCalcola"_s,
            u"click cmdStampa"_s,
            u"check chkTabella 1"_s,
            u"click cmdEsegui(0)"_s,
            u"pick lstStampanti PDF"_s,
            u"file "_s + folder + u"/giro.pdf"_s,
            u"click cmdSelStampante(0)"_s,
            u"click cmdCalcola"_s,
            u"click cmdGuidaCitta"_s,
            u"row mfgTab 2"_s,
            u"click cmdFineInserimento"_s,
            u"click cmdExport"_s,
            u"click cmdImportExport(0)"_s,
            u"click cmdTutto(0)"_s,
            u"file giro.iei"_s,
            u"answer 6 6"_s,
            u"click cmdImExp(0)"_s};
}

const QStringList changesOfTrips = QStringList{u"click cmdGuidaCitta"_s, u"row mfgTab 1"_s, u"set txtGDescr Rocca"_s,
                                               u"click cmdSalvaRiga"_s, u"click cmdFineInserimento"_s} +
                                   storedTrip(u"ISEO"_s, 3) + QStringList{u"answer 6"_s, u"click cmdCancMeta"_s};

/// The archive of a killed program: its journal waits to be rolled back.
void killedWhileStoring(const QString& folder) {
    travelled(folder);
    const Disk before = Disk::of(folder);
    const std::string stored = bytesOf(folder + u"/Vanzer.mdb"_s);
    std::string journal;
    for (int n = 1; bytesOf(folder + u"/Vanzer.mdb"_s) == stored || journal.empty() || journal[0] == '\0'; ++n) {
        before.lay(folder);
        const End end = inChild([&folder, n] {
            Desk desk(folder);
            desk.run(QStringList{u"start"_s} + newTrip(u"ISEO"_s, 12) + QStringList{u"answer 6"_s});
            Watch watch(folder);
            watch.arm({.calls = +Call::Sync}, n);
            desk.run({u"click cmdFine"_s});
            return false;
        });
        ASSERT_EQ(end, End::Killed);
        journal = bytesOf(folder + u"/Vanzer.mdb-journal"_s);
    }
}

void damage(std::string& bytes, std::mt19937_64& chance) {
    const auto draw = [&chance](std::size_t below) { return chance() % std::max<std::size_t>(below, 1); };
    const auto set = [&](std::size_t at) {
        constexpr char telling[] = {0, 1, 2, 5, 10, 13, 127, -1};
        if (at < bytes.size())
            bytes[at] = draw(2) == 0 ? telling[draw(sizeof telling)] : static_cast<char>(draw(256));
    };
    const std::size_t size = std::min(page, bytes.size());
    const std::size_t one = draw(bytes.size() / page) * page;
    const std::size_t other = draw(bytes.size() / page) * page;
    switch (draw(14)) {
    case 0:
    case 7:
    case 8: // anywhere in a page
        for (std::size_t i = draw(20); i < 20; ++i)
            set(one + draw(page));
        break;
    case 1:
    case 9:
    case 10: // in the head of a page, where its cells and pointers begin
        for (std::size_t i = draw(4); i < 4; ++i)
            set(one + draw(24));
        break;
    case 2: set(draw(100)); break;
    case 3: bytes.resize(draw(bytes.size())); break;
    case 4: std::fill_n(bytes.begin() + static_cast<std::ptrdiff_t>(one), size, '\0'); break;
    case 5: std::swap_ranges(&bytes[one], &bytes[one] + size, &bytes[other]); break;
    case 6: std::copy_n(&bytes[one], size, &bytes[other]); break;
    default: // a text, or the text of a table
        for (std::size_t i = draw(3); i < 3; ++i)
            set(bytes.find_first_of("LPSTVZ", draw(bytes.size())));
    }
}

/// The head tells of a write-ahead log: the engine sets that right before it looks any further.
bool speaksOfLog(const std::string& archive) {
    constexpr std::size_t versions = 18;
    return archive.size() > versions + 1 && (archive[versions] != 1 || archive[versions + 1] != 1);
}

/// No damage crashes the program or makes it hang, whatever is done then; the copies stay, and so does a file that is
/// refused.
TEST(Damaged, ArchivesAndJournals) {
    const QTemporaryDir folders;
    const QString folder = folders.filePath(u"viaggi"_s);
    Disk whole[2];
    void (*const prepare[])(const QString&) = {travelled, killedWhileStoring};
    for (int i = 0; i < 2; ++i) {
        Disk().lay(folder);
        prepare[i](folder);
        ASSERT_TRUE(QDir(folder).mkpath(u"Copie"_s));
        ASSERT_TRUE(QFile::copy(folder + u"/Vanzer.mdb"_s, folder + u"/Copie/Vanzer 2026-05-03.mdb"_s));
        whole[i] = Disk::of(folder);
        ASSERT_EQ(whole[i].names.contains(journalName), i == 1);
    }
    eachDrawn(
        [&](int number) {
            std::mt19937_64 chance(options().seed * 1'000'003 + static_cast<unsigned>(number));
            Disk disk = whole[chance() % 2];
            const bool hot = disk.names.contains(journalName);
            for (auto times = chance() % 2; times < 2; ++times)
                damage(disk.contents[disk.names[hot && chance() % 2 == 0 ? journalName : archiveName]], chance);
            const QDate today(2026, 5, chance() % 3 == 0 ? 20 : 4);
            disk.lay(folder);
            attempt(number, [&] {
#ifdef VANZER_LIMITED_MEMORY
                const rlimit room{rlim_t{4} << 30, rlim_t{4} << 30};
                setrlimit(RLIMIT_AS, &room);
#endif
                Desk desk(folder, today);
                const QStringList boxes = desk.tries({u"start"_s});
                if (desk.alive())
                    desk.tries(roomsFrom(folder) + changesOfTrips + QStringList{u"start"_s});
                else if (const std::string& given = disk.contents[disk.names[archiveName]];
                         !hot && !speaksOfLog(given)) {
                    EXPECT_TRUE(bytesOf(folder + u"/Vanzer.mdb"_s) == given);
                }
                for (const auto& [name, file] : disk.names) {
                    if (name.starts_with("Copie/")) {
                        EXPECT_TRUE(bytesOf(folder + u'/' + QString::fromStdString(name)) == disk.contents[file])
                            << name;
                    }
                }
                return !boxes.isEmpty();
            });
        },
        8);
}

/// More than the engine keeps in memory of an archive: records as large as pages.
void largeArchive(const QString& folder) {
    travelled(folder);
    Desk(folder).run({u"start"_s});
    constexpr auto times = "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < %1) ";
    const struct {
        const char *table, *more;
        int most;
    } tables[] = {
        {"MeteVanzer",
         "UPDATE MeteVanzer SET CodiceMeta = printf('%06d', rowid), Localita = Localita || ' ' || rowid "
         "WHERE rowid > 2",
         600},
        {"Itinerari", "UPDATE Itinerari SET CodiceMeta = printf('%06d', 2 + rowid / 9) WHERE rowid > 200", 150},
        {"GuidaCitta", "UPDATE GuidaCitta SET Localita = 'PAESE ' || rowid WHERE rowid > 1", 2500},
    };
    for (const auto& [table, more, most] : tables) {
        const QString name = QString::fromLatin1(table);
        changeSchema(
            folder,
            u"INSERT INTO %1 %2SELECT %1.* FROM %1, n"_s.arg(name, QString::fromLatin1(times).arg(most)).toUtf8());
        changeSchema(folder, more);
        changeSchema(folder, "ALTER TABLE " + QByteArray(table) + " ADD COLUMN Peso BLOB");
        changeSchema(folder, "UPDATE " + QByteArray(table) + " SET Peso = zeroblob(3000)");
    }
    Desk(folder).run({u"start"_s}); // looks at all of it; the next start doesn't
    EXPECT_GT(QFileInfo(folder + u"/Vanzer.mdb"_s).size(), 20'000'000);
}

/// The exchange file without the guide's marks of use, which are no reason to tell a failure.
std::string withoutMarks(const std::string& file) {
    constexpr int markColumn = 5;
    std::string kept;
    int column = 0;
    for (const char c : file) {
        column = c == '\n' ? 0 : column + (c == '\xfd' ? 1 : 0);
        if (column != markColumn)
            kept += c;
    }
    return kept;
}

/// A read that fails in any room is told, and what comes out then is whole all the same.
TEST(LargeArchive, Reads) {
    const QTemporaryDir folders;
    const QString folder = folders.filePath(u"viaggi"_s);
    largeArchive(folder);
    const Disk ready = Disk::of(folder);
    const QStringList lines = QStringList{u"start"_s} + roomsFrom(folder);
    const auto outputs = [&folder] {
        std::map<QString, std::string> bytes;
        for (const auto& name : {u"giro.iei"_s, u"giro.pdf"_s, u"Vanztabl.txt"_s, u"ListaLocalita.txt"_s})
            bytes[name] = bytesOf(folder + u'/' + name);
        bytes[u"giro.iei"_s] = withoutMarks(bytes[u"giro.iei"_s]);
        return bytes;
    };
    QStringList usual;
    int reads = 0;
    {
        const Watch watch(folder);
        usual = Desk(folder).run(lines);
        reads = Watch::count(Call::Read);
    }
    const auto whole = outputs();
    ASSERT_GT(reads, 5000);
    for (const auto& [name, bytes] : whole)
        ASSERT_FALSE(bytes.empty()) << name.toStdString();
    eachDrawn([&](int number) {
        std::mt19937_64 chance(options().seed * 1'000'003 + static_cast<unsigned>(number));
        ready.lay(folder);
        attempt(number, [&] {
            QStringList told;
            {
                Desk desk(folder);
                Watch watch(folder);
                watch.arm({.calls = +Call::Read, .error = EIO, .lasting = chance() % 2 == 0},
                          1 + static_cast<int>(chance() % static_cast<unsigned>(reads)));
                told = desk.tries(lines);
                EXPECT_TRUE(watch.hit());
                watch.disarm();
            }
            told.removeIf([&usual](const QString& box) { return usual.contains(box); });
            EXPECT_EQ(unclearWords(told), "");
            EXPECT_TRUE(!told.isEmpty() || outputs() == whole) << "nothing is told";
            Desk(folder).tries(lines);
            EXPECT_TRUE(outputs() == whole);
            return !told.isEmpty();
        });
    });
}

} // namespace
} // namespace vanzer::stress
