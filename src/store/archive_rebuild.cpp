// SPDX-License-Identifier: MIT
// Opens the archive, makes a new one, and rebuilds a file whose tables differ from the declared ones.
//
// A rebuild fills a new file beside the old one. The old file stays open, and so locked, until the new one is complete,
// closed and safe on the disk. Then a rename puts the new file in its place. A crash at any point leaves either the old
// file or the new one.
#include "store/archive.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <utility>

#include <QFile>
#include <QFileInfo>

#include "store/field_values.h"
#include "store/kept_archive.h"
#include "store/query_sql.h"
#include "store/safe_files.h"

namespace vanzer::store {

namespace {

/// The first round may find that a rebuild is needed; the second then passes. A file that needs more can't be repaired.
constexpr int mostRounds = 3;

/// True if the new field can store the value unchanged.
bool fits(const Statement& old, int column, FieldKind from, const FieldDef& to) {
    if (from != to.kind || old.isNull(column))
        return false;
    if (to.kind != FieldKind::Text)
        return true;
    const int bytes = old.bytes(column);
    return old.isText(column) && bytes > 0 && bytes <= to.size;
}

bool isCut(const Valore& value, const FieldDef& to) {
    const auto* const text = std::get_if<QString>(&value);
    return text != nullptr && to.kind == FieldKind::Text && to.size > 0 && text->size() > to.size;
}

/// Names of the fields that `table` and `other` share, in the order of `table`.
QStringList knownFields(const TableInfo& table, const TableInfo& other) {
    QStringList names;
    for (const FieldDef& field : table.campi) {
        if (other.campo(field.name) >= 0)
            names += field.name.toCaseFolded();
    }
    return names;
}

/// For each field of the new table, the position of its value in the old table; -1 for none. A field that the old table
/// lacks takes the old field at the same position, if the new table has no field of that one's name.
std::vector<int> sources(const TableInfo& old, const TableInfo& made) {
    std::vector<int> found;
    for (std::size_t place = 0; place < made.campi.size(); ++place) {
        int source = old.campo(made.campi[place].name);
        if (source < 0 && place < old.campi.size() && made.campo(old.campi[place].name) < 0)
            source = static_cast<int>(place);
        found.push_back(source);
    }
    return found;
}

/// Appends the fields that only the old table has to the new one.
std::shared_ptr<const TableInfo> carryFields(Database& from, const TableInfo& old, Database& to,
                                             const TableInfo& made) {
    for (const FieldDef& field : old.campi) {
        if (made.campo(field.name) < 0)
            to.changeSchema("ALTER TABLE " + quotedName(made.nome) + " ADD COLUMN " + quotedName(field.name) + ' ' +
                            from.tipo(old.nome, field.name));
    }
    return to.tabella(made.nome);
}

/// Copies the records and returns the number of values that had to be cut.
qint64 copyTable(Database& from, const TableInfo& old, Database& to, const TableInfo& declared) {
    const std::vector<int> places = sources(old, declared);
    const auto made = carryFields(from, old, to, declared);
    qint64 cut = 0;
    const StatementLease source = from.prepare(old.selezione + " ORDER BY rowid");
    const StatementLease target = to.prepare(made->inserimento);
    while (source->step()) {
        for (std::size_t place = 0; place < made->campi.size(); ++place) {
            const int parameter = static_cast<int>(place) + 1;
            const FieldDef& field = made->campi[place];
            const bool carried = place >= places.size();
            const int column = (carried ? old.campo(field.name) : places[place]) + 1;
            if (column == 0) {
                target->bind(parameter, valoreIniziale(field));
                continue;
            }
            const FieldKind kind = old.campi[static_cast<std::size_t>(column) - 1].kind;
            if (carried || fits(*source, column, kind, field)) {
                target->bindColumn(parameter, *source, column);
                continue;
            }
            const Valore value = source->value(column);
            cut += isCut(value, field) ? 1 : 0;
            target->bind(parameter, adattato(value, kind, field));
        }
        to.write(*made, *target);
    }
    return cut;
}

/// Copies a table that only the old file has.
void carryTable(Database& from, const QString& name, Database& to) {
    for (const QByteArray& statement : from.dichiarazioni(name))
        to.changeSchema(statement);
    const auto table = to.tabella(name);
    QByteArray fields;
    for (const FieldDef& field : table->campi)
        fields += (fields.isEmpty() ? "" : ",") + quotedName(field.name);
    const StatementLease source = from.prepare("SELECT " + fields + " FROM " + quotedName(name));
    const StatementLease target = to.prepare(table->inserimento);
    while (source->step()) {
        for (int column = 0; column < static_cast<int>(table->campi.size()); ++column)
            target->bindColumn(column + 1, *source, column);
        to.write(*table, *target);
    }
}

/// Throws Corrupt if the file has tables but no declared one, Unlike if a table has the declared fields in another
/// order.
void requireOurs(Database& file) {
    bool any = file.tabelle().isEmpty();
    for (int number = primaTabella; number <= ultimaTabella; ++number) {
        const auto stored = file.tabella(TabelleNomi(number));
        if (stored == nullptr)
            continue;
        any = true;
        const TableInfo declared{TabelleNomi(number), campiDescritti(TabelleCampi(number)), {}, {}};
        if (knownFields(*stored, declared) != knownFields(declared, *stored))
            throw StoreError(StoreError::Kind::Unlike, file.percorso(), declared.nome);
    }
    if (!any)
        throw StoreError(StoreError::Kind::Corrupt, file.percorso());
}

/// Marks the file with the format number. If that fails, for instance on a full disk, the next start tries again.
void givesFormat(Database& archive) {
    try {
        if (!archive.hasFormat())
            archive.makeDistinct();
    } catch (const StoreError&) {
        return;
    }
}

/// Removes what an earlier attempt left. Throws Busy if another program has the file open, ReadOnly if it can't be
/// removed.
void clearPlace(const QString& temporary) {
    if (!QFileInfo::exists(temporary))
        return;
    try {
        static_cast<void>(Database::create(temporary));
    } catch (const StoreError& error) {
        if (error.kind() == StoreError::Kind::Busy)
            throw;
    }
    removeFile(temporary);
    if (QFileInfo::exists(temporary))
        throw StoreError(StoreError::Kind::ReadOnly, temporary);
}

/// The newest copy that has destinations, or else the newest copy; nothing if there is none.
std::optional<CopiaTrovata> copyToResume(const QString& archivePath) {
    const std::vector<CopiaTrovata> copies = copieAccanto(archivePath);
    const auto full = std::ranges::find_if(copies, [](const CopiaTrovata& copy) { return copy.mete > 0; });
    if (copies.empty())
        return std::nullopt;
    return full == copies.end() ? copies.front() : *full;
}

} // namespace

Archive::Apertura Archive::openArchive(const PrimaDellUso& before, const SeManca& missing) {
    close();
    Apertura opening;
    const QString archivePath = PercorsoProgramma + nomeArchivio;
    for (int round = 1;; ++round) {
        PercorsoDatabase = archivePath;
        const bool made = !QFileInfo::exists(archivePath);
        if (made)
            createArchive(missing);
        DatabaseApre(0);
        if (!Db(0)->giornaleEstraneo().isEmpty())
            opening.giornaleEstraneo = Db(0)->giornaleEstraneo();
        if (!made && round == 1 && before)
            before(*Db(0));
        DataBaseTabelleAggiorna(0);
        if (!Rettifica)
            break;
        if (round == mostRounds)
            throw StoreError(StoreError::Kind::Corrupt, PercorsoDatabase);
        rebuild(opening);
    }
    givesFormat(*Db(0));
    RecordSetImpostaDefault();
    return opening;
}

/// Makes a new file as database 0, fills it and renames it to the archive's name. If that fails, removes `kept`, a copy
/// of the old file: the old file itself is still in place.
void Archive::makeFile(const std::function<void()>& fill, const QString& kept) {
    const QString temporary = PercorsoProgramma + nomeRicostruzione;
    const QString archivePath = PercorsoProgramma + nomeArchivio;
    PercorsoDatabase = temporary;
    bool ours = false;
    try {
        clearPlace(temporary);
        ours = true;
        if (databases_[1] != nullptr)
            copyRights(archivePath, temporary);
        databases_[0] = Database::create(temporary);
        DatabaseTabelleCreazione(0);
        PercorsoDatabase = archivePath;
        fill();
        databases_[0].reset();
        removeRemains(temporary);
#ifdef Q_OS_WIN
        databases_[1].reset(); // Windows can't replace an open file
#endif
        putInPlace(temporary, archivePath);
        databases_[1].reset();
    } catch (const StoreError&) {
        close();
        PercorsoDatabase = archivePath;
        const bool inPlace = ours && !QFileInfo::exists(temporary);
        if (ours)
            removeFile(temporary);
        if (!inPlace && !kept.isEmpty())
            removeFile(kept);
        throw;
    }
}

void Archive::createArchive(const SeManca& missing) {
    const auto copy = copyToResume(PercorsoDatabase);
    const SenzaArchivio choice = !copy ? SenzaArchivio::Comincia : missing ? missing(*copy) : SenzaArchivio::Rinuncia;
    if (choice == SenzaArchivio::Rinuncia)
        throw StoreError(StoreError::Kind::NotFound, PercorsoDatabase);
    if (choice == SenzaArchivio::Comincia)
        return makeFile([] {});
    const QString temporary = PercorsoProgramma + nomeRicostruzione;
    clearPlace(temporary);
    copyRights(copy->path, temporary);
    if (std::error_code error; !std::filesystem::copy_file(QFileInfo(copy->path).filesystemFilePath(),
                                                           QFileInfo(temporary).filesystemFilePath(),
                                                           std::filesystem::copy_options::overwrite_existing, error))
        throw StoreError(StoreError::Kind::Io, copy->path, QString::fromStdString(error.message()));
    putInPlace(temporary, PercorsoDatabase);
}

void Archive::rebuild(Apertura& opening) {
    closeSlots();
    requireOurs(*Db(0));
    const QString kept = keepAside(*Db(0));
    databases_[1] = std::move(databases_[0]);
    makeFile([&] { opening.valoriTagliati += copyTables(); }, kept);
    opening.archivioDiPrima = kept;
}

/// Copies all tables and returns the number of values that had to be cut.
qint64 Archive::copyTables() {
    Database& old = database(1);
    Database& made = database(0);
    Transaction all(made);
    qint64 cut = 0;
    for (const QString& name : old.tabelle()) {
        const auto table = old.tabella(name);
        const auto declared = made.tabella(name);
        if (declared == nullptr)
            carryTable(old, name, made);
        else
            cut += copyTable(old, *table, made, *declared);
    }
    all.commit();
    return cut;
}

} // namespace vanzer::store
