// The schedule as the table shows it: numbers turned into texts, once, for the test that stands.
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
    colFine, ///< on one row only: day and hour of the end
    numeroColonneViandoria
};

/// Place of the row that starts a day, and of the first row of totals.
inline constexpr QStringView testoNuovoGiorno = u" > Partenza mattino successivo";
inline constexpr QStringView titoloTotali = u"Totali: Km e tempi (gg:hh:mm):";

struct TestiViandoria {
    /// Cells of the leg table by row and column, for what a leg's row takes over.
    std::function<const QString&(int row, int column)> tappa;
    QString minutiPausa;       ///< length of a break in minutes, as its list shows it
    float oreGuidaGiorno = 0;  ///< hundredths
    float oreVisitaGiorno = 0; ///< hundredths
};

/// "Lun", "gg/mm", "hh:mm" of a day and a clock.
[[nodiscard]] QString giornoEMese(float giuliano);
[[nodiscard]] QString oraMostrata(float ora);

/// Only what the simulation wrote, row by row, and blank rows behind it.
[[nodiscard]] TestiTabella celleViandoria(const Viandoria& schedule, const std::vector<RigaDiLavoro>& work,
                                          const TestiViandoria& texts, int blankRows = 0);

/// The whole table of a schedule: its rows without those that say nothing beyond their name, day and hour, closed by
/// the notes of the days and the mark of the end, and behind them the rows of totals.
[[nodiscard]] TestiTabella tabellaViandoria(const Viandoria& schedule, const std::vector<RigaDiLavoro>& work,
                                            const TestiViandoria& texts);

} // namespace vanzer
