// SPDX-License-Identifier: MIT
// Damaged archives and journals, and a large archive with unreadable pages.
#include <algorithm>
#include <cerrno>

#include <QFileInfo>
#include <QRegularExpression>
#include <QTemporaryDir>

#include "stress/attempts.h"
#include "stress/desk.h"
#include "stress/system_calls.h"

namespace vanzer::stress {
namespace {

const std::string archiveName = "Vanzer.mdb";
const std::string journalName = "Vanzer.mdb-journal";

/// Kills a program while it stores. Its journal then waits to be rolled back.
void killWhileStoring(const QString& folder) {
    const Disk before = Disk::of(folder);
    Disk now = before;
    for (int n = 1; now[archiveName] == before[archiveName] || !now[journalName].starts_with('\xd9'); ++n) {
        before.lay(folder);
        const End end = inChild([&folder, n] {
            Desk desk(folder);
            desk.run(script(u"start; legs ISEO 12"_s));
            Watch watch(folder);
            watch.arm({.calls = +Call::Sync}, n);
            desk.run(script(u"+end editing"_s));
            return false;
        });
        ASSERT_EQ(end, End::Killed);
        now = Disk::of(folder);
    }
}

void damage(std::string& bytes, std::mt19937_64& chance) {
    constexpr std::size_t page = 4096; // bytes
    const auto draw = [&chance](std::size_t below) { return chance() % std::max<std::size_t>(below, 1); };
    const auto set = [&](std::size_t at) {
        constexpr char telling[] = {0, 1, 2, 5, 10, 13, 127, -1};
        if (at < bytes.size())
            bytes[at] = draw(2) == 0 ? telling[draw(sizeof telling)] : static_cast<char>(draw(256));
    };
    const std::size_t size = std::min(page, bytes.size());
    const std::size_t one = draw(bytes.size() / page) * page;
    const std::size_t other = draw(bytes.size() / page) * page;
    const auto kind = draw(14);
    if (kind < 3) { // anywhere in a page
        for (std::size_t i = draw(20); i < 20; ++i)
            set(one + draw(page));
    } else if (kind < 6) { // at the head of a page, where its cells and pointers begin
        for (std::size_t i = draw(4); i < 4; ++i)
            set(one + draw(24));
    } else if (kind < 9) { // in a text, or in the text of a table's definition
        for (std::size_t i = draw(3); i < 3; ++i)
            set(bytes.find_first_of("LPSTVZ", draw(bytes.size())));
    } else if (kind == 9)
        set(draw(100));
    else if (kind == 10)
        bytes.resize(draw(bytes.size()));
    else if (kind == 11)
        std::fill_n(&bytes[one], size, '\0');
    else if (kind == 12)
        std::swap_ranges(&bytes[one], &bytes[one] + size, &bytes[other]);
    else
        std::copy_n(&bytes[one], size, &bytes[other]);
}

/// Whether the head announces a write-ahead log. The engine repairs that before it looks any further.
bool speaksOfLog(const std::string& archive) {
    constexpr std::size_t versions = 18;
    return archive.size() > versions + 1 && (archive[versions] != 1 || archive[versions + 1] != 1);
}

/// No damage crashes the program or makes it hang, whatever follows. The copies stay, and so does a refused file.
TEST(Damaged, ArchivesAndJournals) {
    const QTemporaryDir folders;
    const QString folder = folders.filePath(u"viaggi"_s);
    prepare(folder, script(u"+travelled; copy Vanzer.mdb > Copie/Vanzer 2026-05-03.mdb"_s));
    Disk whole[2] = {Disk::of(folder), {}};
    killWhileStoring(folder);
    whole[1] = Disk::of(folder);
    ASSERT_FALSE(whole[0].names.contains(journalName));
    eachDrawn(
        [&](int number, std::mt19937_64& chance) {
            Disk disk = whole[chance() % 2];
            const bool hot = disk.names.contains(journalName);
            for (auto times = chance() % 2; times < 2; ++times)
                damage(disk.contents[disk.names[hot && chance() % 2 == 0 ? journalName : archiveName]], chance);
            const QDate today(2026, 5, chance() % 3 == 0 ? 20 : 4);
            disk.lay(folder);
            attempt(number, [&] {
                Desk desk(folder, today);
                const QStringList boxes = desk.tries({u"start"_s});
                const bool refused = !desk.alive();
                if (!refused)
                    desk.tries(script(u"+all rooms; +changes; start"_s, folder));
                const auto stays = [&](const std::string& name) {
                    QFile file(folder + u'/' + QString::fromStdString(name));
                    return file.open(QIODevice::ReadOnly) && file.size() == std::ssize(disk[name]) &&
                           file.readAll().toStdString() == disk[name];
                };
                EXPECT_TRUE(!refused || hot || speaksOfLog(disk[archiveName]) || stays(archiveName));
                for (const auto& [name, file] : disk.names)
                    EXPECT_TRUE(!name.starts_with("Copie/") || stays(name)) << name;
                return !boxes.isEmpty();
            });
        },
        8);
}

/// The exchange file without the guide's marks of use. A difference in these is no failure.
QString withoutMarks(const std::string& file) {
    static const QRegularExpression mark(u"^((?:[^\u00FD\\n]*\u00FD){5})[^\u00FD\\n]*"_s,
                                         QRegularExpression::MultilineOption);
    return QString::fromLatin1(file.data(), std::ssize(file)).replace(mark, u"\\1"_s);
}

/// A read that fails in any room is told to the user. What is written then is still whole.
TEST(LargeArchive, Reads) {
    const QTemporaryDir folders;
    const QString folder = folders.filePath(u"viaggi"_s);
    prepare(folder, script(u"+large"_s));
    EXPECT_GT(QFileInfo(folder + u"/Vanzer.mdb"_s).size(), 20'000'000);
    const Disk ready = Disk::of(folder);
    const QStringList lines = script(u"start; +all rooms"_s, folder);
    const auto outputs = [&folder] {
        const Disk disk = Disk::of(folder);
        return std::vector<std::string>{withoutMarks(disk["giro.iei"]).toStdString(), disk["giro.pdf"],
                                        disk["Vanztabl.txt"], disk["ListaLocalita.txt"]};
    };
    QStringList usual;
    int reads = 0;
    {
        const Watch watch(folder);
        usual = Desk(folder).run(lines);
        reads = watch.counts[static_cast<std::size_t>(Call::Read)];
    }
    const auto whole = outputs();
    ASSERT_GT(reads, 5000);
    for (const std::string& bytes : whole)
        ASSERT_FALSE(bytes.empty());
    eachDrawn([&](int number, std::mt19937_64& chance) {
        ready.lay(folder);
        attempt(number, [&] {
            QStringList told;
            {
                Desk desk(folder);
                Watch watch(folder);
                watch.arm({.calls = +Call::Read, .error = EIO, .lasting = chance() % 2 == 0},
                          1 + static_cast<int>(chance() % static_cast<unsigned>(reads)));
                told = desk.tries(lines);
                EXPECT_TRUE(watch.hit);
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
