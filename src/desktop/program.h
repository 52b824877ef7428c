// The whole program on a desktop: ports, form and window, put together.
#pragma once

#include <memory>

#include "desktop/desktop_ports.h"
#include "desktop/desktop_printer.h"
#include "desktop/input_gate.h"
#include "desktop/main_window.h"
#include "toolkit/program_starter.h"

namespace vanzer::desktop {

class Program {
  public:
    /// `clock` and `opener` live longer than the program; without an opener files are opened by the desktop.
    Program(const Ambiente& surroundings, Clock& clock, Pace pace = {}, FileOpener* opener = nullptr);

    /// Opens the archive and shows the window; false if the user has been told why that can't be.
    [[nodiscard]] bool start();

    /// Offers the trips of a file for an import.
    void openTrips(const QString& path);

    [[nodiscard]] Form& form() { return *form_; }
    [[nodiscard]] MainWindow& window() { return *window_; }

  private:
    DesktopOpener opener_;
    DialogBoxes boxes_;
    PlatformDialogs dialogs_;
    PacedYield events_;
    DetachedStarter programs_;
    DesktopPrinter printer_{dialogs_};
    Ports ports_;
    std::unique_ptr<Form> form_;
    std::unique_ptr<MainWindow> window_;
    std::unique_ptr<InputGate> gate_;
};

} // namespace vanzer::desktop
