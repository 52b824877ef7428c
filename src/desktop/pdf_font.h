// The fonts of a PDF. Fonts of TrueType outlines go into the file with the glyphs that were used, and texts in them can
// be searched and copied; glyphs of any other font are drawn as outlines.
#pragma once

#include <map>
#include <memory>
#include <set>
#include <utility>
#include <vector>

#include <QFont>
#include <QGlyphRun>
#include <QHash>
#include <QRawFont>

#include "desktop/truetype.h"
#include "toolkit/pdf_structure.h"

namespace vanzer::desktop {

/// Measures are thousandths of the em.
class PdfFont {
  public:
    /// `raw` in the large size; a face that is put together from another one, as `wanted` tells, can't be embedded.
    PdfFont(const QRawFont& raw, const QFont& wanted, int number);

    [[nodiscard]] int number() const { return number_; }
    [[nodiscard]] bool embedded() const { return embedded_; }
    /// Another size or script of the platform's, but the same font file.
    [[nodiscard]] bool sameFile(const PdfFont& other) const;

    /// A glyph that is drawn, and the letters that it stands for.
    void use(quint32 glyph, const QString& letters);
    /// The glyphs of a line of text.
    void use(const QGlyphRun& run, const QString& line);
    /// What a glyph takes on its line.
    [[nodiscard]] double advance(quint32 glyph) const { return used_.value(glyph).advance; }
    /// Operators that draw a glyph's outline, upwards from the base line; empty for one without an outline.
    [[nodiscard]] const QByteArray& outline(quint32 glyph);

    /// The font with all that was used.
    void write(PdfStructure& file, int object) const;

  private:
    struct Used {
        double advance = 0;
        QString letters{};
    };
    [[nodiscard]] QByteArray name() const;
    [[nodiscard]] std::set<quint32> glyphs() const;
    [[nodiscard]] QByteArray widths() const;
    [[nodiscard]] QByteArray letters() const;
    [[nodiscard]] QByteArray descriptor(int fontFile) const;

    QRawFont raw_;
    int number_;
    OutlineTables tables_;
    bool thicker_; ///< drawn as outlines, which the platform hands out thinner
    bool embedded_;
    QHash<quint32, Used> used_;
    QHash<quint32, QByteArray> outlines_;
};

/// The fonts of one document.
class PdfFonts {
  public:
    /// The font of a face or of a run of its glyphs, which may come from another font than was wanted.
    [[nodiscard]] PdfFont& of(const QRawFont& raw, const QFont& wanted);
    /// Writes all of them; the entry by which contents find them: "F0" is number 0.
    [[nodiscard]] QByteArray write(PdfStructure& file) const;

  private:
    std::vector<std::unique_ptr<PdfFont>> fonts_;
    std::vector<std::pair<QRawFont, PdfFont*>> known_;
};

} // namespace vanzer::desktop
