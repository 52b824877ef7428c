// SPDX-License-Identifier: MIT
// Recorded drawings. A page is a list of operations in the order in which they were drawn. Positions and sizes are in
// mm.
#pragma once

#include <optional>
#include <vector>

#include <QJsonObject>
#include <QString>

#include "toolkit/printer.h"

namespace vanzer::batch {

struct Carattere {
    QString name{};
    double size = 10; ///< points
    bool bold = false;
    bool italic = false;
};

struct Operazione {
    enum class Kind { Text, Line, Box, Picture };
    Kind kind = Kind::Text;
    Punto a{};                     ///< top left corner, or start of a line
    Punto b{};                     ///< opposite corner, end of a line, or size of a picture
    int width = 0;                 ///< thickness of the pen, tenths of a mm
    std::optional<quint32> fill{}; ///< 0xRRGGBB
    QString text{};
    Carattere font{};
};

using Pagina = std::vector<Operazione>;

/// The operation as JSON, numbers rounded to two decimals.
[[nodiscard]] QJsonObject operationAnswer(const Operazione& operation);

} // namespace vanzer::batch
