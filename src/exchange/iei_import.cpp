// SPDX-License-Identifier: MIT
#include "exchange/iei_import.h"

#include <algorithm>
#include <functional>

#include "core/collation.h"
#include "core/place_name.h"
#include "core/text.h"

namespace vanzer {

namespace {

const QString campoCodice = QStringLiteral("CodiceMeta");
const QString campoLocalita = QStringLiteral("Localita");
const QString campoDescrizione = QStringLiteral("Descrizione");

/// The position of the next character in a UTF-8 text.
std::size_t dopoIlCarattere(const std::string& text, std::size_t at) {
    do {
        ++at;
    } while (at < text.size() && (static_cast<unsigned char>(text[at]) & 0xC0U) == 0x80U);
    return at;
}

} // namespace

void MetePresenti::add(const QString& name) {
    names_[chiaveMeta(name)].push_back(name.toStdString());
}

bool MetePresenti::trova(const QString& name) const {
    const auto same = names_.constFind(chiaveMeta(name));
    const std::string pattern = LikeTesto(name).toStdString();
    return same != names_.cend() &&
           std::ranges::any_of(*same, [&pattern](const std::string& known) { return resembles(pattern, known); });
}

std::optional<std::size_t> Descrizioni::Forma::chiave(const std::string& text) const {
    std::string own;
    std::size_t at = 0;
    for (const bool counts : proprie) {
        if (at == text.size())
            return {};
        const std::size_t next = dopoIlCarattere(text, at);
        own.append(counts ? text.substr(at, next - at) : "?");
        at = next;
    }
    return intera && at < text.size() ? std::nullopt : std::optional(std::hash<std::string>()(own));
}

void Descrizioni::Forma::add(const std::string& text) {
    if (const auto key = chiave(text))
        testi.emplace(*key, &text);
}

void Descrizioni::add(const std::string& text) {
    const auto [known, fresh] = texts_.insert(text);
    for (Forma& form : forms_) {
        if (fresh)
            form.add(*known);
    }
}

/// Looks only at texts that begin like the pattern. If these are many, looks only at those that fit its form.
bool Descrizioni::trova(const std::string& pattern) {
    constexpr int many = 64;
    const std::string beginning = pattern.substr(0, pattern.find_first_of("*?"));
    int looks = 0;
    for (auto d = texts_.lower_bound(beginning); d != texts_.end() && d->starts_with(beginning); ++d) {
        if (resembles(pattern, *d))
            return true;
        if (++looks != many)
            continue;
        if (const Forma* const form = forma(pattern)) {
            const auto [first, last] = form->testi.equal_range(*form->chiave(pattern.substr(0, pattern.find('*'))));
            return std::any_of(first, last, [&pattern](const auto& text) { return resembles(pattern, *text.second); });
        }
    }
    return false;
}

/// Makes or finds the form of a pattern. Null if there are so many forms that another one costs more than it saves.
Descrizioni::Forma* Descrizioni::forma(const std::string& pattern) {
    constexpr std::size_t most = 128;
    constexpr std::size_t mostTimes = 4; // in how many forms a text may be, on average
    const std::size_t star = pattern.find('*');
    Forma wanted{.proprie = {}, .intera = star == std::string::npos, .testi = {}};
    const std::string beginning = pattern.substr(0, star);
    for (std::size_t at = 0; at < beginning.size(); at = dopoIlCarattere(beginning, at))
        wanted.proprie.push_back(beginning[at] != '?');
    std::size_t lying = 0;
    for (Forma& known : forms_) {
        if (known.intera == wanted.intera && known.proprie == wanted.proprie)
            return &known;
        lying += known.testi.size();
    }
    if (forms_.size() == most || lying > mostTimes * texts_.size())
        return nullptr;
    for (const std::string& text : texts_)
        wanted.add(text);
    return &forms_.emplace_back(std::move(wanted));
}

void VociPresenti::add(const QString& place, const QString& description) {
    const auto number = static_cast<std::size_t>(places_.add(place));
    if (number >= descriptions_.size())
        descriptions_.resize(number + 1);
    descriptions_[number].add(senzaMaiuscole(description).toStdString());
}

bool VociPresenti::trova(const QString& place, const QString& description) {
    const std::string pattern = senzaMaiuscole(LikeTesto(description)).toStdString();
    bool any = false;
    places_.find(place, [&](int number) {
        any = descriptions_[static_cast<std::size_t>(number)].trova(pattern);
        return !any;
    });
    return any;
}

bool Importazione::riga(QStringView line) {
    switch (reader_.read(line)) {
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
    return reader_.hasColumn(reader_.sezione() == sezioneGuida ? place_ : code_);
}

void Importazione::meta() {
    const QStringView old = reader_.colonna(code_);
    const QString* const fresh = codes_.perMeta(old);
    if (fresh == nullptr)
        return;
    if (!destinations_) {
        destinations_.emplace();
        for (const QString& name : archive_.nomiMete())
            destinations_->add(name);
    }
    if (destinations_->trova(reader_.colonna(place_).toString())) {
        codes_.refuse(old);
        ++counters_.meteScartate;
        return;
    }
    add(fresh);
    if (place_ >= 0)
        destinations_->add(values_[static_cast<std::size_t>(place_)]);
    codes_.accept(old);
    ++counters_.meteInserite;
}

void Importazione::tappa() {
    const QString* const fresh = codes_.perTappe(reader_.colonna(code_));
    if (fresh == nullptr)
        return;
    add(fresh);
    ++counters_.tappeInserite;
    if (legs_)
        legs_->add(values_[static_cast<std::size_t>(place_)]);
}

void Importazione::voce() {
    if (!legs_) {
        legs_.emplace();
        for (const QString& place : archive_.luoghiTappe())
            legs_->add(place);
    }
    const QString place = reader_.colonna(place_).toString();
    if (!legs_->trova(place))
        return;
    if (!guide_) {
        guide_.emplace();
        for (const auto& [where, what] : archive_.vociGuida())
            guide_->add(where, what);
    }
    if (guide_->trova(place, reader_.colonna(description_).toString())) {
        ++counters_.vociScartate;
        return;
    }
    add(nullptr);
    ++counters_.vociInserite;
    guide_->add(values_[static_cast<std::size_t>(place_)], values_[static_cast<std::size_t>(description_)]);
}

void Importazione::add(const QString* newCode) {
    values_.resize(static_cast<std::size_t>(reader_.campi().size()));
    for (std::size_t field = 0; field < values_.size(); ++field)
        values_[field] =
            newCode != nullptr && static_cast<int>(field) == code_ ? *newCode : reader_.valore(static_cast<int>(field));
    archive_.add(reader_.sezione(), values_);
}

} // namespace vanzer
