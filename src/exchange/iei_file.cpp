// SPDX-License-Identifier: MIT
#include "exchange/iei_file.h"

#include <algorithm>

#include "core/text.h"

namespace vanzer {

namespace {

/// The separators by section. Element 0 isn't used.
constexpr std::array<char16_t, ultimaSezione + 1> separators{u'\0', u'\x00ff', u'\x00fe', u'\x00fd'};

/// The most columns that are read from a line.
constexpr std::size_t mostColumns = 100;

bool leftOut(QChar c) {
    return c == u'"' || (c < u' ' && c != u'\t');
}

struct Base {
    char16_t letter;
    char16_t written;
};
constexpr std::array<Base, 6> separatingLetters{
    {{u'ÿ', u'y'}, {u'Ÿ', u'Y'}, {u'þ', u't'}, {u'Þ', u'T'}, {u'ý', u'y'}, {u'Ý', u'Y'}}};

/// The text with separator letters replaced by their base letters. The replacements are added to `letters`.
QString withoutSeparators(const QString& text, std::vector<LetteraSostituita>& letters) {
    QString plain = text.normalized(QString::NormalizationForm_C); // makes "y" and a combining accent one letter
    for (const Base& base : separatingLetters) {
        if (!plain.contains(QChar(base.letter)))
            continue;
        letters.push_back({QString(QChar(base.letter)), QChar(base.written)});
        plain.replace(QChar(base.letter), QChar(base.written));
    }
    return plain;
}

} // namespace

QChar separatoreIei(int section) {
    return separators[static_cast<std::size_t>(section)];
}

int sezioneDellaRiga(QStringView line, int before) {
    for (int section = primaSezione; section <= ultimaSezione; ++section) {
        if (line.contains(separatoreIei(section)))
            return section;
    }
    return before;
}

LettoreIei::Riga LettoreIei::read(QStringView line) {
    const int section = sezioneDellaRiga(line, section_);
    if (section == nessunaSezione)
        return Riga::Estranea;
    if (section != section_) {
        readHead(line, section);
        return Riga::Testa;
    }
    readRecord(line);
    return Riga::Record;
}

void LettoreIei::readHead(QStringView line, int section) {
    section_ = section;
    readRecord(line);
    tieColumns();
}

void LettoreIei::readRecord(QStringView line) {
    line_ = line;
    divided_ = false;
}

int LettoreIei::campo(QStringView name) const {
    const auto found = std::ranges::find_if(campi(), [name](const QString& field) { return uguale(field, name); });
    return found == campi().end() ? -1 : static_cast<int>(found - campi().begin());
}

/// Splits the current line into trimmed columns, without quotes and control characters.
void LettoreIei::divide() {
    QStringView work = line_;
    if (std::any_of(work.begin(), work.end(), leftOut)) {
        cleaned_ = line_.toString();
        cleaned_.removeIf(leftOut);
        work = cleaned_;
    }
    const QChar separator = separatoreIei(section_);
    columns_.clear();
    for (bool more = true; more && columns_.size() < mostColumns;) {
        const qsizetype end = work.indexOf(separator);
        more = end >= 0;
        columns_.push_back(Trim(more ? work.left(end) : work));
        work = work.mid(more ? end + 1 : work.size());
    }
    divided_ = true;
}

void LettoreIei::tieColumns() {
    divide();
    columnOf_.assign(static_cast<std::size_t>(campi().size()), 0);
    for (std::size_t column = 1; column < std::min(columns_.size() + 1, mostColumns); ++column) {
        const int field = campo(columns_[column - 1]);
        if (field >= 0 && columnOf_[static_cast<std::size_t>(field)] == 0)
            columnOf_[static_cast<std::size_t>(field)] = static_cast<int>(column);
    }
}

bool LettoreIei::hasColumn(int field) const {
    return field >= 0 && columnOf_[static_cast<std::size_t>(field)] > 0;
}

QStringView LettoreIei::colonna(int field) {
    if (!hasColumn(field))
        return {};
    if (!divided_)
        divide();
    const auto column = static_cast<std::size_t>(columnOf_[static_cast<std::size_t>(field)]);
    return column <= columns_.size() ? columns_[column - 1] : QStringView();
}

QString LettoreIei::valore(int field) {
    const QStringView text = colonna(field);
    return text.isEmpty() ? QStringLiteral(" ") : text.toString();
}

void ScrittoreIei::testa(int section, const QStringList& names) {
    for (const QString& name : names)
        testo(section, name);
    fineRiga();
}

void ScrittoreIei::testo(int section, const QString& text) {
    const QString trimmed = Trim(text);
    auto letters = lettereSostituite(trimmed);
    contents_ += toCodePage(withoutSeparators(trimmed, letters));
    contents_ += static_cast<char>(separatoreIei(section).unicode());
    if (letters.empty() || told_.contains(trimmed))
        return;
    told_.insert(trimmed);
    replaced_.push_back({trimmed, std::move(letters)});
}

} // namespace vanzer
