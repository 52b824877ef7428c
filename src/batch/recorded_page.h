// What was drawn, as values: pages are lists of operations in the order drawn. Positions and sizes are in mm.
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
    Punto a{};                     ///< top left corner, or where a line begins
    Punto b{};                     ///< the other end; of a picture the size
    int width = 0;                 ///< of the pen
    std::optional<quint32> fill{}; ///< 0xRRGGBB
    QString text{};
    Carattere font{};
};

using Pagina = std::vector<Operazione>;

/// An operation as it is answered, figures rounded to two decimals.
[[nodiscard]] QJsonObject operationAnswer(const Operazione& operation);

} // namespace vanzer::batch
