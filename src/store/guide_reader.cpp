// SPDX-License-Identifier: MIT
#include "store/guide_reader.h"

#include <cmath>
#include <utility>

#include "core/text.h"
#include "store/recordset.h"
#include "store/schema.h"

namespace vanzer::store {

namespace {

constexpr std::size_t mostKept = 50'000; ///< entries, about 15 MB; more than the longest trip needs

} // namespace

LettoreGuida::LettoreGuida(Database& archive) : database_(&archive) {
    archive.add(*this);
}

LettoreGuida::~LettoreGuida() {
    if (database_ != nullptr)
        database_->remove(*this);
}

const VociGuida& LettoreGuida::readPlace(const QString& place) {
    const QString key = senzaMaiuscole(place);
    if (const auto known = places_.find(key); known != places_.end())
        return known->second;
    const StatementLease found =
        database_->prepare("SELECT rowid, CodiceGuida, Gruppo, Descrizione, TempoSosta FROM GuidaCitta "
                           "WHERE Localita = ?1 ORDER BY CodiceGuida, TempoSosta DESC, Gruppo, rowid");
    found->bindText(1, QStringView(place));
    VociGuida entries;
    while (found->step())
        entries.push_back({.rowid = found->integer(0),
                           .tempoSosta = found->text(4),
                           .codice = roundToInt(std::trunc(Val(found->text(1)))),
                           .gruppo = found->text(2),
                           .descrizione = found->text(3)});
    makeRoom(entries.size());
    return places_[key] = std::move(entries);
}

const VociGuida& LettoreGuida::readPattern(const QString& pattern) {
    if (const auto known = patterns_.find(pattern); known != patterns_.end())
        return known->second;
    using enum Condition::Test;
    Recordset found(*database_, {TabelleNomi(GuidaCitta), {{QStringLiteral("Localita"), Like, pattern}}, {}});
    VociGuida entries;
    for (; !found.EOF_(); found.MoveNext())
        entries.push_back({.rowid = found.rowid(),
                           .tempoSosta = found.testo(4),
                           .codice = roundToInt(Val(found.testo(1))),
                           .gruppo = found.testo(2),
                           .descrizione = found.testo(3)});
    makeRoom(entries.size());
    return patterns_[pattern] = std::move(entries);
}

void LettoreGuida::makeRoom(std::size_t entries) {
    if (kept_ + entries > mostKept)
        forget();
    kept_ += entries + 1; // a place without entries is cached too
}

void LettoreGuida::forget() noexcept {
    places_.clear();
    patterns_.clear();
    kept_ = 0;
    marked_.reset();
}

void LettoreGuida::writeMarks(const InsiemeDiRighe& entries, const std::function<void()>& write) {
    onlyMarks_ = true;
    try {
        write();
    } catch (...) {
        onlyMarks_ = false;
        throw;
    }
    onlyMarks_ = false;
    marked_ = entries;
}

void LettoreGuida::beforeWriting(const TableInfo& table) {
    // A change of the schema has an empty table name.
    if (!onlyMarks_ && (table.nome.isEmpty() || uguale(table.nome, TabelleNomi(GuidaCitta))))
        forget();
}

void LettoreGuida::abandon() noexcept {
    forget();
    database_ = nullptr;
}

} // namespace vanzer::store
