// SPDX-License-Identifier: MIT
#include "core/columns.h"

#include <algorithm>

#include "core/text.h"

namespace vanzer {

namespace {

constexpr std::array<char16_t, 5> separators{u'\x00ff', u'\t', u',', u';', u'!'};

QChar separatorOf(const QString& line) {
    const auto* const found = std::find_if(separators.begin(), separators.end(),
                                           [&line](char16_t separator) { return line.contains(QChar(separator)); });
    return found == separators.end() ? QChar(u'\t') : QChar(*found);
}

} // namespace

void SeparaColonne(QString& line, Colonne& colonne) {
    const QChar separator = separatorOf(line);
    line += separator;
    QString work;
    work.reserve(line.size());
    for (const QChar c : std::as_const(line)) {
        if (c != u'"' && (c >= u' ' || c == u'\t'))
            work += c;
    }
    std::fill(colonne.testo.begin() + 1, colonne.testo.end(), QString());
    colonne.numero = 0;
    qsizetype start = 0;
    while (start < work.size() && colonne.numero < Colonne::massimo) {
        const qsizetype end = work.indexOf(separator, start);
        colonne(++colonne.numero) = Trim(work.mid(start, end - start));
        start = end + 1;
    }
}

} // namespace vanzer
