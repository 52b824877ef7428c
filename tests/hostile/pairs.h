// Every command with every other one inside it, in every kind of window.
#pragma once

#include <vector>

#include "hostile/script.h"

namespace vanzer::hostile {

class Pairs {
  public:
    explicit Pairs(const Folders& folders);

    [[nodiscard]] quint64 count() const { return doors_.size() * static_cast<quint64>(inside_.size()); }
    /// Neighbouring numbers, from 1 on, are of different windows and commands, so that some hundred of them are a fair
    /// choice.
    [[nodiscard]] Script script(quint64 number) const;

  private:
    /// A command that can be given where the lines lead to.
    struct Door {
        int folder;
        QStringList lines;
        QString command;
    };

    std::vector<Door> doors_;
    QStringList inside_;
};

} // namespace vanzer::hostile
