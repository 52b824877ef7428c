#include "store/guide_reader.h"

#include "core/text.h"

namespace vanzer::store {

LettoreGuida::LettoreGuida(const Archive& archive)
    : statement_(archive.Db(0)->prepara("SELECT rowid, CodiceGuida, Gruppo, Descrizione, TempoSosta FROM GuidaCitta "
                                        "WHERE Localita = ?1 ORDER BY CodiceGuida, TempoSosta DESC, Gruppo, rowid")) {}

std::vector<VoceGuida> LettoreGuida::leggeLuogo(const QString& place) {
    std::vector<VoceGuida> entries;
    statement_->reset();
    statement_->bindText(1, QStringView(place));
    while (statement_->step())
        entries.push_back({statement_->integer(0), static_cast<int>(Val(statement_->text(1))), statement_->text(2),
                           statement_->text(3), statement_->text(4)});
    return entries;
}

} // namespace vanzer::store
