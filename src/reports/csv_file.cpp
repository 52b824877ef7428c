// SPDX-License-Identifier: MIT
#include "reports/csv_file.h"

#include <algorithm>

namespace vanzer {

namespace {

bool isFigure(QChar c) {
    return (c >= u'0' && c <= u'9') || c == u'.' || c == u',' || c == u':';
}

/// Whether a spreadsheet would take the text for a formula. Numbers and hours with a sign are none.
bool isFormula(QStringView text) {
    while (!text.isEmpty() &&
           (text.front() == u'\t' || text.front() == u'\r' || text.front() == u'\n' || text.front() == u' '))
        text = text.sliced(1);
    if (text.isEmpty() || !QStringView(u"=+-@").contains(text.front()))
        return false;
    const bool sign = text.front() == u'+' || text.front() == u'-';
    return !sign || text.size() == 1 || !std::ranges::all_of(text.sliced(1), isFigure);
}

QByteArray field(const QString& text) {
    QByteArray bytes = (isFormula(text) ? u'\'' + text : text).toUtf8();
    const bool quoted = text.contains(u',') || text.contains(u'"') || text.contains(u'\n') || text.contains(u'\r');
    return quoted ? '"' + bytes.replace('"', "\"\"") + '"' : bytes;
}

} // namespace

QByteArray valoriSeparati(int rows, int columns, const CellaViandoria& cell) {
    QByteArray file;
    qsizetype filled = 0;
    for (int r = 0; r < rows; ++r) {
        bool empty = true;
        for (int c = 0; c < columns; ++c) {
            const QString& text = cell(r, c);
            empty = empty && text.isEmpty();
            file += (c == 0 ? QByteArray() : QByteArray(",")) + field(text);
        }
        file += "\r\n";
        if (!empty)
            filled = file.size();
    }
    file.truncate(filled);
    return file;
}

} // namespace vanzer
