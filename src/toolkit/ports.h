// SPDX-License-Identifier: MIT
// Ports: everything that the window asks of the platform. The desktop, the batch program and the tests each have their
// own implementation.
#pragma once

#include <QDateTime>
#include <QString>
#include <QStringList>

namespace vanzer {

class Printer;

/// The buttons of a message box. "Salva" and "Riprendi la copia" answer yes, "Non salvare" and "Nuovo archivio" answer
/// no.
enum class Pulsanti { Ok, SiNo, SiNoAnnulla, SalvaNonSalvareAnnulla, RiprendeCominciaAnnulla };
enum class Icona { Nessuna, Informazione, Avviso };

/// Answers of a message box.
inline constexpr int rispostaOk = 1;
inline constexpr int rispostaAnnulla = 2;
inline constexpr int rispostaSi = 6;
inline constexpr int rispostaNo = 7;

/// The contents of a message box. Only the desktop uses the last four members; they don't change the answers.
struct MessageBox {
    QString text;
    QString title = {};
    Pulsanti buttons = Pulsanti::Ok;
    Icona icon = Icona::Nessuna;
    bool refuses = false;   ///< a warning: says why something can't be done
    bool destroys = false;  ///< "yes" deletes or overwrites, so Enter answers no
    QString detail = {};    ///< shown below the text: what it is about
    QStringList files = {}; ///< files that were made; the user may open them
};

class MessageBoxes {
  public:
    virtual ~MessageBoxes() = default;
    [[nodiscard]] virtual int show(const MessageBox& box) = 0;
};

/// Who asks before an existing file is overwritten.
enum class Ricopertura { ChiedeIlDialogo, ChiedeIlComando };

class FileDialogs {
  public:
    virtual ~FileDialogs() = default;
    /// Returns the chosen path, empty if cancelled. The filter has the form "Name|*.ext".
    [[nodiscard]] virtual QString open(const QString& filter) = 0;
    [[nodiscard]] virtual QString save(const QString& filter, Ricopertura overwriting) = 0;
};

class Clock {
  public:
    virtual ~Clock() = default;
    [[nodiscard]] virtual QDateTime now() const = 0;
};

/// Runs the window's waiting events. Costs nothing when none wait.
class EventYield {
  public:
    virtual ~EventYield() = default;
    virtual void yield() = 0;
    /// True if unfinished work may be shown now, at most ten times a second. Always false without a screen.
    [[nodiscard]] virtual bool frameDue() { return false; }
};

/// Starts a program without waiting for its end; false if it can't be started.
class ProgramStarter {
  public:
    virtual ~ProgramStarter() = default;
    [[nodiscard]] virtual bool start(const QString& program, const QStringList& arguments) = 0;
};

struct Ports {
    MessageBoxes& messages;
    FileDialogs& files;
    Clock& clock;
    EventYield& events;
    ProgramStarter& programs;
    Printer* printer = nullptr; ///< null if nothing can be printed
};

} // namespace vanzer
