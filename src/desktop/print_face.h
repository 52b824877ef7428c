// A face of the paper's fonts as texts are set in it: how wide they are, and which glyph stands where. Most letters are
// told by pairs, once learnt from the platform's own shaping; what pairs can't tell is shaped as a whole. Both agree
// with what the platform draws.
#pragma once

#include <array>
#include <optional>
#include <vector>

#include <QFont>
#include <QGlyphRun>
#include <QHash>
#include <QRawFont>
#include <QString>

namespace vanzer::desktop {

/// Measures are pixels of the large font.
class PrintFace {
  public:
    explicit PrintFace(const QFont& large);

    [[nodiscard]] const QFont& font() const { return font_; }
    [[nodiscard]] const QRawFont& raw() const { return raw_; }
    [[nodiscard]] double ascent() const { return ascent_; }
    [[nodiscard]] double height() const { return height_; }
    [[nodiscard]] double width(const QString& text) const;

    /// The letters that pairs tell of: Latin-1.
    static constexpr std::size_t letters = 256;
    /// Kerning is kept in parts of a pixel, as the platform computes it.
    static constexpr int parts = 64;

    struct Letter {
        quint32 glyph;
        int advance; ///< parts
    };
    [[nodiscard]] const Letter& letter(QChar c) const { return letters_[c.unicode()]; }
    /// The width of a text that pairs tell of, parts.
    [[nodiscard]] std::optional<int> byPairs(QStringView text) const;
    /// What the second of two letters of such a text is moved by, parts.
    [[nodiscard]] int kerning(QChar first, QChar second) const {
        return kerning_[first.unicode() * letters + second.unicode()];
    }

    /// Any text, shaped as a whole: its glyphs where they stand, counted from where the text begins on its base line.
    /// Valid until the next call.
    [[nodiscard]] const QList<QGlyphRun>& shaped(const QString& text) const;

  private:
    struct Shaped {
        double width = 0;
        QList<QGlyphRun> runs{};
    };
    [[nodiscard]] Shaped shape(const QString& text) const;
    [[nodiscard]] const Shaped& wholly(const QString& text) const;
    [[nodiscard]] qint16 learn(QChar first, QChar second) const;

    QFont font_;
    QRawFont raw_;
    double ascent_;
    double height_;
    std::array<Letter, letters> letters_{};
    mutable std::vector<qint16> kerning_; ///< of each pair of letters
    mutable QHash<QString, Shaped> shaped_;
};

} // namespace vanzer::desktop
