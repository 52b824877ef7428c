// Start-up: the form's wiring and everything that happens before the user can do something.
#pragma once

#include <memory>

#include "window/form.h"

namespace vanzer {

/// The window, wired and laid out, with nothing in it yet: a view can be tied to it before it is loaded.
[[nodiscard]] std::unique_ptr<Form> nuovaFinestra(const Ambiente& surroundings, Ports& ports);

/// Opens the archive and shows the current trip. If the archive can't be opened the user has been told and the window
/// is left at once.
void caricaFinestra(Form& form);

/// Both of these.
[[nodiscard]] std::unique_ptr<Form> avvia(const Ambiente& surroundings, Ports& ports);

/// Offers the trips of a file that the program was opened with; a command of the user.
void apreViaggi(Form& form, const QString& path);

/// Why no file for other programs may have that name, as the end of a sentence that begins with "Il file …"; empty if
/// it is free.
[[nodiscard]] QString nomeRiservato(const Form& form, const QString& path);

/// The version of this build, "1.0.0".
[[nodiscard]] QString versioneProgramma();

} // namespace vanzer
