// SPDX-License-Identifier: MIT
// The file that the user chose for an export, import or route.
#pragma once

#include <optional>

#include <QByteArray>

#include "window/form.h"

namespace vanzer {

/// Full path of NomeFileScambio.
[[nodiscard]] QString percorsoScelto(const Form& form);

/// Reads the file at NomeFileScambio. A missing file counts as empty. If the file can't be read, tells the user and
/// returns no value.
[[nodiscard]] std::optional<QByteArray> readExchangeFile(Form& form);

} // namespace vanzer
