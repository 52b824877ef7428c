// From the legs and the guide to the working rows of a calculation.
#pragma once

#include <functional>

#include "core/guide_entry.h"
#include "schedule/working_rows.h"

namespace vanzer {

/// Which stops count, by the leading digit of the chosen source.
enum class FonteSoste { Nessuna = 0, Itinerario = 1, Guida, Entrambe, Maggiore, Minore, NessunaSosta };
[[nodiscard]] FonteSoste fonteSoste(const QString& choice);

/// What the preparation needs of a row of the leg table.
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
    float oreVisitaGiorno = 0; ///< hundredths
    /// The entries of a place that weren't used yet: by category, the longest first, then by group.
    std::function<std::vector<const VoceGuida*>(const QString& place)> guida;
    std::function<QString(int category)> categoria;
    /// Called once a leg.
    std::function<void(int row)> advance;
};

/// Rows without a place may be among the legs. The marks of the stretch are made consistent on the way: an "[End]"
/// before any "[Start]" goes, and without a "[Start]" the first place receives it.
[[nodiscard]] RigheDiLavoro prepareRows(std::vector<TappaDaPreparare> legs, const Preparazione& with);

} // namespace vanzer
