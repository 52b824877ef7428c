// SPDX-License-Identifier: MIT
// A value of a record, independent of the engine.
#pragma once

#include <variant>
#include <vector>

#include <QByteArray>
#include <QString>

namespace vanzer::store {

/// No value, integer (yes/no is 1 or 0), fraction, text or bytes.
using Valore = std::variant<std::monostate, qint64, double, QString, QByteArray>;

struct Riga {
    qint64 rowid = 0;
    std::vector<Valore> valori;
};

} // namespace vanzer::store
