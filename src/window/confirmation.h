// The question that stands before a command is carried out.
#pragma once

#include "window/form.h"

namespace vanzer {

/// Asks "Confermi ...?" with yes and no; `what` is a code of the known questions or a text. The answer goes to
/// Risposta.
void BoxConferma(Form& form, const QString& what);

} // namespace vanzer
