#include "mutation.h"

#include <algorithm>
#include <array>

#include <QList>

#include "core/code_page.h"

namespace vanzer::fuzz {

namespace {

constexpr qsizetype longestInput = 200'000;

} // namespace

QByteArray Mutator::input(std::uint64_t number) {
    chance_.seed(number);
    QByteArray bytes = corpus_[static_cast<std::size_t>(below(static_cast<qsizetype>(corpus_.size())))];
    if (number < corpus_.size())
        return corpus_[number];
    for (qsizetype times = 1 + below(8); times > 0; --times)
        mutate(bytes);
    bytes.truncate(longestInput);
    return bytes;
}

void Mutator::mutate(QByteArray& bytes) {
    static constexpr std::array mutations{&Mutator::changeByte,  &Mutator::insertBytes, &Mutator::removeRange,
                                          &Mutator::repeatRange, &Mutator::moveLine,    &Mutator::splice,
                                          &Mutator::recode};
    (this->*mutations[static_cast<std::size_t>(below(std::ssize(mutations)))])(bytes);
}

/// 0 where there is nothing to choose from.
qsizetype Mutator::below(qsizetype limit) {
    return limit <= 0 ? 0 : static_cast<qsizetype>(chance_() % static_cast<std::uint64_t>(limit));
}

char Mutator::likelyByte() {
    static constexpr char special[] = "\xff\xfe\xfd\r\n\t\"'\\*?([ ,;!0\x80\xc3\0";
    return below(3) == 0 ? static_cast<char>(below(256)) : special[below(sizeof special - 1)];
}

void Mutator::changeByte(QByteArray& bytes) {
    if (!bytes.isEmpty())
        bytes[below(bytes.size())] = likelyByte();
}

void Mutator::insertBytes(QByteArray& bytes) {
    const qsizetype count = below(20) == 0 ? below(50'000) : 1 + below(4);
    bytes.insert(below(bytes.size() + 1), count, likelyByte());
}

void Mutator::removeRange(QByteArray& bytes) {
    const qsizetype at = below(bytes.size());
    bytes.remove(at, below(4) == 0 ? bytes.size() : 1 + below(60));
}

void Mutator::repeatRange(QByteArray& bytes) {
    const QByteArray range = bytes.mid(below(bytes.size()), 1 + below(300));
    bytes.insert(below(bytes.size() + 1), range.repeated(1 + below(4)));
}

void Mutator::moveLine(QByteArray& bytes) {
    QList<QByteArray> lines = bytes.split('\n');
    lines.move(below(lines.size()), below(lines.size()));
    bytes = lines.join('\n');
}

void Mutator::splice(QByteArray& bytes) {
    const QByteArray& other = corpus_[static_cast<std::size_t>(below(static_cast<qsizetype>(corpus_.size())))];
    bytes = bytes.left(below(bytes.size() + 1)) + other.mid(below(other.size()));
}

/// Another code, or other ends of lines.
void Mutator::recode(QByteArray& bytes) {
    switch (below(4)) {
    case 0: bytes = fromCodePage(bytes).toUtf8(); break;
    case 1: bytes.replace("\r\n", "\n"); break;
    case 2: bytes.replace("\r\n", "\r"); break;
    default: bytes.replace("\n", "\r\n");
    }
}

} // namespace vanzer::fuzz
