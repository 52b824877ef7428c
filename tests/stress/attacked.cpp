#include "stress/attacked.h"

#include <algorithm>
#include <regex>

#include "stress/power.h"

namespace vanzer::stress {

namespace {

/// The records that belong together: those of a destination's itinerary, those of each other table.
std::map<QString, QStringList> groups(const QStringList& records) {
    std::map<QString, QStringList> found;
    for (const QString& record : records)
        found[record.section(u'|', 0, record.startsWith(u"Itinerari|") ? 1 : 0)] += record;
    return found;
}

QStringList storedRecords(const QString& folder) {
    Desk desk(folder);
    return recordsIn(desk);
}

std::string text(const QStringList& lines) {
    return lines.join(u'\n').toStdString();
}

std::string contentsOf(const Disk& disk, const std::string& name) {
    const auto found = disk.names.find(name);
    return found == disk.names.end() ? "none" : disk.contents.at(found->second);
}

} // namespace

QStringList recordsIn(Desk& desk) {
    QStringList records = QString::fromStdString(desk.records()).split(u'\n', Qt::SkipEmptyParts);
    for (QString& record : records) {
        if (record.startsWith(u"GuidaCitta|"))
            record = record.section(u'|', 0, 5) + record.section(u'|', 7);
    }
    return records;
}

std::string wordsAtStart(const QStringList& boxes) {
    QStringList others = boxes;
    others.removeIf([](const QString& box) { return box.contains(u"ci sono le sue copie. Riprendere"_s); });
    return text(others);
}

std::string unclearWords(const QStringList& boxes) {
    static const QStringList clear{u"Errore apertura database"_s,   u"com'era"_s,
                                   u"Non è stato inserito nulla"_s, u"si può riprendere"_s,
                                   u"non può essere letto"_s,       u"0 mète/itinerari;\n0 tratti stradali;\n0 guide"_s,
                                   u"non può essere scritto"_s,     u"ma che non è stato possibile togliere"_s,
                                   u"La stampa non è completa"_s,   u"Nessuna copia ne è stata fatta"_s,
                                   u"Riprendere la copia"_s};
    QStringList others = boxes;
    others.removeIf([](const QString& box) {
        return std::ranges::any_of(clear, [&box](const QString& words) { return box.contains(words); });
    });
    return text(others);
}

// A file for others may have been whole, but under the name that it had until then; of a conversion that was all but
// done the codes stay that it gave out; a rebuild that begins anew keeps the old archive once more.
bool mayBeLeft(const std::string& name) {
    static const std::regex known(R"((giro\.iei|giro\.pdf|Vanztabl\.txt|ListaLocalita\.txt)\.\w{6}|VanzMete\.codici|)"
                                  R"(Copie/Vanzer prima della ricostruzione \d+ \(ancora \d+ avvii\)\.mdb)");
    return std::regex_match(name, known);
}

void Attacked::SetUp() {
    ASSERT_TRUE(folders.isValid());
    QDir().mkpath(prepared);
    work().prepare(prepared);
    ready = Disk::of(prepared);
    ready.lay(folder);
    before = stored = storedRecords(folder);
    {
        Watch watch(folder);
        watch.record(recording);
        Desk desk(folder, work().today);
        desk.run(lines(work().before));
        if (!work().atStart())
            before = recordsIn(desk);
        firstRisky = recording.changes.size();
        usualBoxes = desk.run(lines(work().risky));
        for (unsigned call = 0; call < kindsOfCalls; ++call)
            calls[call] = Watch::count(static_cast<Call>(call));
    }
    done = Disk::of(folder);
    const Disk kept = afterAll(recording, recording.changes.size());
    ASSERT_EQ(kept.names.size(), done.names.size());
    for (const auto& [name, number] : done.names)
        ASSERT_TRUE(contentsOf(kept, name) == contentsOf(done, name))
            << name << " changes behind the back of the recording";
    after = storedRecords(folder);
    startedAfter = started();
    for (const Disk& disk : {ready, done, Disk::of(folder)}) {
        for (const auto& [name, number] : disk.names)
            names += '|' + name + '|';
    }
    ready.lay(folder);
    Desk(folder, work().today).run(lines(work().before));
    startedBefore = started();
}

QStringList Attacked::started() const {
    Desk desk(folder, work().today);
    desk.run(work().starts());
    return recordsIn(desk);
}

QStringList Attacked::lines(const QStringList& commands) const {
    QStringList told = commands;
    return told.replaceInStrings(u"{}"_s, folder);
}

QStringList Attacked::troubles(Desk& desk, const QStringList& commands) const {
    for (const QString& line : lines(commands)) {
        QStringList told = desk.run({line});
        told.removeIf([this](const QString& box) { return usualBoxes.contains(box); });
        if (!told.isEmpty())
            return told;
    }
    return {};
}

void Attacked::expectGroups(const QStringList& found, const std::vector<QStringList>& states) const {
    std::vector<std::map<QString, QStringList>> known;
    std::ranges::transform(states, std::back_inserter(known), groups);
    for (const auto& [name, records] : groups(found)) {
        const bool asKnown = std::ranges::any_of(known, [&name = name, &records = records](const auto& state) {
            const auto there = state.find(name);
            return there != state.end() && there->second == records;
        });
        // Old destinations are written with the first file and adjusted with the last.
        EXPECT_TRUE(asKnown || name == u"MeteVanzer") << text(records);
    }
}

void Attacked::expectOutputs(const QString& where, bool fresh) const {
    if (work().outputs.isEmpty())
        return;
    const Disk disk = Disk::of(where);
    for (const QString& output : work().outputs) {
        const std::string name = output.toStdString();
        const std::string contents = contentsOf(disk, name);
        if (fresh || contents != contentsOf(ready, name)) {
            EXPECT_TRUE(contents == contentsOf(done, name)) << name;
        }
    }
}

void Attacked::expectFiles(const Disk& disk) const {
    for (const auto& [name, number] : disk.names)
        EXPECT_TRUE(contains(names, ('|' + name + '|').c_str()) || mayBeLeft(name)) << name << " is left";
    for (const auto& [name, number] : ready.names) {
        if (name.starts_with("Copie/") && done.names.contains(name)) {
            EXPECT_TRUE(contentsOf(disk, name) == contentsOf(ready, name)) << name;
        }
    }
    for (const auto& [name, number] : disk.names) {
        if (!name.starts_with("Copie/") || ready.names.contains(name))
            continue;
        Disk restored;
        restored.names["Vanzer.mdb"] = number;
        restored.contents[number] = disk.contents.at(number);
        restored.lay(folders.filePath(u"ripresa"_s));
        SCOPED_TRACE(name);
        const QStringList records = storedRecords(folders.filePath(u"ripresa"_s));
        expectGroups(records, {stored, before, after});
        EXPECT_TRUE(stored.isEmpty() || !records.isEmpty());
    }
}

void Attacked::expectWhole(const QString& where, bool finished) const {
    expectOutputs(where, false);
    const QStringList found = storedRecords(where);
    if (work().inSteps)
        expectGroups(found, {before, after});
    else if (found != before || finished) {
        EXPECT_EQ(text(found), text(after)) << (found == before ? "the command is undone" : "neither before nor after");
    }
    Desk desk(where, work().today);
    EXPECT_EQ(wordsAtStart(desk.run(work().starts())), "");
    if (!work().inSteps) {
        EXPECT_EQ(text(recordsIn(desk)), text(found == after ? startedAfter : startedBefore));
    }
    const bool resumes = found != after || !work().outputs.isEmpty();
    if (resumes && !work().resume.isEmpty()) {
        desk.run(lines(work().resume));
        expectOutputs(where, true);
        desk.run({u"start"_s});
    }
    if (work().atStart() || (resumes && !work().resume.isEmpty())) {
        EXPECT_TRUE(groups(recordsIn(desk)) == groups(startedAfter)) << text(recordsIn(desk)) << "\nand not\n"
                                                                     << text(startedAfter);
    }
    desk.leave();
    expectFiles(Disk::of(where));
}

void Attacked::expectWholeAfterFault(Desk& desk, const QStringList& told) const {
    EXPECT_EQ(unclearWords(told), "");
    EXPECT_TRUE(desk.alive() || (work().atStart() && !told.isEmpty()));
    expectOutputs(folder, told.isEmpty());
    const QStringList now = recordsIn(desk);
    if (told.isEmpty() && !(work().canBeMadeAnew && now == before)) {
        EXPECT_EQ(text(now), text(after));
    } else if (!told.isEmpty() && work().inSteps) {
        expectGroups(now, {before, after});
    } else if (!told.isEmpty()) {
        EXPECT_EQ(text(now), text(before));
    }
    if (!told.isEmpty() || work().canBeMadeAnew) {
        EXPECT_EQ(text(troubles(desk, work().again)), "");
        EXPECT_EQ(text(recordsIn(desk)), text(after));
        expectOutputs(folder, true);
    }
    desk.leave();
    expectFiles(Disk::of(folder));
    EXPECT_EQ(text(storedRecords(folder)), text(after));
}

} // namespace vanzer::stress
