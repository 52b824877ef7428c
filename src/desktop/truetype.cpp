#include "desktop/truetype.h"

#include <algorithm>
#include <bit>

#include <QtEndian>

namespace vanzer::desktop {

namespace {

constexpr qsizetype headSize = 54;
constexpr qsizetype adjustmentAt = 8;  ///< in head
constexpr qsizetype locaFormatAt = 50; ///< in head: 0 for halves of offsets in 16 bits, 1 for offsets in 32
constexpr qsizetype glyphCountAt = 4;  ///< in maxp
constexpr qsizetype glyphHead = 10;    ///< bytes of a glyph before its outline or its parts

template<typename T> T at(QByteArrayView bytes, qsizetype offset) {
    return offset >= 0 && offset + qsizetype{sizeof(T)} <= bytes.size() ? qFromBigEndian<T>(bytes.data() + offset)
                                                                        : T();
}

template<typename T> void put(QByteArray& bytes, qsizetype offset, T value) {
    qToBigEndian(value, bytes.data() + offset);
}

template<typename T> void append(QByteArray& bytes, T value) {
    bytes.resize(bytes.size() + qsizetype{sizeof(T)});
    put(bytes, bytes.size() - qsizetype{sizeof(T)}, value);
}

bool longOffsets(const OutlineTables& tables) {
    return at<quint16>(tables.head, locaFormatAt) != 0;
}

quint32 glyphCount(const OutlineTables& tables) {
    return at<quint16>(tables.maxp, glyphCountAt);
}

qsizetype offsetOf(const OutlineTables& tables, quint32 glyph) {
    return longOffsets(tables) ? at<quint32>(tables.loca, qsizetype{4} * glyph)
                               : qsizetype{2} * at<quint16>(tables.loca, qsizetype{2} * glyph);
}

/// Empty for a glyph without an outline.
QByteArrayView outlineOf(const OutlineTables& tables, quint32 glyph) {
    if (glyph >= glyphCount(tables))
        return {};
    const qsizetype from = offsetOf(tables, glyph);
    const qsizetype to = std::min(offsetOf(tables, glyph + 1), tables.glyf.size());
    return from < to ? QByteArrayView(tables.glyf).sliced(from, to - from) : QByteArrayView();
}

/// Of a glyph that is put together from others, which.
std::vector<quint32> partsOf(QByteArrayView outline) {
    enum Flag : quint16 { Words = 0x1, Scale = 0x8, More = 0x20, TwoScales = 0x40, Matrix = 0x80 };
    std::vector<quint32> parts;
    if (at<qint16>(outline, 0) >= 0)
        return parts;
    quint16 flags = More;
    for (qsizetype i = glyphHead; (flags & More) != 0 && i < outline.size();) {
        flags = at<quint16>(outline, i);
        parts.push_back(at<quint16>(outline, i + 2));
        i += 4 + ((flags & Words) != 0 ? 4 : 2);
        i += (flags & Scale) != 0 ? 2 : (flags & TwoScales) != 0 ? 4 : (flags & Matrix) != 0 ? 8 : 0;
    }
    return parts;
}

quint32 sumOf(QByteArrayView bytes) {
    quint32 sum = 0;
    for (qsizetype i = 0; i + 4 <= bytes.size(); i += 4)
        sum += at<quint32>(bytes, i);
    return sum;
}

void fillUp(QByteArray& bytes) {
    bytes.append((4 - bytes.size() % 4) % 4, '\0');
}

struct Table {
    const char* name;
    QByteArray bytes;
};

/// The tables behind their directory, in the order of their names.
QByteArray fontFile(std::vector<Table> tables) {
    std::erase_if(tables, [](const Table& table) { return table.bytes.isEmpty(); });
    const auto count = static_cast<quint16>(tables.size());
    const auto powerOfTwo = static_cast<quint16>(std::bit_floor(count));
    QByteArray file;
    append<quint32>(file, 0x00010000);
    append<quint16>(file, count);
    append<quint16>(file, static_cast<quint16>(powerOfTwo * 16));
    append<quint16>(file, static_cast<quint16>(std::bit_width(powerOfTwo) - 1));
    append<quint16>(file, static_cast<quint16>((count - powerOfTwo) * 16));
    qsizetype offset = file.size() + qsizetype{16} * count;
    qsizetype headAt = 0;
    for (Table& table : tables) {
        if (qstrcmp(table.name, "head") == 0)
            headAt = offset;
        const auto length = static_cast<quint32>(table.bytes.size());
        fillUp(table.bytes);
        file += table.name;
        append<quint32>(file, sumOf(table.bytes));
        append<quint32>(file, static_cast<quint32>(offset));
        append<quint32>(file, length);
        offset += table.bytes.size();
    }
    for (const Table& table : tables)
        file += table.bytes;
    constexpr quint32 wholeSum = 0xB1B0AFBA;
    put<quint32>(file, headAt + adjustmentAt, wholeSum - sumOf(file));
    return file;
}

} // namespace

bool whole(const OutlineTables& tables) {
    const qsizetype offsets = qsizetype{glyphCount(tables)} + 1;
    return tables.head.size() >= headSize && offsets > 1 && !tables.glyf.isEmpty() && !tables.hhea.isEmpty() &&
           !tables.hmtx.isEmpty() && tables.loca.size() >= offsets * (longOffsets(tables) ? 4 : 2);
}

std::set<quint32> withParts(const OutlineTables& tables, const std::set<quint32>& glyphs) {
    std::set<quint32> found;
    std::vector<quint32> open(glyphs.begin(), glyphs.end());
    while (!open.empty()) {
        const quint32 glyph = open.back();
        open.pop_back();
        if (!found.insert(glyph).second)
            continue;
        const std::vector<quint32> parts = partsOf(outlineOf(tables, glyph));
        open.insert(open.end(), parts.begin(), parts.end());
    }
    return found;
}

QByteArray subsetOf(const OutlineTables& tables, const std::set<quint32>& glyphs) {
    std::set<quint32> kept = withParts(tables, glyphs);
    kept.merge(withParts(tables, {0}));
    QByteArray glyf;
    QByteArray loca;
    for (quint32 glyph = 0; glyph < glyphCount(tables); ++glyph) {
        append<quint32>(loca, static_cast<quint32>(glyf.size()));
        if (!kept.contains(glyph))
            continue;
        glyf += outlineOf(tables, glyph);
        fillUp(glyf);
    }
    append<quint32>(loca, static_cast<quint32>(glyf.size()));
    QByteArray head = tables.head;
    put<quint16>(head, locaFormatAt, 1);
    put<quint32>(head, adjustmentAt, 0);
    return fontFile({{"cvt ", tables.cvt},
                     {"fpgm", tables.fpgm},
                     {"glyf", glyf},
                     {"head", head},
                     {"hhea", tables.hhea},
                     {"hmtx", tables.hmtx},
                     {"loca", loca},
                     {"maxp", tables.maxp},
                     {"prep", tables.prep}});
}

} // namespace vanzer::desktop
