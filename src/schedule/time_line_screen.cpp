// SPDX-License-Identifier: MIT
#include "schedule/time_line_screen.h"

#include "core/text.h"
#include "schedule/rows.h"

namespace vanzer {

LineaDelTempo lineaMostrata(const Form& form) {
    if (form.viandoria == nullptr || !form.tappeConservate)
        return {};
    const ViandoriaMostrata& shown = *form.viandoria;
    const TestiTabella& legs = *form.tappeConservate;
    return lineaDelTempo(shown.viandoria, shown.lavoro->righe, shown.parametri,
                         [&legs](int leg) { return Trim(legs.text(leg - 1, colStrada)); });
}

void cmdLinea_Click(Form& form) {
    const bool shows = !form.frmLinea.visible();
    if (shows)
        form.linea = std::make_shared<const LineaDelTempo>(lineaMostrata(form));
    form.frmLinea.setVisible(shows);
}

} // namespace vanzer
