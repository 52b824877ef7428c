// SPDX-License-Identifier: MIT
#include "startup/enter_key.h"

#include "guide/typed_entry_screen.h"
#include "itinerary/typed_leg_screen.h"

namespace vanzer {

namespace {

bool standsIn(const Control* control, const Frame& frame) {
    while (control != nullptr && control != &frame)
        control = control->frame();
    return control != nullptr;
}

} // namespace

Button* pulsanteDiInvio(const Form& form, const Control* focused) {
    if (standsIn(focused, form.frmframe(riquadroTappe)) && form.cmdInserisce.reachable() && tappaDigitata(form))
        return &form.cmdInserisce;
    if (standsIn(focused, form.frmframe(riquadroGuida)) && form.cmdSalvaRiga.reachable() && voceDigitata(form))
        return &form.cmdSalvaRiga;
    for (const auto& control : form.controls()) {
        auto* const button = dynamic_cast<Button*>(control.get());
        if (button != nullptr && button->isDefault() && button->reachable())
            return button;
    }
    return nullptr;
}

} // namespace vanzer
