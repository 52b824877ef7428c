// One value of a record, apart from the engine.
#pragma once

#include <variant>
#include <vector>

#include <QByteArray>
#include <QString>

namespace vanzer::store {

/// No value, whole number (yes/no too: 0 or 1), fraction, text, bytes.
using Valore = std::variant<std::monostate, qint64, double, QString, QByteArray>;

struct Riga {
    qint64 rowid = 0;
    std::vector<Valore> valori;
};

} // namespace vanzer::store
