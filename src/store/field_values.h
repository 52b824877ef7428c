// SPDX-License-Identifier: MIT
// Converts texts to stored values and back.
#pragma once

#include "store/schema.h"
#include "store/value.h"

namespace vanzer::store {

/// The value that a field stores for a text. A text field cuts it to its size and stores a blank for an empty text.
/// Other fields store a number or yes/no.
[[nodiscard]] Valore valoreDa(const QString& text, const FieldDef& field);

/// The value of a field that was never written: "no" for yes/no, no value for all others.
[[nodiscard]] Valore valoreIniziale(const FieldDef& field);

/// The text of a stored value; empty if there is no value. Yes/no becomes "True" or "False".
[[nodiscard]] QString testoDa(const Valore& value, FieldKind kind);

/// True for "True", "Vero" (case ignored), "-1" and "1"; false for everything else.
[[nodiscard]] bool siNoDa(const Valore& value);

/// Converts the stored value of one field to what another field would store.
[[nodiscard]] Valore adattato(const Valore& value, FieldKind from, const FieldDef& to);

} // namespace vanzer::store
