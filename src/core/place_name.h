// Names of places: the marks of the stretch that a leg's name may carry, and the forms in which legs and guide meet.
#pragma once

#include <QString>

namespace vanzer {

inline constexpr QStringView marcaStart = u"[Start]";
inline constexpr QStringView marcaEnd = u"[End]";

/// The place of a row taken apart: its name and the marks of the stretch.
struct LuogoConMarche {
    QString nome;
    bool start = false;
    bool end = false;
};
[[nodiscard]] LuogoConMarche splitMarks(const QString& cell);

/// What lies before the first `mark`, trimmed; the whole text if it doesn't hold it.
[[nodiscard]] QString cutAt(const QString& name, QChar mark);

/// The form in which the guide files a leg's place: no brackets, no "near ", "vicino ", "CVL " in front, no marks.
[[nodiscard]] QString PulisceNomeLocalita(const QString& name);

/// The form for a row of the schedule: cut at "[", trimmed, capitals normalised.
[[nodiscard]] QString RiPulisceNomeLocalita(const QString& name);

/// What tells a destination by its name: two names mean the same one exactly if these are equal.
[[nodiscard]] QString chiaveMeta(const QString& name);

} // namespace vanzer
