// SPDX-License-Identifier: MIT
// The rules for a guide entry that need no window: its category, group marks, time, and the fields that it needs.
//
// A group is one or more marks joined by "-". A blank and "0" both mean no group. A time is "hh:mm". The hours may also
// be "G1" to "G8", whole days of visiting. "00:00" means no time.
#pragma once

#include <optional>
#include <span>

#include <QString>

namespace vanzer {

/// The columns of the grid while it shows the guide.
enum ColonnaGuida {
    guidaNumero = 0,
    guidaLuogo = 1,
    guidaSosta = 2, ///< the leg's stop
    guidaGruppo = 3,
    guidaDescrizione = 4,
    guidaTempo = 5,
    guidaTipo = 6, ///< name of the category
    guidaSegno = 8 ///< tells an entry from a place: "1" for an entry
};

inline constexpr QStringView segnoVoce = u"1";
inline constexpr QStringView testaGruppo = u"Gruppo"; ///< Head of its column. No other layout of the grid has it.

enum class TipoRigaGuida {
    Vuota,
    Luogo, ///< the first row of a place; a new entry is typed here
    Voce
};
[[nodiscard]] TipoRigaGuida tipoRigaGuida(const QString& place, const QString& mark);

/// Number of the last category of that name, from 1, case ignored. -1 if there is none or the name is empty.
[[nodiscard]] int CodiceTipoGuida(std::span<const QString> names, const QString& name);

/// Name of a stored category code. Empty for an unknown code.
[[nodiscard]] QString nomeTipoGuida(std::span<const QString> names, const QString& code);

/// The group as the user sees it: trimmed, and empty for no group.
[[nodiscard]] QString gruppoMostrato(const QString& group);
[[nodiscard]] bool stessoGruppo(const QString& a, const QString& b);
/// The marks of a group sorted, case ignored, and joined again. Empty for no group.
[[nodiscard]] QString gruppoOrdinato(const QString& group);

/// The time "hh:mm" from its two boxes. An empty box counts as "00".
[[nodiscard]] QString tempoDigitato(const QString& hours, const QString& minutes);
/// The text of the hours' box for a stored time: two digits, or "G1" to "G8".
[[nodiscard]] QString oreMostrate(const QString& time);
[[nodiscard]] QString minutiMostrati(const QString& time);

struct VoceDigitata {
    QString luogo;
    QString descrizione;
    int codice = -1; ///< category
    bool tempoObbligatorio = false;
    QString tempo; ///< "hh:mm"
};

enum class EsitoVoce { Buona, MancaDescrizione, MancaTipologia, MancaTempo, MancaLuogo };
/// The first reason why an entry can't be stored.
[[nodiscard]] EsitoVoce checkEntry(const VoceDigitata& entry);
/// The message for the user. Empty if the entry can be stored.
[[nodiscard]] QString messaggioVoce(EsitoVoce result);

/// A description that the user can type by its first letters, and its category.
struct FormaBreve {
    QString descrizione;
    QString tipo;
};
/// The form for the logbook, typed as "diar".
[[nodiscard]] std::optional<FormaBreve> formaDiario(const QString& text);
/// The form for the logbook, or for maps and guide books, typed as "cs".
[[nodiscard]] std::optional<FormaBreve> formaBreve(const QString& text);

/// The character to put into a group for a typed one: upper case, or 0 if it isn't allowed there. Control codes stay as
/// they are.
[[nodiscard]] int carattereGruppo(int code);

/// The row that a key leads to from `row`. The grid has `rows` rows, the head included. Arrow keys move by one row,
/// page keys by twelve; any other key stays in the row.
[[nodiscard]] int rigaDopoTasto(int row, int key, int rows);

} // namespace vanzer
