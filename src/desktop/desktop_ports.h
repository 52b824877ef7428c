// The ports of the desktop: the platform's message boxes and file dialogs, its clock, and a yield that lets events run.
#pragma once

#include <functional>

#include <QPointer>
#include <QWidget>

#include "toolkit/ports.h"

namespace vanzer::desktop {

/// What both kinds of dialogs need: the window they stand before, and a last look at what they stand before.
class BeforeWindow {
  public:
    void setWindow(QWidget* window) { window_ = window; }
    /// Runs before a dialog opens.
    std::function<void()> onOpen;

  protected:
    [[nodiscard]] QWidget* opening() const;

  private:
    QPointer<QWidget> window_;
};

/// Opens a file or a folder with the program that the desktop has for it.
class FileOpener {
  public:
    virtual ~FileOpener() = default;
    /// False if there is none.
    [[nodiscard]] virtual bool open(const QString& path) = 0;
};

class DesktopOpener : public FileOpener {
  public:
    [[nodiscard]] bool open(const QString& path) override;
};

/// With Italian buttons. Esc stands for "Annulla", or for "No" where there is nothing to cancel. Beside the "OK" of a
/// box about files "Apri" opens the first of them and "Mostra cartella" its folder; they are answered as "OK".
class DialogBoxes : public MessageBoxes, public BeforeWindow {
  public:
    /// `opener` lives longer than the boxes.
    explicit DialogBoxes(FileOpener& opener) : opener_(opener) {}
    [[nodiscard]] int show(const MessageBox& box) override;

  private:
    void open(const QString& path);
    FileOpener& opener_;
};

class PlatformDialogs : public FileDialogs, public BeforeWindow {
  public:
    [[nodiscard]] QString open(const QString& filter) override;
    [[nodiscard]] QString save(const QString& filter, Ricopertura overwriting) override;
};

class SystemClock : public Clock {
  public:
    [[nodiscard]] QDateTime now() const override { return QDateTime::currentDateTime(); }
};

/// When events run inside a command, in milliseconds.
struct Pace {
    qint64 patience = 60; ///< of a command before events run inside it: most have ended by then
    qint64 yields = 50;   ///< from one run of events to the next
    /// From one look at half-done work to the next; twice that to the first, since a flash helps nobody.
    qint64 frames = 100;
};

/// Lets events run inside a command at a pace. Looks at a coarse clock, so that a call costs next to nothing.
class PacedYield : public EventYield {
  public:
    explicit PacedYield(Pace pace) : pace_(pace) {}
    /// A command begins: what the user has typed meanwhile waits for its end, if that comes soon.
    void begin();
    void yield() override;
    [[nodiscard]] bool frameDue() override;

  private:
    Pace pace_;
    qint64 lastYield_ = 0;
    qint64 lastFrame_ = 0;
    qint64 lastLook_ = 0;
    int skips_ = 0;
    bool frameDue_ = false;
};

} // namespace vanzer::desktop
