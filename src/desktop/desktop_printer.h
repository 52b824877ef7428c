// The printers of the desktop: the platform's, and "PDF", which asks for its file. With the preview a document waits
// whole for the user's word.
#pragma once

#include <functional>
#include <memory>

#include "desktop/desktop_ports.h"
#include "reports/page_printer.h"

namespace vanzer::desktop {

class DesktopPrinter : public PagePrinter, public BeforeWindow {
  public:
    /// `files` is asked for the file of a PDF, `clock` for the time that it tells; both outlive the printer.
    DesktopPrinter(FileDialogs& files, const Clock& clock) : files_(files), clock_(clock) {}

    /// Why no PDF may have a name, as the end of a sentence; empty if it is free. Without it every name is.
    std::function<QString(const QString& path)> nomeRiservato;

    [[nodiscard]] QStringList names() const override;
    [[nodiscard]] QString current() const override;
    void choose(const QString& name) override;

  protected:
    [[nodiscard]] std::unique_ptr<PageOutput> begin() override;

  private:
    [[nodiscard]] std::unique_ptr<PageOutput> toPdf();

    FileDialogs& files_;
    const Clock& clock_;
    QString chosen_; ///< empty: the platform's default
};

} // namespace vanzer::desktop
