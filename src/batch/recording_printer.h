// SPDX-License-Identifier: MIT
// The printer "Registro" records instead of drawing. It measures text without any font, so that a layout is the same
// everywhere.
#pragma once

#include <utility>
#include <vector>

#include <QJsonArray>

#include "batch/recorded_page.h"
#include "toolkit/printer.h"

namespace vanzer::batch {

class RecordingPrinter : public Printer {
  public:
    RecordingPrinter();

    [[nodiscard]] QStringList names() const override { return {current()}; }
    [[nodiscard]] QString current() const override { return QStringLiteral("Registro"); }
    void choose(const QString& /*name*/) override {}

    void setFontName(const QString& /*name*/) override {} // it has just one font
    [[nodiscard]] QString fontName() const override { return font_.name; }
    void setBold(bool on) override { font_.bold = on; }
    void setItalic(bool on) override { font_.italic = on; }
    void setFontSize(double points) override { font_.size = points; }
    [[nodiscard]] double textWidth(const QString& text) const override;
    [[nodiscard]] double textHeight(const QString& text) const override;

    void text(Punto at, const QString& text) override;
    void line(Punto from, Punto to, int width) override;
    void box(Punto from, Punto to, int width, std::optional<quint32> fill) override;
    void picture(Immagine picture, Punto at, Punto size) override;

    [[nodiscard]] int page() const override { return page_; }
    void newPage() override;
    bool endDoc() override;
    void dropDoc() override { page_ = 0; }

    /// The pages drawn, and the number of documents ended, since the last call.
    [[nodiscard]] QJsonArray takePages();
    [[nodiscard]] int takeDocuments() { return std::exchange(documents_, 0); }

  private:
    void openPage();
    void draw(Operazione operation);

    Carattere font_;
    int page_ = 0;
    std::vector<Pagina> recorded_;
    int documents_ = 0;
};

} // namespace vanzer::batch
