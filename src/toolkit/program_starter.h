// Programs started on their own.
#pragma once

#include "toolkit/ports.h"

namespace vanzer {

/// Starts programs with none of this program's input and output.
class DetachedStarter : public ProgramStarter {
  public:
    [[nodiscard]] bool start(const QString& program, const QStringList& arguments) override;
};

} // namespace vanzer
