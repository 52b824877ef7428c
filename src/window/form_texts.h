// Captions, tool tips and places of the controls, as the window shows them before anything runs.
#pragma once

namespace vanzer {

class Form;

void writeTexts(Form& form);

} // namespace vanzer
