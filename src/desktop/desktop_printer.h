// The printers of the desktop: the platform's, and "PDF", which asks for its file. A page goes off when the next one
// begins and is forgotten then; with the preview a document waits whole for the user's word.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <tuple>
#include <vector>

#include "desktop/desktop_ports.h"
#include "desktop/page_output.h"
#include "desktop/print_font.h"
#include "toolkit/printer.h"

namespace vanzer::desktop {

class DesktopPrinter : public Printer, public BeforeWindow {
  public:
    /// `files` is asked for the file of a PDF and outlives the printer.
    explicit DesktopPrinter(FileDialogs& files);
    ~DesktopPrinter() override;

    /// Why no PDF may have a name, as the end of a sentence; empty if it is free. Without it every name is.
    std::function<QString(const QString& path)> nomeRiservato;

    [[nodiscard]] QStringList names() const override;
    [[nodiscard]] QString current() const override;
    void choose(const QString& name) override;

    void setPaperSize(int /*size*/) override {}          // always A4
    void setOrientation(int /*orientation*/) override {} // always upright
    void setScaleMode(int /*mode*/) override {}          // always mm

    void setFontName(const QString& name) override;
    [[nodiscard]] QString fontName() const override { return font_.face.name; }
    void setBold(bool on) override;
    void setItalic(bool on) override;
    void setFontSize(double points) override { font_.points = points; }
    [[nodiscard]] double textWidth(const QString& text) const override;
    [[nodiscard]] double textHeight(const QString& text) const override;

    void text(Punto at, const QString& text) override;
    void line(Punto from, Punto to, int width) override;
    void box(Punto from, Punto to, int width, std::optional<quint32> fill) override;
    void picture(Immagine picture, Punto at, Punto size) override;

    [[nodiscard]] int page() const override { return page_; }
    void newPage() override;
    bool endDoc() override;
    void dropDoc() override { drop(); }
    [[nodiscard]] QStringList madeFiles() const override { return madeFiles_; }

  private:
    /// Throws what `step` throws, with the document dropped.
    template<typename Step> void orDrop(Step step);
    [[nodiscard]] PrintFace& face() const;
    void begin();
    template<typename Drawn> void draw(Drawn&& drawing);
    void pageDone();
    [[nodiscard]] bool approved();
    void drop();

    FileDialogs& files_;
    QString chosen_; ///< empty: the platform's default
    std::map<QString, Typeface> typefaces_;
    PrintFont font_;
    mutable PrintFace* face_ = nullptr; ///< of that font; null until it is needed
    mutable std::map<std::tuple<QString, bool, bool>, std::unique_ptr<PrintFace>> faces_;

    // The document that is being drawn.
    int page_ = 0;
    QString target_; ///< its printer
    bool unwanted_ = false;
    bool previewed_ = false;
    std::unique_ptr<PageOutput> output_;
    QString file_; ///< that it goes into; empty for paper
    DrawnPage drawn_;
    std::vector<DrawnPage> waiting_; ///< for the preview

    QStringList madeFiles_;
};

} // namespace vanzer::desktop
