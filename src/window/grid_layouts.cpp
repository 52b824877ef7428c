// SPDX-License-Identifier: MIT
#include "window/grid_layouts.h"

#include <algorithm>
#include <optional>
#include <span>

namespace vanzer {

namespace {

using enum Allineamento;

struct Colonna {
    int number;
    const char16_t* head;     ///< null: the heading stays
    std::optional<int> width; ///< twips; no value: the width stays
    std::optional<Allineamento> alignment;
};

constexpr auto none = std::nullopt;

const std::array legs{
    Colonna{0, u"Num.", 420, none},          Colonna{1, u"Tappa", 6295, Sinistra},
    Colonna{2, u"Num. Strada", 980, Centro}, Colonna{3, u"Km.", 500, Destra},
    Colonna{4, u"Ts", 280, Centro},          Colonna{5, u"Km/pr", 620, Destra},
    Colonna{6, u"Tempo", 550, Centro},       Colonna{7, u"Itinerario", 800, Centro},
    Colonna{8, u"Guida", 800, Centro},       Colonna{9, u"Gs", 400, Centro},
    Colonna{10, u"Data", 550, Centro},       Colonna{11, u"Ore", 550, Centro},
    Colonna{12, u"Note", 1200, Sinistra},
};
const std::array guide{
    Colonna{1, nullptr, 2000, none},     Colonna{2, u"Sosta", 800, Centro},
    Colonna{3, u"Gruppo", 1350, Centro}, Colonna{4, u"Descrizione segnalazione", 5000, Sinistra},
    Colonna{5, u"Tempo", 650, Centro},   Colonna{6, u"Note", 970, Sinistra},
};
const std::array legsToCopy{
    Colonna{0, u"Num.", 420, Destra}, Colonna{1, u"Località", 2300, Sinistra}, Colonna{2, u"Strada", 1000, Sinistra},
    Colonna{3, u"kM.", 500, Destra},  Colonna{4, u"Tipo", 600, Centro},        Colonna{5, u"Sosta", 800, Centro},
};
const std::array destinations{
    Colonna{0, u"Num.", 500, none},
    Colonna{1, u"Denominazione della mèta", 5000, none},
    Colonna{2, u"Nazione", 2200, none},
};
const std::array workingRows{
    Colonna{0, u"Num.", 420, none},   Colonna{1, u"Tappa", 2300, Sinistra}, Colonna{2, u"Num. Strada", 950, none},
    Colonna{3, u"Km.", 470, none},    Colonna{4, u"Ts", 280, none},         Colonna{5, u"Km/pr", 620, Destra},
    Colonna{6, u"Tempo", 550, none},  Colonna{7, u"Sosta", 800, none},      Colonna{8, u"Gs", 400, none},
    Colonna{9, u"Data", 550, none},   Colonna{10, u"Ore", 550, none},       Colonna{11, u"Note", 1000, Sinistra},
    Colonna{12, nullptr, 1100, none},
};
const std::array destinationsToChoose{
    Colonna{0, u"Num", 450, none},     Colonna{1, u"Mèta", 3000, none}, Colonna{2, u"Nazione", 2300, none},
    Colonna{3, u"Record", 1000, none}, Colonna{4, nullptr, 300, none},
};

void layOut(Grid& grid, std::span<const Colonna> columns) {
    for (const Colonna& c : columns) {
        if (c.head != nullptr)
            grid.setCell(0, c.number, QString::fromUtf16(c.head));
        if (c.width)
            grid.setColumnWidth(c.number, *c.width);
        if (c.alignment)
            grid.setAlignment(c.number, *c.alignment);
    }
    for (int c = columns.back().number + 1; c < grid.columns(); ++c)
        grid.setColumnWidth(c, 0);
}

void placeCopyList(Form& form, int gridHeight, const QString& instruction) {
    constexpr int width = 7730;
    form.mfgCopia.setWidth(width);
    form.mfgCopia.setHeight(gridHeight);
    form.lblLista.setWidth(width);
    form.lblLista.setCaption(instruction);
}

} // namespace

void ImpostaGriglia(Form& form, int n) {
    switch (n) {
    case 1:
        form.mfgTab.setWidth(larghezzaTabella);
        layOut(form.mfgTab, legs);
        break;
    case 2: layOut(form.mfgTab, guide); break;
    case 3:
        layOut(form.mfgCopia, legsToCopy);
        placeCopyList(
            form, 3170,
            QStringLiteral("Seleziona la tappa iniziale e clicca su ASSEGNA/Tappa iniziale, quindi seleziona la "
                           "tappa finale e clicca su ASSEGNA/Tappa finale. ATTENZIONE: Per tappa d'inizio non "
                           "selezionare quella comune alla precedente per non avere un doppio chilometraggio!!!"));
        break;
    case 4:
        layOut(form.mfgCopia, destinations);
        placeCopyList(form, 3480,
                      QStringLiteral("Seleziona la mèta dalla quale copiare una parte o tutto l'itinerario"));
        break;
    case 5: layOut(form.mfgCopia, workingRows); break;
    default: break;
    }
}

void ImpostaListaScambio(Grid& list) {
    layOut(list, destinationsToChoose);
}

void SelezioneGriglia(Form& form, int riga, int rigaFine, int colonna, int colonnaFine) {
    Grid& grid = form.mfgTab;
    const int lastRow = grid.rows() - 1;
    const int lastColumn = grid.columns() - 1;
    if (colonnaFine > 20)
        colonnaFine = lastColumn;
    const auto inside = [](int value, int last) { return std::max(1, std::min(value, last)); };
    grid.select(inside(riga, lastRow), inside(colonna, lastColumn), inside(rigaFine, lastRow),
                inside(colonnaFine, lastColumn));
    if (riga != 0 && riga < grid.topRow())
        grid.setTopRow(std::max(riga, 1));
}

void SelezionaRiga(Form& form, int riga) {
    SelezioneGriglia(form, riga, riga, 0, 99);
}

} // namespace vanzer
