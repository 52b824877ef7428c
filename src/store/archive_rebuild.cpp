// Opening the archive, and the rebuild of a file whose tables aren't the declared ones any more.
//
// The new file is filled beside the old one, which stays open, and so locked, from its check to the end, when the new
// one is whole, closed and safe on the disk; then the new one takes its name in one step. A crash at any point leaves
// the old file or the new one.
#include "store/archive.h"

#include <algorithm>
#include <utility>

#include "store/field_values.h"
#include "store/query_sql.h"
#include "store/safe_files.h"

namespace vanzer::store {

namespace {

constexpr QLatin1String rebuildName("DBTemp.mdb");

/// A first round may make a rebuild necessary, the second passes. More means that the file can't be mended.
constexpr int mostRounds = 3;

/// True for a value that the new field takes as it stands.
bool fits(const Statement& old, int column, FieldKind from, const FieldDef& to) {
    if (from != to.kind || old.isNull(column))
        return false;
    if (to.kind != FieldKind::Text)
        return true;
    const int bytes = old.bytes(column);
    return old.isText(column) && bytes > 0 && bytes <= to.size;
}

/// Field by field, by position: a descriptor only ever grows at its end.
void copyTable(Database& from, const TableInfo& old, Database& to, const TableInfo& made) {
    const StatementLease source = from.prepara(old.selezione + " ORDER BY rowid");
    const StatementLease target = to.prepara(made.inserimento);
    const std::size_t common = std::min(old.campi.size(), made.campi.size());
    for (std::size_t field = common; field < made.campi.size(); ++field)
        target->bind(static_cast<int>(field) + 1, valoreIniziale(made.campi[field]));
    while (source->step()) {
        for (std::size_t field = 0; field < common; ++field) {
            const int column = static_cast<int>(field) + 1;
            const FieldKind kind = old.campi[field].kind;
            if (fits(*source, column, kind, made.campi[field]))
                target->bindColumn(column, *source, column);
            else
                target->bind(column, adattato(source->value(column), kind, made.campi[field]));
        }
        to.scrive(made, *target);
    }
}

} // namespace

void Archive::apriArchivio(const PrimaDellUso& before) {
    chiudi();
    for (int round = 1;; ++round) {
        PercorsoDatabase = PercorsoProgramma + nomeArchivio;
        bool created = false;
        DatabaseCrea(0, created);
        DatabaseApre(0);
        if (created)
            DatabaseTabelleCreazione(0);
        else if (round == 1 && before)
            before(*Db(0));
        DataBaseTabelleAggiorna(0);
        if (!Rettifica)
            break;
        if (round == mostRounds)
            throw StoreError(StoreError::Kind::Corrupt, PercorsoDatabase);
        ricostruisce();
    }
    RecordSetImpostaDefault();
}

void Archive::ricostruisce() {
    closeSlots();
    databases_[1] = std::move(databases_[0]);
    const QString temporary = PercorsoProgramma + rebuildName;
    const QString archivePath = PercorsoProgramma + nomeArchivio;
    PercorsoDatabase = temporary;
    try {
        toglieFile(temporary);
        bool created = false;
        DatabaseCrea(0, created);
        if (!created) // what takes its place can't be taken away
            throw StoreError(StoreError::Kind::ReadOnly, temporary);
        DatabaseApre(0);
        DatabaseTabelleCreazione(0);
        PercorsoDatabase = archivePath;
        copiaTabelle();
        databases_[0].reset();
        toglieResti(temporary);
#ifdef Q_OS_WIN
        databases_[1].reset(); // there an open file can't be replaced
#endif
        metteAlPosto(temporary, archivePath);
        databases_[1].reset();
    } catch (const StoreError&) {
        chiudi();
        PercorsoDatabase = archivePath;
        toglieFile(temporary);
        throw;
    }
}

void Archive::copiaTabelle() {
    Transaction all(database(0));
    for (int table = primaTabella; table <= ultimaTabella; ++table) {
        const auto old = storedTable(1, table);
        if (old != nullptr)
            copyTable(database(1), *old, database(0), *storedTable(0, table));
    }
    all.commit();
}

} // namespace vanzer::store
