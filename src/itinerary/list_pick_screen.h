// A pick in the list of places, which serves the leg editor and the guide alike.
#pragma once

#include "window/form.h"

namespace vanzer {

void cmbRicercaTappa_Click(Form& form);

} // namespace vanzer
