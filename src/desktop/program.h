// The whole program on a desktop: ports, form and window, put together.
#pragma once

#include <memory>

#include <QTimer>

#include "desktop/desktop_ports.h"
#include "desktop/desktop_printer.h"
#include "desktop/input_gate.h"
#include "desktop/main_window.h"
#include "startup/unsaved_work.h"
#include "toolkit/program_starter.h"

namespace vanzer::desktop {

class Program {
  public:
    /// `clock` and `opener` live longer than the program; without an opener files are opened by the desktop.
    Program(const Ambiente& surroundings, Clock& clock, Pace pace = {}, FileOpener* opener = nullptr);

    /// Opens the archive, shows the window and offers the work that was left in a draft; false if the user has been
    /// told why that can't be, or the program is to end.
    [[nodiscard]] bool start();

    /// Offers the trips of a file for an import.
    void openTrips(const QString& path);

    /// Ends the program without a question: a command at work is stopped or ends, boxes go as by Esc, and what isn't
    /// stored is kept in the draft. Runs on in the window's events.
    void end();

    [[nodiscard]] Form& form() { return *form_; }
    [[nodiscard]] MainWindow& window() { return *window_; }

  private:
    void keepDrafts();
    void goOnEnding();
    void leaveNow();

    DesktopOpener opener_;
    DialogBoxes boxes_;
    PlatformDialogs dialogs_;
    PacedYield events_;
    DetachedStarter programs_;
    DesktopPrinter printer_;
    Ports ports_;
    std::unique_ptr<Form> form_;
    // Told by widgets also while they go.
    CustodeBozza draft_;
    QTimer draftBehind_; ///< runs from the first input that the draft doesn't know
    QTimer ending_;
    std::unique_ptr<MainWindow> window_;
    std::unique_ptr<InputGate> gate_;
};

} // namespace vanzer::desktop
