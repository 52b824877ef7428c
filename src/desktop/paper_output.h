// SPDX-License-Identifier: MIT
// Prints pages on the platform's printers.
#pragma once

#include <memory>

#include "reports/page_printer.h"

namespace vanzer::desktop {

/// The output to the printer of that name.
[[nodiscard]] std::unique_ptr<PageOutput> paperOutput(const QString& printer);

} // namespace vanzer::desktop
