#include "guide/marks.h"

#include "core/text.h"

namespace vanzer {

std::vector<VoceGuida> SegniGuida::unused(std::vector<VoceGuida> entries) {
    std::erase_if(entries, [this](const VoceGuida& entry) { return !used_.insert(entry.rowid).second; });
    return entries;
}

std::vector<VoceGuida> SegniGuida::usaLuogo(const QString& place) {
    return unused(reader_.leggeLuogo(place));
}

std::vector<VoceGuida> SegniGuida::usaModello(const QString& pattern) {
    if (!pattern.contains(u'*') && !pattern.contains(u'?'))
        return usaLuogo(pattern);
    using enum store::Condition::Test;
    archive_.RecordSetImposta(
        0, store::GuidaCitta,
        {store::TabelleNomi(store::GuidaCitta), {{QStringLiteral("Localita"), Like, pattern}}, {}});
    std::vector<VoceGuida> entries;
    for (store::Recordset& records = archive_.Rs(store::GuidaCitta); !records.EOF_(); records.MoveNext())
        entries.push_back(
            {records.rowid(), arrotonda(Val(records.testo(1))), records.testo(2), records.testo(3), records.testo(4)});
    return unused(std::move(entries));
}

float tempoVoce(const QString& tempoSosta, float visitingDay) {
    const bool days = iniziaCon(tempoSosta, u"G");
    const double whole =
        days ? Val(Mid(tempoSosta, 2, 1)) * static_cast<double>(visitingDay) : Val(Left(tempoSosta, 2)) * 100;
    return static_cast<float>(Int(whole + Val(Mid(tempoSosta, 4, 2)) * 100 / 60 + 0.5));
}

} // namespace vanzer
