// SPDX-License-Identifier: MIT
// The window's close button and the Esc key. Both press the buttons that are there to leave, so that no question is
// skipped.
#pragma once

#include "window/form.h"

namespace vanzer {

/// The close button. Leaves all that is open, one part after the other, each with its own question. Then asks to leave
/// the program. Stops at the first part that stays open. Asks running work to end; returns false if that can't be
/// asked, and the caller must wait for its end.
bool askToClose(Form& form);

/// Stops the running work without a question, as its own stop button does after the question. False if it can't be
/// stopped.
bool interruptUnasked(Form& form);

/// The Esc key. Closes a list without a choice. Leaves the frames of print, copy, stretch, exchange and line of time.
/// Asks whether to stop a running print, import or export. Elsewhere it does nothing.
void giveUpChoice(Form& form);

} // namespace vanzer
