// SPDX-License-Identifier: MIT
// A draft: work that was typed but not stored, as plain texts, and its format in a file.
#pragma once

#include <array>
#include <map>
#include <optional>
#include <vector>

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <QStringList>

#include "core/leg_columns.h"

namespace vanzer {

/// The columns of the leg table that are typed or loaded, not calculated: place, road, kilometres, road type, stop,
/// stops of the guide.
inline constexpr std::array<int, 6> colonneTenute{tappaLuogo, tappaStrada, tappaKm, tappaTipo, tappaSosta, tappaGuida};
using TappaTenuta = std::array<QString, colonneTenute.size()>;
using TappeTenute = std::vector<TappaTenuta>;

/// Texts of controls by control name. An option or check box that is on is "1".
using TestiDeiCampi = std::map<QString, QString>;

struct Bozza {
    QString codice;       ///< code of the destination; empty if it was never stored
    QString nome;         ///< stored name of the destination
    TestiDeiCampi campi;  ///< all fields of the destination and its parameters
    QStringList cambiati; ///< names of the fields that differ from what is stored
    TappeTenute tappe;    ///< all legs
    bool tappeCambiate = false;
    bool editor = false;    ///< the leg editor is open
    bool tratto = false;    ///< the editing of a stretch is open
    int riga = 1;           ///< the current row of the leg table, from 1
    QString modifiche;      ///< one character per row: "1" if the editing of a stretch changed it, else "0"
    TestiDeiCampi digitata; ///< fields of the leg editor if its leg isn't in the table yet, else empty
    QDateTime scritta = {}; ///< when the bytes were made, local time in whole seconds
    bool operator==(const Bozza& other) const = default;
};

/// The largest draft that is read, in bytes. A table of 9,999 legs takes about a sixtieth of it.
inline constexpr qint64 massimaBozza = 64 << 20;

[[nodiscard]] QByteArray byteDellaBozza(const Bozza& draft, const QDateTime& now);

/// Nothing if the bytes aren't a draft, are of a later version, or hold values that the window never writes.
[[nodiscard]] std::optional<Bozza> bozzaDaiByte(const QByteArray& bytes);

} // namespace vanzer
