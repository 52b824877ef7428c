// The guide on paper: the names of its places, five to a line, or every entry in a row of its own.
#pragma once

#include <array>

#include <QString>

#include "reports/sheet.h"

namespace vanzer {

enum class DettaglioGuida { Nomi, Voci };

/// An entry as it is printed.
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

    /// A name in the next place of its line, or an entry in its row; a page begins where one is needed.
    void StampaRigaGuidaCitta(const VoceStampata& entry);
    /// Ends a line of names that isn't full, and the page; false if nothing was printed.
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
    double y_ = nessunaPagina; ///< bottom of the row at hand
    double top_ = 0;           ///< of the table on this page
    std::size_t nextName_ = 0; ///< column of the next name
};

} // namespace vanzer
