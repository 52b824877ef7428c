// What the window's close button and the Esc key mean. Both press the button that is there for it, so that nothing is
// left without its question.
#pragma once

#include "window/form.h"

namespace vanzer {

/// The close button: leaves what is open, one thing after the other and each with its own question, then asks to leave
/// the program. Stops at the first that stays open. Running work is asked to end; false if it can't be asked, so that
/// the wish has to wait for its end.
bool askToClose(Form& form);

/// Stops the work that is running, as its own way to stop does after its question; false if it has none.
bool interruptUnasked(Form& form);

/// Esc: leaves a list that was opened to pick from, with nothing picked, and the frames of a print, of a copy, of a
/// stretch and of the exchange; a print, an import or an export that is running may be given up. Does nothing
/// elsewhere.
void giveUpChoice(Form& form);

} // namespace vanzer
