// The destination record in the window: loaded, made anew, saved, deleted, found.
#pragma once

#include "window/form.h"

namespace vanzer {

/// Sets CodiceMeta to the destination to show (the stored current one, else the highest code), and the mode.
void RicercaMetaCorrente(Form& form);
/// The record of CodiceMeta into the controls; the results are emptied. A field without a value leaves its control.
void CaricaDatiAnagraficiMeta(Form& form);
/// The current destination and its legs.
void RicaricaItinerario(Form& form);
/// txtCodice becomes the current destination, in the window and in the archive.
void SalvaIlCodiceMetaCorrente(Form& form);
/// The destination in the window and the number of its stored legs: "«ROMA»: 12 tappe".
[[nodiscard]] QString describeTrip(Form& form);
/// A blank destination on the screen.
void AzzeraSchermo(Form& form);
/// The destination of that name becomes the current one; an unknown name reloads the one there was.
void RichiamaMeta(Form& form, const QString& localita);

/// The stored destination of that code and its legs into the window, without a word to the archive; false, and nothing
/// happens, if there is none that still has that name.
[[nodiscard]] bool loadDestination(Form& form, const QString& code, const QString& localita);
/// The destination in the window gets a code under which nothing is stored: it is stored with its legs, or by a save.
void daCodiceNuovo(Form& form);
/// Stores such a destination, with no question; false if a field is missing.
[[nodiscard]] bool insertNewDestination(Form& form);

void cmdNuovo_Click(Form& form);
/// Stores the destination, asking first if `asks`. False if it isn't stored: a field is missing, or the answer was no.
bool saveDestination(Form& form, bool asks);
void cmdSalva_Click(Form& form);
void cmdCancMeta_Click(Form& form);
void cmdCancItin_Click(Form& form);
void cmdRicerca_Click(Form& form);
/// Leaves the list of the destinations with nothing picked: the buttons are as before the search.
void RinunciaRicerca(Form& form);
void cmbRicerca_Click(Form& form);

} // namespace vanzer
