// SPDX-License-Identifier: MIT
#include "schedule/growing_rows_screen.h"

#include <utility>

namespace vanzer {

VistaCrescente::VistaCrescente(Form& form, const std::vector<RigaDiLavoro>& work, TestiViandoria texts)
    : form_(form), work_(work), texts_(std::move(texts)), enabled_(form.mfgTab.enabled()) {}

VistaCrescente::~VistaCrescente() {
    if (!shown_)
        return;
    const SenzaRidisegno quiet(form_.mfgTab);
    form_.mfgTab.setRows(1);
    form_.mfgTab.setEnabled(enabled_);
}

void VistaCrescente::showIfDue(const Viandoria& soFar) {
    if (soFar.righe.empty() || !form_.ports.events.frameDue())
        return;
    const RitmoMostre::Istante begin = RitmoMostre::adesso();
    if (!rhythm_.isDue(begin))
        return;
    show(soFar);
    rhythm_.shown(begin, RitmoMostre::adesso());
}

void VistaCrescente::show(const Viandoria& soFar) {
    Grid& grid = form_.mfgTab;
    const SenzaRidisegno quiet(grid);
    // A click would reach the editor, which would take these rows for legs.
    grid.setEnabled(false);
    TestiTabella rows = grid.takeContents();
    if (std::exchange(fresh_, false))
        rows = {};
    grow(rows, soFar, work_, texts_);
    grid.setContents(std::move(rows));
    grid.setTopRow(grid.rows() - 1);
    shown_ = true;
}

} // namespace vanzer
