#include "reports/csv_file.h"

namespace vanzer {

namespace {

QByteArray field(const QString& text) {
    QByteArray bytes = text.toUtf8();
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
