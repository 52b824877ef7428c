// SPDX-License-Identifier: MIT
// The sheet that a report draws on. It fits texts into boxes, draws lines and boxes with the current pen and fill, and
// frames the table at the end of a page. All lengths are mm from the top left corner.
#pragma once

#include <array>

#include <QString>

#include "toolkit/printer.h"

namespace vanzer {

/// Position of a text between its two edges.
enum class Posizione { Sinistra, Centro, Destra };

struct Stile {
    double dimensione = 9; ///< points
    bool grassetto = false;
    bool corsivo = false;
    Posizione posizione = Posizione::Sinistra;
};

/// Height of a row, mm.
inline constexpr double interlinea = 4.5;
/// The position of the next row, mm, before a page has begun.
inline constexpr double nessunaPagina = 900;

class Foglio {
  public:
    explicit Foglio(Printer& printer) : printer_(printer) {}

    /// Sets A4 portrait, mm, the reports' font, a thin pen and no fill.
    void setUp();
    /// Sets the condensed font of the reports, or the serif font if that is missing.
    void SettaFontNamePrinter();

    /// Draws a text above the line `y`. Shrinks it until it fits between the edges or is smaller than 6 points. A blank
    /// text draws nothing and doesn't change the font.
    void StampaTesto(const QString& text, double y, double left, double right, const Stile& style);
    /// Width of a text in mm, not shrunk.
    [[nodiscard]] double larghezza(const QString& text, const Stile& style);

    void penna(int steps) { pen_ = steps; }
    /// Sets the fill of boxes. No value draws only their outline.
    void fill(std::optional<quint32> colour) { fill_ = colour; }
    void linea(double x1, double y1, double x2, double y2);
    void riquadro(double x1, double y1, double x2, double y2);
    void immagine(Immagine picture, double x, double y, double size);

    [[nodiscard]] int pagina() const { return printer_.page(); }
    void nuovaPagina() { printer_.newPage(); }

  private:
    void setFont(const Stile& style);

    Printer& printer_;
    int pen_ = 1;
    std::optional<quint32> fill_;
};

/// The light green of the headings.
inline constexpr quint32 verdeChiaro = 0xC0FFC0;

/// The texts at the foot of a page.
struct Piede {
    QString data;     ///< today, dd/mm/yyyy
    QString finestra; ///< the window's caption
};

/// Ends a page: prints date and caption, frames the table, begins the next sheet. Does nothing before a page has begun.
/// The table reaches from `top` to the row above `y`, and from `left` to `right`. The date may reach to `dateRight`.
/// All in mm.
void StampaFinePagina(Foglio& sheet, const Piede& foot, double y, double top, double left, double dateRight,
                      double right);

} // namespace vanzer
