// SPDX-License-Identifier: MIT
// Names of places: the stretch marks that a leg's name may carry, and the forms in which names of legs and of the guide
// are compared.
#pragma once

#include <QString>

namespace vanzer {

inline constexpr QStringView marcaStart = u"[Start]";
inline constexpr QStringView marcaEnd = u"[End]";

/// The place of a row, split into its name and the stretch marks.
struct LuogoConMarche {
    QString nome;
    bool start = false;
    bool end = false;
};
[[nodiscard]] LuogoConMarche splitMarks(const QString& cell);

/// The text before the first `mark`, trimmed. The whole text if it has no `mark`.
[[nodiscard]] QString cutAt(const QString& name, QChar mark);

/// A leg's place as the guide names it: without brackets, stretch marks and a leading "near ", "vicino " or "CVL ".
[[nodiscard]] QString PulisceNomeLocalita(const QString& name);

/// A place as a row of the schedule shows it: cut at "[", trimmed, capitals normalised.
[[nodiscard]] QString RiPulisceNomeLocalita(const QString& name);

/// The key of a destination's name: two names mean the same destination exactly if their keys are equal.
[[nodiscard]] QString chiaveMeta(const QString& name);

} // namespace vanzer
