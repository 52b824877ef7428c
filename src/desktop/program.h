// SPDX-License-Identifier: MIT
// The whole program on a desktop: connects ports, form and window.
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
    /// `clock` and `opener` must outlive the program. Without an opener the desktop opens files.
    Program(const Ambiente& surroundings, Clock& clock, Pace pace = {}, FileOpener* opener = nullptr);

    /// Opens the archive, shows the window and offers to restore a draft. False if that failed and the user was told
    /// why, or if the program is to end.
    [[nodiscard]] bool start();

    /// Opens the import with the trips of a file.
    void openTrips(const QString& path);

    /// Ends the program without questions. Stops a running command or waits for its end, closes boxes as with Esc, and
    /// keeps unstored work in the draft. Returns at once; the rest runs in the window's events.
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
    // Members that widgets still use while they are destroyed.
    CustodeBozza draft_;
    QTimer draftBehind_; ///< runs from the first input that isn't in the draft yet
    QTimer ending_;
    std::unique_ptr<MainWindow> window_;
    std::unique_ptr<InputGate> gate_;
};

} // namespace vanzer::desktop
