#include "exchange/iei_import.h"

#include "core/collation.h"
#include "core/text.h"

namespace vanzer {

namespace {

const QString campoCodice = QStringLiteral("CodiceMeta");
const QString campoLocalita = QStringLiteral("Localita");
const QString campoDescrizione = QStringLiteral("Descrizione");

} // namespace

void VociPresenti::aggiunge(const QString& place, const QString& description) {
    const auto number = static_cast<std::size_t>(places_.aggiunge(place));
    if (number >= descriptions_.size())
        descriptions_.resize(number + 1);
    descriptions_[number].insert(senzaMaiuscole(description).toStdString());
}

/// Only descriptions that begin as the pattern does are looked at.
bool VociPresenti::trova(const QString& place, const QString& description) const {
    const std::string pattern = senzaMaiuscole(LikeTesto(description)).toStdString();
    const std::string beginning = pattern.substr(0, pattern.find_first_of("*?"));
    bool any = false;
    places_.cerca(place, [&](int number) {
        const std::set<std::string>& known = descriptions_[static_cast<std::size_t>(number)];
        for (auto d = known.lower_bound(beginning); !any && d != known.end() && d->starts_with(beginning); ++d)
            any = somiglia(pattern, *d);
        return !any;
    });
    return any;
}

bool Importazione::riga(QStringView line) {
    switch (reader_.legge(line)) {
    case LettoreIei::Riga::Estranea: return true;
    case LettoreIei::Riga::Testa: return testa();
    case LettoreIei::Riga::Record: break;
    }
    switch (reader_.sezione()) {
    case sezioneMete: meta(); break;
    case sezioneTappe: tappa(); break;
    default: voce();
    }
    return true;
}

bool Importazione::testa() {
    code_ = reader_.campo(campoCodice);
    place_ = reader_.campo(campoLocalita);
    description_ = reader_.campo(campoDescrizione);
    return reader_.haColonna(reader_.sezione() == sezioneGuida ? place_ : code_);
}

void Importazione::meta() {
    const QStringView old = reader_.colonna(code_);
    const QString* const fresh = codes_.perMeta(old);
    if (fresh == nullptr)
        return;
    if (archive_.haMeta(reader_.colonna(place_).toString())) {
        codes_.rifiuta(old);
        ++counters_.meteScartate;
        return;
    }
    aggiunge(fresh);
    codes_.accetta(old);
    ++counters_.meteInserite;
}

void Importazione::tappa() {
    const QString* const fresh = codes_.perTappe(reader_.colonna(code_));
    if (fresh == nullptr)
        return;
    aggiunge(fresh);
    ++counters_.tappeInserite;
    if (legs_)
        legs_->aggiunge(values_[static_cast<std::size_t>(place_)]);
}

void Importazione::voce() {
    if (!legs_) {
        legs_.emplace();
        for (const QString& place : archive_.luoghiTappe())
            legs_->aggiunge(place);
    }
    const QString place = reader_.colonna(place_).toString();
    if (!legs_->trova(place))
        return;
    if (!guide_) {
        guide_.emplace();
        for (const auto& [where, what] : archive_.vociGuida())
            guide_->aggiunge(where, what);
    }
    if (guide_->trova(place, reader_.colonna(description_).toString())) {
        ++counters_.vociScartate;
        return;
    }
    aggiunge(nullptr);
    ++counters_.vociInserite;
    guide_->aggiunge(values_[static_cast<std::size_t>(place_)], values_[static_cast<std::size_t>(description_)]);
}

void Importazione::aggiunge(const QString* newCode) {
    values_.resize(static_cast<std::size_t>(reader_.campi().size()));
    for (std::size_t field = 0; field < values_.size(); ++field)
        values_[field] =
            newCode != nullptr && static_cast<int>(field) == code_ ? *newCode : reader_.valore(static_cast<int>(field));
    archive_.aggiunge(reader_.sezione(), values_);
}

} // namespace vanzer
