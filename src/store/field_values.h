// What a field keeps of a text, and the text of what it keeps.
#pragma once

#include "store/schema.h"
#include "store/value.h"

namespace vanzer::store {

/// A text as the field stores it: cut to its size, a blank if it is empty; a number, or yes/no, by the field's kind.
[[nodiscard]] Valore valoreDa(const QString& text, const FieldDef& field);

/// The value of a field that nothing was written to: no for yes/no, else none.
[[nodiscard]] Valore valoreIniziale(const FieldDef& field);

/// The text of a stored value; empty if there is none. Yes/no is "True" or "False".
[[nodiscard]] QString testoDa(const Valore& value, FieldKind kind);

/// "True", "Vero", "-1" and "1" are yes in any case, all else is no.
[[nodiscard]] bool siNoDa(const Valore& value);

/// A stored value as another field would store it.
[[nodiscard]] Valore adattato(const Valore& value, FieldKind from, const FieldDef& to);

} // namespace vanzer::store
