// The schedule as the table shows it: numbers turned into texts, once, for the test that stands.
#pragma once

#include <array>
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
    QString minutiPausa; ///< length of a break, as its list shows it
    float oreGuidaGiorno = 0;
    float oreVisitaGiorno = 0;
};

/// "Lun", "gg/mm", "hh:mm" of a day and a clock.
[[nodiscard]] QString giornoEMese(float giuliano);
[[nodiscard]] QString oraMostrata(float ora);

/// Only what the simulation wrote, row by row.
[[nodiscard]] TestiTabella celleViandoria(const Viandoria& schedule, const std::vector<RigaDiLavoro>& work,
                                          const TestiViandoria& texts);

/// The texts of a day, made once for all its rows.
class TestiGiorno {
  public:
    void mostra(float giuliano);
    [[nodiscard]] const QString& settimana() const { return week_; } ///< "Lun"
    [[nodiscard]] const QString& data() const { return date_; }      ///< "gg/mm"

  private:
    float giuliano_ = -1;
    QString week_;
    QString date_;
};

/// Kilometres, driving time and stops of a day, a stretch or the whole trip; times in hundredths.
struct SommaViandoria {
    int km = 0;
    float guida = 0;
    float soste = 0;
};

inline constexpr int righeTotali = 7;

/// The whole table of a schedule: its rows without those that say nothing beyond their name, closed by the notes of the
/// days and the mark of the end, and behind them the rows of totals. All of it is worked out on numbers at once; the
/// texts of a row are made when somebody asks.
class TabellaViandoria {
  public:
    /// Schedule and working rows must live as long.
    TabellaViandoria(const Viandoria& schedule, const std::vector<RigaDiLavoro>& work, TestiViandoria texts);

    [[nodiscard]] int righe() const { return static_cast<int>(kept_.size() + totals_.size()); }
    /// Row from 0, with blank cells.
    void scrive(int row, RigaDiTesti cells);

  private:
    class Chiusura;

    /// The note of a day, behind what stands on its last row.
    struct NotaGiorno {
        int riga = 0; ///< of the schedule
        SommaViandoria giorno;
        bool ultimo = false;
    };

    const Viandoria& schedule_;
    const std::vector<RigaDiLavoro>& work_;
    TestiViandoria texts_;
    std::vector<int> kept_;         ///< rows of the schedule
    std::vector<NotaGiorno> notes_; ///< by row, rising
    int endRow_ = -1;               ///< of the schedule: it bears the mark of the end
    std::array<QString, righeTotali> totals_;
    TestiGiorno day_; ///< of the row written last
};

} // namespace vanzer
