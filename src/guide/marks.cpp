#include "guide/marks.h"

#include "core/text.h"

namespace vanzer {

SegniGuida::SegniGuida(store::Archive& archive) : archive_(archive) {}

std::vector<VoceGuida> SegniGuida::usa(const store::Query& query) {
    archive_.RecordSetImposta(0, store::GuidaCitta, query);
    store::Recordset& records = archive_.Rs(store::GuidaCitta);
    std::vector<VoceGuida> entries;
    for (; !records.EOF_(); records.MoveNext()) {
        if (!used_.insert(records.rowid()).second)
            continue;
        entries.push_back({records.rowid(), records.testo(0), static_cast<int>(Val(records.testo(1))),
                           records.testo(2), records.testo(3), records.testo(4)});
    }
    return entries;
}

std::vector<VoceGuida> SegniGuida::usaLuogo(const QString& place, const std::vector<store::Order>& order) {
    using enum store::Condition::Test;
    return usa({store::TabelleNomi(store::GuidaCitta),
                {{QStringLiteral("Localita"), Equal, place}},
                order});
}

std::vector<VoceGuida> SegniGuida::usaModello(const QString& pattern) {
    using enum store::Condition::Test;
    return usa({store::TabelleNomi(store::GuidaCitta),
                {{QStringLiteral("Localita"), Like, pattern}},
                {}});
}

void SegniGuida::scrive() { archive_.segnaVisti({used_.begin(), used_.end()}); }

float tempoVoce(const QString& tempoSosta, float visitingDay) {
    const bool days = iniziaCon(tempoSosta, u"G");
    const double whole = days ? Val(Mid(tempoSosta, 2, 1)) * static_cast<double>(visitingDay)
                              : Val(Left(tempoSosta, 2)) * 100;
    return static_cast<float>(Int(whole + Val(Mid(tempoSosta, 4, 2)) * 100 / 60 + 0.5));
}

} // namespace vanzer
