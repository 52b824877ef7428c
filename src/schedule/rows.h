// SPDX-License-Identifier: MIT
// The schedule as texts for the table, made from the numbers of a simulation.
#pragma once

#include <vector>

#include <QString>

#include "core/table_texts.h"
#include "schedule/simulation.h"

namespace vanzer {

/// Columns of a schedule row.
enum ColonnaViandoria {
    colNumero,
    colTappa,
    colStrada,
    colKm,
    colTipo,
    colKmProgressivi,
    colTempo,
    colSostaGuida,
    colSosta,
    colGiorno,
    colData,
    colOra,
    colNote,
    colFine, ///< in one row only: day and hour of the trip's end
    numeroColonneViandoria
};

/// The place in the row that starts a day, and in the first row of totals.
inline constexpr QStringView testoNuovoGiorno = u" > Partenza mattino successivo";
inline constexpr QStringView titoloTotali = u"Totali: Km e tempi (gg:hh:mm):";

struct TestiViandoria {
    /// Cells of the leg table by row and column. The row of a leg copies some of them.
    std::function<const QString&(int row, int column)> tappa;
    QString minutiPausa;       ///< length of a break in minutes, as the user's list shows it
    float oreGuidaGiorno = 0;  ///< driving time of a day, hundredths of an hour
    float oreVisitaGiorno = 0; ///< visiting time of a day, hundredths of an hour
};

/// "gg/mm" of a Julian day, and "hh:mm" of a clock in hundredths of an hour.
[[nodiscard]] QString giornoEMese(float giuliano);
[[nodiscard]] QString oraMostrata(float ora);

/// The rows of the simulation alone, with blank rows after them.
[[nodiscard]] TestiTabella celleViandoria(const Viandoria& schedule, const std::vector<RigaDiLavoro>& work,
                                          const TestiViandoria& texts, int blankRows = 0);

/// The whole table of a schedule. Rows that have only name, day and hour are left out. The rows get the notes of the
/// days and the mark of the trip's end, and the rows of totals follow.
[[nodiscard]] TestiTabella tabellaViandoria(const Viandoria& schedule, const std::vector<RigaDiLavoro>& work,
                                            const TestiViandoria& texts);

} // namespace vanzer
