#include "store/guide_memory.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace vanzer::store {

bool MemoriaGuida::follows(QStringView key) const {
    if (last_ >= read_.size() || read_[last_].dopo >= read_.size())
        return false;
    const Lettura& next = read_[read_[last_].dopo];
    return QStringView(letters_.data() + next.lettere, static_cast<qsizetype>(next.lunghezza)) == key;
}

void MemoriaGuida::goesOn(std::size_t to) {
    if (last_ < read_.size())
        read_[last_].dopo = to;
    last_ = to;
}

const VociGuida* MemoriaGuida::trova(const QString& key) {
    if (follows(key)) {
        last_ = read_[last_].dopo;
    } else {
        const auto place = places_.constFind(key);
        if (place == places_.cend())
            return nullptr;
        goesOn(*place);
    }
    return &read_[last_].voci;
}

const VociGuida& MemoriaGuida::tiene(const QString& key, std::vector<VoceGuida> entries) {
    constexpr std::size_t blockSize = 512;
    if (blocks_.empty() || blocks_.back().capacity() - blocks_.back().size() < entries.size())
        blocks_.emplace_back().reserve(std::max(blockSize, entries.size()));
    std::vector<VoceGuida>& block = blocks_.back();
    const VoceGuida* const first = block.data() + block.size();
    std::ranges::move(entries, std::back_inserter(block));
    const std::size_t at = read_.size();
    const std::size_t letters = letters_.size();
    letters_.append(QStringView(key).utf16(), static_cast<std::size_t>(key.size()));
    read_.push_back({.lettere = letters,
                     .lunghezza = static_cast<std::size_t>(key.size()),
                     .dopo = at + 1,
                     .voci = {first, entries.size()}});
    places_.insert(key, at);
    goesOn(at);
    return read_[at].voci;
}

void MemoriaGuida::dimentica() noexcept {
    read_.clear();
    letters_.clear();
    blocks_.clear();
    places_.clear();
    last_ = 0;
}

} // namespace vanzer::store
