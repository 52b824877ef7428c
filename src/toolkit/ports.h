// The ports to the outside: everything that the window asks of the platform, so that the desktop, the batch program and
// the tests each put their own behind it.
#pragma once

#include <QDateTime>
#include <QString>
#include <QStringList>

namespace vanzer {

class Printer;

/// The buttons of a box. "Salva" and "Riprendi la copia" are answered as yes, "Non salvare" and "Nuovo archivio" as no.
enum class Pulsanti { Ok, SiNo, SiNoAnnulla, SalvaNonSalvareAnnulla, RiprendeCominciaAnnulla };
enum class Icona { Nessuna, Informazione, Avviso };

/// Answers of a message box.
inline constexpr int rispostaOk = 1;
inline constexpr int rispostaAnnulla = 2;
inline constexpr int rispostaSi = 6;
inline constexpr int rispostaNo = 7;

/// What a box tells or asks. Where there are eyes to see them the last four are shown too; they change no answer.
struct MessageBox {
    QString text;
    QString title = {};
    Pulsanti buttons = Pulsanti::Ok;
    Icona icon = Icona::Nessuna;
    bool refuses = false;   ///< tells why something can't be done: a warning
    bool destroys = false;  ///< yes deletes or overwrites: Enter answers no
    QString detail = {};    ///< below the text: what it is about
    QStringList files = {}; ///< that were made: offered to be opened
};

class MessageBoxes {
  public:
    virtual ~MessageBoxes() = default;
    [[nodiscard]] virtual int show(const MessageBox& box) = 0;
};

/// Who asks before a file that is there already is overwritten.
enum class Ricopertura { ChiedeIlDialogo, ChiedeIlComando };

class FileDialogs {
  public:
    virtual ~FileDialogs() = default;
    /// The chosen path; empty is a cancel. The filter is written "Name|*.ext".
    [[nodiscard]] virtual QString open(const QString& filter) = 0;
    [[nodiscard]] virtual QString save(const QString& filter, Ricopertura overwriting) = 0;
};

class Clock {
  public:
    virtual ~Clock() = default;
    [[nodiscard]] virtual QDateTime now() const = 0;
};

/// Lets the waiting events of the window run. Costs nothing when nothing waits.
class EventYield {
  public:
    virtual ~EventYield() = default;
    virtual void yield() = 0;
    /// True at most ten times a second: work that is half done may be shown now. False where nobody looks.
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
    Printer* printer = nullptr; ///< null where nothing is printed
};

} // namespace vanzer
