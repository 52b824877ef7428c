// The sheet that a report draws on: text fitted into boxes, lines and boxes with the pen and the fill of the moment,
// the table's frame at the foot. Everything in mm from the top left corner.
#pragma once

#include <array>

#include <QString>

#include "toolkit/printer.h"

namespace vanzer {

/// Where a text stands between its two edges.
enum class Posizione { Sinistra, Centro, Destra };

struct Stile {
    double dimensione = 9; ///< points
    bool grassetto = false;
    bool corsivo = false;
    Posizione posizione = Posizione::Sinistra;
};

/// Height of a row.
inline constexpr double interlinea = 4.5;
/// Where the next row would stand while no page was begun.
inline constexpr double nessunaPagina = 900;

class Foglio {
  public:
    explicit Foglio(Printer& printer) : printer_(printer) {}

    /// A4, portrait, mm, the report's font, a thin pen and no fill.
    void setUp();
    /// The condensed font of the reports, or the other one where it is missing.
    void SettaFontNamePrinter();

    /// Draws a text above the line `y`, shrunk until it fits between the edges or is smaller than 6 points. A text of
    /// blanks draws nothing and leaves the font as it was.
    void StampaTesto(const QString& text, double y, double left, double right, const Stile& style);
    /// Width of a text as it would be drawn, not shrunk.
    [[nodiscard]] double larghezza(const QString& text, const Stile& style);

    void penna(int steps) { pen_ = steps; }
    /// Nothing leaves boxes open.
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

/// Light green of the headings.
inline constexpr quint32 verdeChiaro = 0xC0FFC0;

/// What the foot of a page tells.
struct Piede {
    QString data;     ///< today, dd/mm/yyyy
    QString finestra; ///< the window's caption
};

/// Date, caption and the frame of the table, and the next sheet; nothing while no page was begun. The table reaches
/// from `top` to the row above `y`, its columns from `left` to `right`; the date has room up to `dateRight`.
void StampaFinePagina(Foglio& sheet, const Piede& foot, double y, double top, double left, double dateRight,
                      double right);

} // namespace vanzer
