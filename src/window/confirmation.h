// SPDX-License-Identifier: MIT
// The question before a command is run.
#pragma once

#include "window/form.h"

namespace vanzer {

/// Asks "Confermi ...?" with yes and no, and stores the answer in Risposta. `what` is the code of a known question or a
/// text. `detail` names what a yes would delete.
void BoxConferma(Form& form, const QString& what, const QString& detail = {});

} // namespace vanzer
