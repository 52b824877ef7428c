// The question that stands before a command is carried out.
#pragma once

#include "window/form.h"

namespace vanzer {

/// Asks "Confermi ...?" with yes and no; `what` is a code of the known questions or a text. The answer goes to
/// Risposta. `detail` names what is lost with a yes.
void BoxConferma(Form& form, const QString& what, const QString& detail = {});

} // namespace vanzer
