// The printer as the reports see it. Positions are in mm from the top left corner of the sheet, to the right and down.
#pragma once

#include <optional>

#include <QString>
#include <QStringList>

#include "core/punto.h"

namespace vanzer {

/// The pictures of the window that go to the paper.
enum class Immagine {
    LogoSito, ///< imgLogoSito, at the head of every page
    Logo      ///< imgLogo1(1), on covers
};

/// An operation of the printer that failed; the text says why, in Italian.
struct PrinterError {
    QString testo;
};

/// Whatever draws, opens a page or ends a document throws PrinterError when it fails; the document is dropped then, and
/// what is drawn next begins another one.
class Printer {
  public:
    virtual ~Printer() = default;

    /// The printers' names as shown to the user, in the platform's order.
    [[nodiscard]] virtual QStringList names() const = 0;
    /// The printer that later operations go to; the default one until another is chosen.
    [[nodiscard]] virtual QString current() const = 0;
    /// Does nothing if there is no such printer. A document that is still open is ended first.
    virtual void choose(const QString& name) = 0;

    /// Paper size 9 is A4, orientation 1 portrait, scale mode 6 millimetres: what every page of the reports uses. A
    /// printer that knows no others has nothing to do.
    virtual void setPaperSize(int /*size*/) {}
    virtual void setOrientation(int /*orientation*/) {}
    virtual void setScaleMode(int /*mode*/) {}

    virtual void setFontName(const QString& name) = 0;
    /// The font really chosen: another than the one asked for if the printer lacks that.
    [[nodiscard]] virtual QString fontName() const = 0;
    virtual void setBold(bool on) = 0;
    virtual void setItalic(bool on) = 0;
    /// In points, with fractions.
    virtual void setFontSize(double points) = 0;
    [[nodiscard]] virtual double textWidth(const QString& text) const = 0;
    [[nodiscard]] virtual double textHeight(const QString& text) const = 0;

    /// Text with its top left corner at a point, in the current font.
    virtual void text(Punto at, const QString& text) = 0;
    /// `width` is the thickness of the pen in the printer's own steps.
    virtual void line(Punto from, Punto to, int width) = 0;
    /// `fill` is 0xRRGGBB; nothing leaves the box open.
    virtual void box(Punto from, Punto to, int width, std::optional<quint32> fill) = 0;
    /// The picture scaled into the box of that size.
    virtual void picture(Immagine picture, Punto at, Punto size) = 0;

    /// Number of the page being drawn; 0 before anything is drawn.
    [[nodiscard]] virtual int page() const = 0;
    virtual void newPage() = 0;
    /// Sends the document; nothing happens if nothing was begun. False if the user gave it up instead.
    virtual bool endDoc() = 0;
    /// Gives the document up: what wasn't sent yet never is.
    virtual void dropDoc() = 0;
    /// The file that the document ended last went into; none for paper.
    [[nodiscard]] virtual QStringList madeFiles() const { return {}; }
};

} // namespace vanzer
