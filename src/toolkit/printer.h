// SPDX-License-Identifier: MIT
// The printer as the reports use it. Positions and sizes are in mm, right and down from the top left corner of the
// sheet.
#pragma once

#include <optional>

#include <QString>
#include <QStringList>

#include "core/punto.h"

namespace vanzer {

/// The window's pictures that are printed.
enum class Immagine {
    LogoSito, ///< imgLogoSito, at the top of every page
    Logo      ///< imgLogo1(1), on covers
};

/// A failed operation of the printer. The text says why, in Italian.
struct PrinterError {
    QString testo;
};

/// Functions that draw, start a page or end a document throw PrinterError on failure. The document is dropped then, and
/// the next drawing begins a new one.
class Printer {
  public:
    virtual ~Printer() = default;

    /// Names of the printers as the user sees them, in the platform's order.
    [[nodiscard]] virtual QStringList names() const = 0;
    /// The printer for the next operations: the default one until another is chosen.
    [[nodiscard]] virtual QString current() const = 0;
    /// Chooses a printer; does nothing if there is none of that name. Ends an open document first.
    virtual void choose(const QString& name) = 0;

    /// Every page of the reports uses paper size 9 (A4), orientation 1 (portrait) and scale mode 6 (millimetres). A
    /// printer that supports only these need not override.
    virtual void setPaperSize(int /*size*/) {}
    virtual void setOrientation(int /*orientation*/) {}
    virtual void setScaleMode(int /*mode*/) {}

    virtual void setFontName(const QString& name) = 0;
    /// The font in use. It differs from the requested one if the printer lacks that.
    [[nodiscard]] virtual QString fontName() const = 0;
    virtual void setBold(bool on) = 0;
    virtual void setItalic(bool on) = 0;
    /// In points; fractions are allowed.
    virtual void setFontSize(double points) = 0;
    [[nodiscard]] virtual double textWidth(const QString& text) const = 0;
    [[nodiscard]] virtual double textHeight(const QString& text) const = 0;

    /// Text with its top left corner at a point, in the current font.
    virtual void text(Punto at, const QString& text) = 0;
    /// `width` is the thickness of the pen in tenths of a millimetre.
    virtual void line(Punto from, Punto to, int width) = 0;
    /// `fill` is 0xRRGGBB; without a value the box isn't filled.
    virtual void box(Punto from, Punto to, int width, std::optional<quint32> fill) = 0;
    /// Draws the picture, scaled to `size`.
    virtual void picture(Immagine picture, Punto at, Punto size) = 0;

    /// Number of the current page, from 1; 0 before anything is drawn.
    [[nodiscard]] virtual int page() const = 0;
    virtual void newPage() = 0;
    /// Sends the document; does nothing if none was begun. False if the user cancelled it.
    virtual bool endDoc() = 0;
    /// Drops the document: pages that weren't sent yet never are.
    virtual void dropDoc() = 0;
    /// The files of the last ended document; empty for paper.
    [[nodiscard]] virtual QStringList madeFiles() const { return {}; }
};

} // namespace vanzer
