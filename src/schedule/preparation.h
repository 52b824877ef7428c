// SPDX-License-Identifier: MIT
// Turns the legs and the guide into the working rows of a calculation.
#pragma once

#include <functional>

#include "core/guide_entry.h"
#include "schedule/working_rows.h"

namespace vanzer {

/// The stops that count. The first digit of the chosen source is the number.
enum class FonteSoste { Nessuna = 0, Itinerario = 1, Guida, Entrambe, Maggiore, Minore, NessunaSosta };
[[nodiscard]] FonteSoste fonteSoste(const QString& choice);

/// The cells of the leg table that the preparation needs.
struct TappaDaPreparare {
    int riga = 0; ///< from 1
    QString luogo;
    QString strada;
    int km = 0;
    QString tipoStrada;
    QString sosta; ///< gg:hh:mm with "*" in front for the end of the day
};

struct Preparazione {
    FonteSoste fonte = FonteSoste::Nessuna;
    float oreVisitaGiorno = 0; ///< visiting time of a day, hundredths of an hour
    /// The entries of a place that weren't used yet. Sorted by category, then by time with the longest first, then by
    /// group.
    std::function<std::vector<const VoceGuida*>(const QString& place)> guida;
    std::function<QString(int category)> categoria;
    /// Called once for each leg.
    std::function<void(int row)> advance;
};

/// Makes the working rows. Legs without a place are skipped. Corrects the marks of the stretch: removes an "[End]"
/// before any "[Start]", and gives the first place a "[Start]" if there is none.
[[nodiscard]] RigheDiLavoro prepareRows(std::vector<TappaDaPreparare> legs, const Preparazione& with);

} // namespace vanzer
