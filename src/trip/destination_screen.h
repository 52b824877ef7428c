// SPDX-License-Identifier: MIT
// The destination record in the window: load, create, save, delete, find.
#pragma once

#include "window/form.h"

namespace vanzer {

/// Sets CodiceMeta to the destination to show, and the mode. That is the stored current one, else the highest code.
void RicercaMetaCorrente(Form& form);
/// Loads the record of CodiceMeta into the controls and empties the results. A field without a value leaves its control
/// as it is.
void CaricaDatiAnagraficiMeta(Form& form);
/// Loads the current destination and its legs into the window.
void RicaricaItinerario(Form& form);
/// Makes the code in txtCodice the current destination, in the window and in the archive.
void SalvaIlCodiceMetaCorrente(Form& form);
/// The name of the destination in the window and the number of its stored legs: "«ROMA»: 12 tappe".
[[nodiscard]] QString describeTrip(Form& form);
/// Shows a blank destination.
void AzzeraSchermo(Form& form);
/// Makes the destination of that name the current one. An unknown name reloads the present one.
void RichiamaMeta(Form& form, const QString& localita);

/// Loads the stored destination of that code and its legs into the window. The archive doesn't change. Returns false
/// and does nothing if no destination of that code and name is stored.
[[nodiscard]] bool loadDestination(Form& form, const QString& code, const QString& localita);
/// Gives the destination in the window a free code. It is stored later: with its legs, or by a save.
void daCodiceNuovo(Form& form);
/// Stores a destination that has such a new code, without asking. Returns false if a required field is empty.
[[nodiscard]] bool insertNewDestination(Form& form);

void cmdNuovo_Click(Form& form);
/// Stores the destination. Asks first if `asks`. Returns false if a required field is empty or the user said no.
bool saveDestination(Form& form, bool asks);
void cmdSalva_Click(Form& form);
void cmdCancMeta_Click(Form& form);
void cmdCancItin_Click(Form& form);
void cmdRicerca_Click(Form& form);
/// Closes the list of destinations without a choice. The buttons become as they were before the search.
void RinunciaRicerca(Form& form);
void cmbRicerca_Click(Form& form);

} // namespace vanzer
