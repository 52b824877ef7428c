// SPDX-License-Identifier: MIT
// The printers of the desktop: the platform's, and "PDF", which asks for its file. With the preview, all pages are kept
// until the user decides.
#pragma once

#include <functional>
#include <memory>

#include "desktop/desktop_ports.h"
#include "reports/page_printer.h"

namespace vanzer::desktop {

class DesktopPrinter : public PagePrinter, public BeforeWindow {
  public:
    /// `files` asks for the file of a PDF, `clock` gives its time; both must outlive the printer.
    DesktopPrinter(FileDialogs& files, const Clock& clock) : files_(files), clock_(clock) {}

    /// Returns why no PDF may be written to a path, in Italian, as the end of a sentence; empty if it may. Without this
    /// function every path is allowed.
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
