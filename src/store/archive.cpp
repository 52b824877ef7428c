// SPDX-License-Identifier: MIT
#include "store/archive.h"

#include <algorithm>
#include <iterator>

#include <QDir>
#include <QFileInfo>

#include "core/text.h"
#include "store/field_values.h"
#include "store/query_sql.h"

namespace vanzer::store {

namespace {

const QString& markField() {
    static const QString name = QStringLiteral("FlagVisto");
    return name;
}

const QString& placeField() {
    static const QString name = QStringLiteral("Localita");
    return name;
}

bool passes(const TableInfo& stored, const FieldDef& declared) {
    const int position = stored.campo(declared.name);
    if (position < 0)
        return false;
    const FieldDef& field = stored.campi[static_cast<std::size_t>(position)];
    return field.kind != FieldKind::Text || field.size == declared.size;
}

TabellaLetta::Cella cellOf(const Recordset& records, int field) {
    if (records.kind(field) == FieldKind::YesNo)
        return records.siNo(field);
    return records.hasValue(field) ? TabellaLetta::Cella(records.testo(field)) : TabellaLetta::Cella();
}

} // namespace

Comando::Comando(const Archive& archive) : Transaction(archive.archive()) {}

Archive::Archive(const QString& directory) : PercorsoProgramma(QDir::fromNativeSeparators(directory)) {
    if (!PercorsoProgramma.endsWith(u'/'))
        PercorsoProgramma += u'/';
}

Archive::~Archive() {
    close();
}

Database& Archive::database(int index) const {
    Database* const found = Db(index);
    if (found == nullptr)
        throw StoreError(StoreError::Kind::Other, PercorsoDatabase, QStringLiteral("l'archivio è chiuso"));
    return *found;
}

std::shared_ptr<const TableInfo> Archive::storedTable(int db, int table) const {
    return database(db).tabella(TabelleNomi(table));
}

void Archive::closeSlots() {
    for (Recordset& records : slots_)
        records = Recordset();
}

void Archive::close() {
    closeSlots();
    found_ = 0;
    for (auto& database : databases_)
        database.reset();
}

void Archive::DatabaseCrea(int db, bool& created) {
    created = !QFileInfo::exists(PercorsoDatabase);
    if (!created)
        return;
    auto& handle = databases_.at(static_cast<std::size_t>(db));
    handle.reset();
    handle = Database::create(PercorsoDatabase);
}

void Archive::DatabaseApre(int db) {
    auto& handle = databases_.at(static_cast<std::size_t>(db));
    handle.reset(); // close first: an open file is locked and can't be opened again
    handle = Database::open(PercorsoDatabase);
}

void Archive::DatabaseTabelleCreazione(int db) {
    Transaction all(database(db));
    for (int table = primaTabella; table <= ultimaTabella; ++table)
        DatabaseTabellaCrea(db, table);
    all.commit();
}

void Archive::DatabaseTabellaCrea(int db, int table) {
    database(db).createTable(TabelleNomi(table), campiDescritti(TabelleCampi(table)));
}

void Archive::DataBaseTabelleAggiorna(int db) {
    Transaction indexes(database(db));
    for (int table = primaTabella; table <= ultimaTabella; ++table) {
        Rettifica = true;
        const auto stored = storedTable(db, table);
        if (stored == nullptr)
            return;
        const std::vector<FieldDef> declared = campiDescritti(TabelleCampi(table));
        if (!std::all_of(declared.begin(), declared.end(), [&](const FieldDef& f) { return passes(*stored, f); }))
            return;
        Rettifica = false;
        DataBaseVerificaIndici(db, table);
    }
    indexes.commit();
}

void Archive::DataBaseVerificaIndici(int db, int table) {
    Database& file = database(db);
    const auto stored = storedTable(db, table);
    if (stored == nullptr)
        return;
    QStringList wanted = TabelleIndici(table).split(u',', Qt::SkipEmptyParts);
    for (const QString& index : file.indici(stored->nome))
        wanted.removeIf([&](const QString& name) { return uguale(name, index); });
    for (const FieldDef& field : stored->campi) {
        if (wanted.contains(field.name, Qt::CaseInsensitive))
            file.changeSchema(createIndexSql(stored->nome, field.name));
    }
    if (table != GuidaCitta)
        return;
    if (stored->campo(markField()) >= 0 && !file.hasIndex(internalIndexName(stored->nome, markField())))
        file.changeSchema(createMarkIndexSql(stored->nome, markField()));
    if (stored->campo(placeField()) >= 0 && !file.hasIndex(internalIndexName(stored->nome, indiceParentesi)))
        file.changeSchema(createBracketIndexSql(stored->nome, placeField()));
}

void Archive::RecordSetImposta(int db, int slot) {
    RecordSetImposta(db, slot, parsed(StringaSQL));
}

void Archive::RecordSetImposta(int db, int slot, const Query& query) {
    Rs(slot) = Recordset(database(db), query);
    found_.reset();
    lastSlot_ = slot;
}

double Archive::NumeroRecord() {
    if (!found_)
        found_ = Rs(lastSlot_).RecordCount();
    return static_cast<double>(*found_);
}

void Archive::RecordSetImpostaDefault() {
    (void)NumeroRecord(); // count now: the last query may be in a slot that is closed below
    for (int table = primaTabella; table <= ultimaTabella; ++table)
        Rs(table) = Recordset(archive(), {TabelleNomi(table), {}, {}});
}

std::optional<int> Archive::CercaCampoTabella(int slot, const QString& name) {
    const Recordset& records = Rs(slot);
    std::optional<int> found;
    for (int field = 0; field < records.count(); ++field) {
        if (uguale(records.name(field), name))
            found = field;
    }
    return found;
}

QString Archive::CaricaRiferimentiVettoreCampiTabelleDatabase(int slot, const QStringList& columns) {
    const Recordset& records = Rs(slot);
    QString references;
    for (qsizetype column = 0; column < columns.size(); ++column) {
        const int field = records.campo(columns[column]);
        if (field >= 0)
            references +=
                Zero(QString::number(static_cast<int>(column) + 1), 2) + Zero(QString::number(field), 2) + u'\\';
    }
    return references;
}

void Archive::CancellaTabella(int table, const QString& field, const QString& value, const Progress& progress) {
    StringaSQL = QStringLiteral("SELECT * FROM ") + TabelleNomi(table);
    if (!field.isEmpty())
        StringaSQL += QStringLiteral(" WHERE ") + field + QStringLiteral(" LIKE '") + LikeTesto(value) + u'\'';
    const Query query = parsed(StringaSQL);
    RecordSetImposta(0, slotAppoggio, query);
    const auto total = static_cast<qint64>(NumeroRecord());
    if (total == 0)
        return;
    if (progress)
        progress(0, total);
    const TranslatedQuery translated = translate(archive(), query);
    const StatementLease statement = archive().prepare(translated.form->deleteAll);
    translated.bind(*statement);
    archive().write(*translated.form->tabella, *statement);
    Rs(slotAppoggio) = Recordset(archive(), query);
    if (progress)
        progress(total, total);
}

bool Archive::guidaConParentesi() {
    const auto guide = storedTable(0, GuidaCitta);
    const StatementLease first = archive().prepare("SELECT 1 FROM " + quotedName(guide->nome) + " WHERE " +
                                                   bracketSql(placeField()) + " LIMIT 1");
    return first->step();
}

LettoreGuida& Archive::guida() {
    if (guida_ == nullptr || !guida_->aperto())
        guida_ = std::make_unique<LettoreGuida>(archive());
    return *guida_;
}

void Archive::putMarksBack(const InsiemeDiRighe& used) {
    if (guida().areMarked(used))
        return;
    const auto guide = storedTable(0, GuidaCitta);
    const QByteArray table = quotedName(guide->nome);
    const QByteArray mark = quotedName(markField());
    std::vector<qint64> toClear;
    InsiemeDiRighe asWanted;
    const StatementLease marked =
        archive().prepare("SELECT rowid, " + mark + "='1' FROM " + table + " WHERE " + mark + " IS NOT '0'");
    while (marked->step()) {
        const qint64 rowid = marked->integer(0);
        if (!used.contains(rowid))
            toClear.push_back(rowid);
        else if (!marked->isNull(1) && marked->integer(1) == 1)
            asWanted.insert(rowid);
    }
    marked->reset();
    std::vector<qint64> toSet;
    std::ranges::remove_copy_if(used.righe(), std::back_inserter(toSet),
                                [&asWanted](qint64 rowid) { return asWanted.contains(rowid); });
    const auto write = [&](const QByteArray& value, const std::vector<qint64>& rowids) {
        if (rowids.empty())
            return;
        const StatementLease change =
            archive().prepare("UPDATE " + table + " SET " + mark + "='" + value + "' WHERE rowid=?");
        for (const qint64 rowid : rowids) {
            change->bind(1, rowid);
            archive().write(*guide, *change);
        }
    };
    writeDerived([&] {
        Transaction all(archive());
        guida().writeMarks(used, [&] {
            write("0", toClear);
            write("1", toSet);
        });
        all.commit();
    });
}

void Archive::rollbackCommand() noexcept {
    if (Database* const file = databases_.front().get(); file != nullptr)
        file->rollbackCommand();
}

void Archive::undoSoFar() noexcept {
    if (Database* const file = databases_.front().get(); file != nullptr)
        file->undoSoFar();
}

int Archive::dimensioneCampo(int table, QStringView field) const {
    const auto stored = storedTable(0, table);
    return stored->campi[static_cast<std::size_t>(stored->campo(field))].size;
}

TabellaLetta Archive::tabella(const QString& name) {
    Recordset records(archive(), {name, {}, {}});
    TabellaLetta table;
    for (int field = 0; field < records.count(); ++field)
        table.campi += records.name(field);
    for (; !records.EOF_(); records.MoveNext()) {
        auto& row = table.record.emplace_back();
        for (int field = 0; field < records.count(); ++field)
            row.push_back(cellOf(records, field));
    }
    return table;
}

} // namespace vanzer::store
