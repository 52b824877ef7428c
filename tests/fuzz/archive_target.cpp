#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "fuzz_target.h"
#include "store/archive.h"

namespace vanzer::fuzz {

namespace {

using namespace Qt::StringLiterals;
using store::Archive;

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

/// Each way through a table meets the same records.
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

constexpr const char* place = "Qui";

void addRecord(Archive& archive) {
    store::Comando command(archive);
    store::Recordset& guide = archive.Rs(store::GuidaCitta);
    guide.AddNew();
    guide.write("Localita", QString::fromLatin1(place));
    guide.Update();
    command.commit();
}

qint64 added(Archive& archive) {
    using enum store::Condition::Test;
    return walked(archive,
                  {store::TabelleNomi(store::GuidaCitta), {{u"Localita"_s, Equal, QString::fromLatin1(place)}}, {}});
}

/// Whether the archive was found sound.
bool open(Archive& archive) {
    bool sound = false;
    archive.openArchive(
        [&sound](store::Database& file) { sound = file.check() != store::Database::Salute::Danneggiato; });
    return sound;
}

} // namespace

void openArchive(const QByteArray& input) {
    const QTemporaryDir folder;
    QFile file(folder.filePath(store::nomeArchivio));
    promise(file.open(QIODevice::WriteOnly) && file.write(input) == input.size(), "the archive can be written");
    file.close();
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

} // namespace vanzer::fuzz
