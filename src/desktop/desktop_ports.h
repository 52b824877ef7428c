// SPDX-License-Identifier: MIT
// The ports of the desktop: the platform's message boxes, file dialogs and clock, and a yield that runs events.
#pragma once

#include <functional>

#include <QPointer>
#include <QWidget>

#include "toolkit/ports.h"

namespace vanzer::desktop {

/// Base of both kinds of dialogs: their parent window, and a hook that runs before they open.
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

/// Opens a file or a folder with the desktop's program for it.
class FileOpener {
  public:
    virtual ~FileOpener() = default;
    /// False if there is no such program.
    [[nodiscard]] virtual bool open(const QString& path) = 0;
};

class DesktopOpener : public FileOpener {
  public:
    [[nodiscard]] bool open(const QString& path) override;
};

/// Message boxes with Italian buttons. Esc means "Annulla", or "No" if there is no such button. A box about files also
/// has "Apri", which opens the first file, and "Mostra cartella", which opens its folder. Both answer as "OK".
class DialogBoxes : public MessageBoxes, public BeforeWindow {
  public:
    /// `opener` must outlive the boxes.
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

/// How often events run inside a command, in milliseconds.
struct Pace {
    qint64 patience = 60; ///< from the start of a command to the first run of events; most commands end sooner
    qint64 yields = 50;   ///< between two runs of events
    /// Between two displays of unfinished work. The first comes after twice that time, to avoid a flash.
    qint64 frames = 100;
};

/// Runs events inside a command at a pace. Uses a coarse clock, so that a call costs almost nothing.
class PacedYield : public EventYield {
  public:
    explicit PacedYield(Pace pace) : pace_(pace) {}
    /// Called when a command begins. Inputs of the user wait for its end if that comes soon.
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
