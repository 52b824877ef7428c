// SPDX-License-Identifier: MIT
// The guide on paper: the names of its places, five in a row, or every entry in a row of its own.
#pragma once

#include <array>

#include <QString>

#include "reports/sheet.h"

namespace vanzer {

enum class DettaglioGuida { Nomi, Voci };

/// The printed texts of an entry.
struct VoceStampata {
    QString localita;
    QString categoria;
    QString gruppo;
    QString descrizione;
    QString tempo;
};

class ReportGuida {
  public:
    ReportGuida(Foglio& sheet, DettaglioGuida detail, QString title, const Piede& foot);

    /// Prints the next name of a row, or an entry in a row of its own. Begins a page where needed.
    void StampaRigaGuidaCitta(const VoceStampata& entry);
    /// Ends the page, and a row of names that isn't full. False if nothing was printed.
    bool chiude();

  private:
    static constexpr std::size_t columns = 5;
    using Edges = std::array<double, columns + 1>;

    [[nodiscard]] static Edges edgesOf(DettaglioGuida detail);
    void StampaIntestaPaginaGuida();
    void StampaFinePaginaGuida();
    void prossimaRiga();
    void cell(std::size_t column, const QString& text, Posizione at);

    Foglio& sheet_;
    DettaglioGuida detail_;
    QString title_;
    Piede foot_;
    Edges x_;
    double y_ = nessunaPagina; ///< bottom of the current row, mm
    double top_ = 0;           ///< top of the table on this page, mm
    std::size_t nextName_ = 0; ///< column of the next name
};

} // namespace vanzer
