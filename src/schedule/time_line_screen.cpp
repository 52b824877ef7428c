#include "schedule/time_line_screen.h"

#include "core/text.h"
#include "schedule/rows.h"

namespace vanzer {

LineaDelTempo lineaMostrata(const Form& form) {
    if (form.viandoria == nullptr || !form.tappeConservate)
        return {};
    const ViandoriaMostrata& shown = *form.viandoria;
    const Grid::Rows& legs = *form.tappeConservate;
    return lineaDelTempo(shown.viandoria, shown.lavoro->righe, shown.parametri, [&legs](int leg) {
        const auto& cells = legs[static_cast<std::size_t>(leg - 1)];
        return cells.size() > colStrada ? Trim(cells[colStrada]) : QString();
    });
}

void cmdLinea_Click(Form& form) {
    const bool shows = !form.frmLinea.visible();
    if (shows)
        form.linea = std::make_shared<const LineaDelTempo>(lineaMostrata(form));
    form.frmLinea.setVisible(shows);
}

} // namespace vanzer
