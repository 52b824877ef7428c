// SPDX-License-Identifier: MIT
// Initial captions, tool tips and positions of the controls.
#pragma once

namespace vanzer {

class Form;

void writeTexts(Form& form);

} // namespace vanzer
