// SPDX-License-Identifier: MIT
// Readers of files that the programs themselves write: archives, drafts, settings, the logbook's command.
#include <algorithm>
#include <tuple>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QScreen>
#include <QSettings>
#include <QTemporaryDir>

#include "core/draft.h"
#include "core/text_file.h"
#include "desktop/desktop_ports.h"
#include "desktop/program.h"
#include "desktop/settings_file.h"
#include "readers.h"
#include "reports/text_files.h"
#include "scribolo/trip.h"
#include "store/archive.h"

namespace vanzer::fuzz {

using namespace Qt::StringLiterals;

namespace {

using store::Archive;

void put(const QString& path, const QByteArray& input) {
    QFile file(path);
    promise(file.open(QIODevice::WriteOnly) && file.write(input) == input.size(), "the file can be written");
}

qint64 walked(Archive& archive, const store::Query& query) {
    archive.RecordSetImposta(0, Archive::slotAppoggio, query);
    store::Recordset& records = archive.Rs(Archive::slotAppoggio);
    qint64 count = 0;
    for (; !records.EOF_(); records.MoveNext()) {
        ++count;
        for (int field = 0; field < records.count(); ++field)
            promise(records.hasValue(field) || records.kind(field) == store::FieldKind::YesNo ||
                        records.testo(field).isEmpty(),
                    "a field without a value has no text");
    }
    return count;
}

/// All ways through a table find the same records.
void walkAll(Archive& archive, bool sound) {
    for (int table = store::primaTabella; table <= store::ultimaTabella; ++table) {
        const QString& name = store::TabelleNomi(table);
        const qint64 all = walked(archive, {name, {}, {}});
        for (const QString& index : archive.indici(name)) {
            for (const bool descending : {false, true})
                promise(walked(archive, {name, {}, {{index, descending}}}) == all || !sound,
                        "an index leads to every record");
        }
    }
}

const QString place = u"Qui"_s;

void addRecord(Archive& archive) {
    store::Comando command(archive);
    store::Recordset& guide = archive.Rs(store::GuidaCitta);
    guide.AddNew();
    guide.write("Localita", place);
    guide.Update();
    command.commit();
}

qint64 added(Archive& archive) {
    using enum store::Condition::Test;
    return walked(archive, {store::TabelleNomi(store::GuidaCitta), {{u"Localita"_s, Equal, place}}, {}});
}

/// Opens the archive. Returns whether it was found sound.
bool open(Archive& archive) {
    bool sound = false;
    archive.openArchive(
        [&sound](store::Database& file) { sound = file.check() != store::Database::Salute::Danneggiato; });
    return sound;
}

/// Opens an archive as the program does, reads it by every index, and stores a record.
void openArchive(const QByteArray& input) {
    const QTemporaryDir folder;
    put(folder.filePath(store::nomeArchivio), input);
    bool sound = false;
    qint64 before = 0;
    bool stored = false;
    try {
        Archive archive(folder.path());
        sound = open(archive);
        walkAll(archive, sound);
        before = added(archive);
        addRecord(archive);
        stored = true;
        promise(added(archive) == before + 1 || !sound, "a stored record is found");
    } catch (const store::StoreError& error) {
        promise(!error.testo().isEmpty(), "a failure says what happened");
    }
    if (!sound || !stored)
        return;
    Archive again(folder.path());
    promise(open(again), "a sound archive stays sound");
    promise(added(again) == before + 1, "a stored record stays");
}

using scribolo::Trip;

constexpr qsizetype longestName = 240; // bytes of UTF-8

void checkTrip(const Trip& trip) {
    promise(trip.days >= 1 && trip.days <= scribolo::longestTrip, "a trip has days, but no more than a logbook");
    promise(scribolo::dayDate(trip, trip.days) == trip.end, "the last day is the end");
    promise(!trip.name.isEmpty() && std::ranges::none_of(trip.name, [](QChar c) { return c < u' '; }),
            "a name is one line");
    for (int day = 1; day <= trip.days; ++day)
        promise(!scribolo::dateWithWeekday(scribolo::dayDate(trip, day)).isEmpty() &&
                    !scribolo::shortDate(scribolo::dayDate(trip, day)).isEmpty(),
                "each day has its date");
    const QString file = scribolo::fileName(trip.name);
    promise(file.toUtf8().size() <= longestName &&
                std::ranges::none_of(file, [](QChar c) { return c < u' ' || QStringView(u"\\/:*?\"<>|").contains(c); }),
            "file systems take the name");
}

/// The file that Vanzer writes for a trip is read as the same trip.
void checkWrittenAgain(const Trip& trip) {
    const auto date = [](QDate day) {
        return std::array{day.toString(u"dd"_s), day.toString(u"MM"_s), day.toString(u"yyyy"_s)};
    };
    const QString word = viaggioPerModuli(trip.name, date(trip.start), date(trip.end));
    const QByteArray written = contenutoTesto({comandoModuli(u"C:\\Vanzer"_s, word)});
    const Trip again = scribolo::tripOf(scribolo::wordOfCommand(written));
    promise(std::tie(again.name, again.start, again.end, again.days) ==
                std::tie(trip.name, trip.start, trip.end, trip.days),
            "a trip comes back as it was written");
}

/// Reads the command file of the logbook's program, and its trip alone.
void readCommandFile(const QByteArray& input) {
    for (const bool whole : {true, false}) {
        try {
            const Trip trip = scribolo::tripOf(whole ? scribolo::wordOfCommand(input) : QString::fromUtf8(input));
            checkTrip(trip);
            if (whole && !trip.name.contains(u"\\Scribolo.exe "_s, Qt::CaseInsensitive))
                checkWrittenAgain(trip);
        } catch (const scribolo::Problem& problem) {
            promise(*problem.what() != '\0', "a problem has a text");
        }
    }
}

/// Reads a draft, writes it and reads it again.
void readDraft(const QByteArray& input) {
    const std::optional<Bozza> draft = bozzaDaiByte(input);
    if (!draft)
        return;
    promise(draft->scritta.isValid(), "a draft has a date");
    const std::optional<Bozza> again = bozzaDaiByte(byteDellaBozza(*draft, draft->scritta));
    promise(again.has_value(), "what was read can be written and read");
    promise(byteDellaBozza(*again, again->scritta) == byteDellaBozza(*draft, draft->scritta), "it says the same");
}

/// An invisible window, shared by all inputs. It lives to the end.
desktop::Program& program() {
    static const QTemporaryDir folder;
    static desktop::SystemClock clock;
    static desktop::Program* made = nullptr;
    if (made != nullptr)
        return *made;
    static int count = 1;
    static char name[] = "Vanzer";
    static char* arguments[] = {name, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static const auto* const application = new QApplication(count, arguments);
    static_cast<void>(application);
    QApplication::setOrganizationName(u"Vanzer"_s);
    made = new desktop::Program({.directory = folder.path(), .decimalMark = u'.', .versione = {}}, clock);
    made->form().chiusa = true; // asks nothing when it is closed
    return *made;
}

/// Starts the window with a settings file, and stores the settings again.
void readSettings(const QByteArray& input) {
    desktop::MainWindow& window = program().window();
    const QTemporaryDir folder;
    QDir(folder.path()).mkdir(u"Vanzer"_s);
    put(folder.filePath(u"Vanzer/Vanzer.conf"_s), input);
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder.path());
    promise(desktop::impostazioniIllegibili(folder.path()).isEmpty(), "a plain file is read");
    for (int times = 0; times < 2; ++times) { // first the settings of the input, then those that the window stored
        window.restorePlace();
        const QRect room = window.screen()->availableGeometry();
        promise(window.size() == window.size().boundedTo(room.size()), "the window is no larger than the screen");
        promise(window.geometry().intersects(room), "the window is on the screen");
        window.close();
    }
}

const Reader archives("archivio", openArchive);
const Reader commands("comando", readCommandFile);
const Reader drafts("bozza", readDraft);
const Reader settings("impostazioni", readSettings);

} // namespace

} // namespace vanzer::fuzz

/// Memory that fontconfig keeps to the end is no leak of ours.
extern "C" const char* __lsan_default_suppressions() {
    return "leak:libfontconfig";
}

extern "C" const char* __lsan_default_options() {
    return "print_suppressions=0";
}
