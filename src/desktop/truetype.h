// A TrueType font as a PDF takes it: its tables, with the outlines of the glyphs that are used alone.
#pragma once

#include <set>
#include <vector>

#include <QByteArray>

namespace vanzer::desktop {

/// The tables by which a glyph's number leads to its outline, as the font holds them.
struct OutlineTables {
    QByteArray head;
    QByteArray maxp;
    QByteArray loca;
    QByteArray glyf;
    QByteArray hhea;
    QByteArray hmtx;
    /// Programs of the hints; empty where a font has none.
    QByteArray cvt;
    QByteArray fpgm;
    QByteArray prep;
};

/// Whether the tables hold together.
[[nodiscard]] bool whole(const OutlineTables& tables);

/// The glyphs and those that they are made of.
[[nodiscard]] std::set<quint32> withParts(const OutlineTables& tables, const std::set<quint32>& glyphs);

/// A font file in which these glyphs, their parts and the sign for a missing letter have outlines, all under their own
/// numbers. The tables are whole.
[[nodiscard]] QByteArray subsetOf(const OutlineTables& tables, const std::set<quint32>& glyphs);

} // namespace vanzer::desktop
