// The file that the user chose for an exchange, whatever kind of exchange it is.
#pragma once

#include <optional>

#include <QByteArray>

#include "window/form.h"

namespace vanzer {

/// Full path of NomeFileScambio.
[[nodiscard]] QString percorsoScelto(const Form& form);

/// The file at NomeFileScambio as it is on the disk; one that isn't there is empty. One that can't be read has been
/// told to the user and gives nothing.
[[nodiscard]] std::optional<QByteArray> readExchangeFile(Form& form);

} // namespace vanzer
