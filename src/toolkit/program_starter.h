// SPDX-License-Identifier: MIT
// Starts other programs.
#pragma once

#include "toolkit/ports.h"

namespace vanzer {

/// Starts programs detached from this program's input and output.
class DetachedStarter : public ProgramStarter {
  public:
    [[nodiscard]] bool start(const QString& program, const QStringList& arguments) override;
};

} // namespace vanzer
