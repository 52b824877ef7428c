// SPDX-License-Identifier: MIT
// The progress line, and long work that shows its progress there.
#pragma once

#include "window/form.h"

namespace vanzer {

/// Text of the progress line while nothing runs.
inline constexpr QStringView testoInAttesa = u"Sposta il mouse sui pulsanti/campi attivi per istruzioni.";

/// Title of the questions whether to leave or to stop.
inline constexpr QStringView titoloFine = u"Fine Lavoro";

/// Shows PercentualeCorrente as a percentage of PercentualeTotale and yields. 0 shows the idle text.
void AggiornaPercentuale(Form& form);
void AzzeraPercentuale(Form& form);

/// Asks whether to stop the running work; sets InterrompiCalcolo on a yes.
void askToInterrupt(Form& form);

/// Exists while work runs that the user can stop: an import, an export, a conversion or a copy of the archive. Disables
/// the frames that may be open.
class LavoroInCorso {
  public:
    explicit LavoroInCorso(Form& form);
    ~LavoroInCorso();
    LavoroInCorso(const LavoroInCorso&) = delete;
    LavoroInCorso& operator=(const LavoroInCorso&) = delete;

    /// Shows progress, `done` of PercentualeTotale. False if the user stopped the work or left the window.
    [[nodiscard]] bool advance(double done);

  private:
    Form& form_;
};

} // namespace vanzer
