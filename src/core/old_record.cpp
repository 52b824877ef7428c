// SPDX-License-Identifier: MIT
#include "core/old_record.h"

#include <algorithm>
#include <array>
#include <numeric>

#include "core/code_page.h"

namespace vanzer {

namespace {

constexpr std::array<CampoVecchio, 21> mete{
    {{u"Codice", 6}, {u"Locali", 30}, {u"Nazion", 19}, {u"DataIn", 8}, {u"OraIni", 4}, {u"MediaA", 3}, {u"MediaS", 3},
     {u"MediaP", 3}, {u"MediaL", 3},  {u"OraCol", 4},  {u"OraPra", 4}, {u"DurPra", 4}, {u"OraCen", 4}, {u"DurCen", 4},
     {u"OraNot", 4}, {u"RipMin", 2},  {u"RipOre", 2},  {u"Rip1Gg", 2}, {u"RipNGg", 2}, {u"VisitD", 4}, {u"VisitA", 4}}};
constexpr std::array<CampoVecchio, 5> tappe{
    {{u"Locali", 52}, {u"Chilom", 4}, {u"TipoSt", 1}, {u"TempoS", 6}, {u"FlagED", 1, true}}};
constexpr std::array<CampoVecchio, 5> guida{
    {{u"Locali", 30}, {u"Descri", 91}, {u"TipoDa", 2}, {u"TempoS", 4}, {u"FlagVi", 1, true}}};

/// False for control characters, and so for bytes without a letter in the code page.
bool isLetter(QChar c) {
    return c.category() != QChar::Other_Control;
}

QString withoutPadding(QString text) {
    const auto last = std::find_if(text.crbegin(), text.crend(), [](QChar c) { return c != u' '; });
    text.truncate(text.crend() - last);
    return text;
}

} // namespace

std::size_t FormatoVecchio::campo(QStringView name) const {
    const auto found = std::ranges::find_if(campi, [name](const CampoVecchio& f) { return name == f.nome; });
    return static_cast<std::size_t>(found - campi.begin());
}

int FormatoVecchio::larghezza() const {
    return std::accumulate(campi.begin(), campi.end(), 0,
                           [](int sum, const CampoVecchio& field) { return sum + field.larghezza; });
}

const FormatoVecchio& vecchieMete() {
    static constexpr FormatoVecchio format{128, mete};
    return format;
}

const FormatoVecchio& vecchieTappe() {
    static constexpr FormatoVecchio format{64, tappe};
    return format;
}

const FormatoVecchio& vecchiaGuida() {
    static constexpr FormatoVecchio format{128, guida};
    return format;
}

FileVecchio::FileVecchio(const FormatoVecchio& format, QByteArray contents)
    : format_(format), contents_(std::move(contents)) {}

int FileVecchio::numero() const {
    return static_cast<int>((contents_.size() + format_.lunghezza - 1) / format_.lunghezza);
}

std::optional<RecordVecchio> FileVecchio::record(int n) const {
    qsizetype at = static_cast<qsizetype>(n - 1) * format_.lunghezza;
    if (n < 1 || at + format_.larghezza() > contents_.size())
        return std::nullopt;
    RecordVecchio texts;
    texts.reserve(format_.campi.size());
    for (const CampoVecchio& field : format_.campi) {
        QString text = withoutPadding(fromCodePage(QByteArrayView(contents_).sliced(at, field.larghezza)));
        at += field.larghezza;
        if (!std::ranges::all_of(text, isLetter))
            return std::nullopt;
        if (field.siNo && text.isEmpty())
            text = QStringLiteral("0");
        if (field.siNo && text != u"0" && text != u"1")
            return std::nullopt;
        texts.push_back(std::move(text));
    }
    return texts;
}

} // namespace vanzer
