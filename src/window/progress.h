// The progress line, and work that runs behind it.
#pragma once

#include "window/form.h"

namespace vanzer {

/// What the progress line says while nothing runs.
inline constexpr QStringView testoInAttesa = u"Sposta il mouse sui pulsanti/campi attivi per istruzioni.";

/// Title of the questions whether to leave.
inline constexpr QStringView titoloFine = u"Fine Lavoro";

/// Shows PercentualeCorrente of PercentualeTotale and yields; 0 brings back the idle text.
void AggiornaPercentuale(Form& form);
void AzzeraPercentuale(Form& form);

/// Asks whether what is running is to be given up: InterrompiCalcolo.
void askToInterrupt(Form& form);

/// Work that is running and that the user can give up: an import, an export, a conversion, the copy of the archive. The
/// frames that may be open are off as long as it stands.
class LavoroInCorso {
  public:
    explicit LavoroInCorso(Form& form);
    ~LavoroInCorso();
    LavoroInCorso(const LavoroInCorso&) = delete;
    LavoroInCorso& operator=(const LavoroInCorso&) = delete;

    /// Progress at `done` of PercentualeTotale; false when the user has given up, or the window was left.
    [[nodiscard]] bool advance(double done);

  private:
    Form& form_;
};

} // namespace vanzer
