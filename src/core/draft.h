// Work that was typed and not stored, as plain texts, and the bytes of the draft that keeps it.
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

/// Of a row of the leg table what is typed and loaded, and not worked out: place, road, kilometres, road type, stop,
/// the guide's stops.
inline constexpr std::array<int, 6> colonneTenute{tappaLuogo, tappaStrada, tappaKm, tappaTipo, tappaSosta, tappaGuida};
using TappaTenuta = std::array<QString, colonneTenute.size()>;
using TappeTenute = std::vector<TappaTenuta>;

/// Texts of controls by their names; an option or a check box that is on is "1".
using TestiDeiCampi = std::map<QString, QString>;

struct Bozza {
    QString codice;       ///< of the destination; empty for one that was never stored
    QString nome;         ///< of the destination as it is stored
    TestiDeiCampi campi;  ///< all of the destination and its parameters
    QStringList cambiati; ///< those of them that aren't stored as they are
    TappeTenute tappe;    ///< all that there are
    bool tappeCambiate = false;
    bool editor = false;    ///< of the legs, open
    bool tratto = false;    ///< the editing of a stretch, open
    int riga = 1;           ///< the row at hand
    QString modifiche;      ///< "1" for each row that the editing of a stretch has changed, else "0"
    TestiDeiCampi digitata; ///< the fields of the leg editor, if they hold a leg that isn't in the table
    QDateTime scritta = {}; ///< when its bytes were made, to the second
    bool operator==(const Bozza& other) const = default;
};

/// The largest draft that is read. A table of 9,999 legs takes about a sixtieth of it.
inline constexpr qint64 massimaBozza = 64 << 20; // bytes

[[nodiscard]] QByteArray byteDellaBozza(const Bozza& draft, const QDateTime& now);

/// Nothing if the bytes are no draft, one of a later version, or hold what no window can have put there.
[[nodiscard]] std::optional<Bozza> bozzaDaiByte(const QByteArray& bytes);

} // namespace vanzer
