// A guide entry apart from the window: its category, its group marks, its time, and what it needs to be stored.
//
// A group is one or more marks joined by "-"; a blank and "0" both mean none. A time is "hh:mm", where the hours may be
// "G1" to "G8", whole days of visiting; "00:00" means none.
#pragma once

#include <optional>
#include <span>

#include <QString>

namespace vanzer {

/// Columns of the grid while the guide is open.
enum ColonnaGuida {
    guidaNumero = 0,
    guidaLuogo = 1,
    guidaSosta = 2, ///< the leg's stop
    guidaGruppo = 3,
    guidaDescrizione = 4,
    guidaTempo = 5,
    guidaTipo = 6, ///< name of the category
    guidaSegno = 8 ///< tells an entry from a place
};

inline constexpr QStringView segnoVoce = u"1";
inline constexpr QStringView testaGruppo = u"Gruppo"; ///< head of the column, which no other layout of the grid has

enum class TipoRigaGuida {
    Vuota,
    Luogo, ///< first row of a place: a new entry is written on it
    Voce
};
[[nodiscard]] TipoRigaGuida tipoRigaGuida(const QString& place, const QString& mark);

/// Number of the last category of that name, case ignored, from 1; -1 if there is none or the name is empty.
[[nodiscard]] int CodiceTipoGuida(std::span<const QString> names, const QString& name);

/// Name of a stored category code; empty for one that isn't known.
[[nodiscard]] QString nomeTipoGuida(std::span<const QString> names, const QString& code);

/// The group as the user sees it: trimmed, and empty for none.
[[nodiscard]] QString gruppoMostrato(const QString& group);
[[nodiscard]] bool stessoGruppo(const QString& a, const QString& b);
/// The marks of a group in order, case ignored, joined again; empty for a group without marks.
[[nodiscard]] QString gruppoOrdinato(const QString& group);

/// The time from its two boxes; an empty one counts as "00".
[[nodiscard]] QString tempoDigitato(const QString& hours, const QString& minutes);
/// What the boxes show for a stored time: two digits, or "G1" to "G8" for the hours.
[[nodiscard]] QString oreMostrate(const QString& time);
[[nodiscard]] QString minutiMostrati(const QString& time);

struct VoceDigitata {
    QString luogo;
    QString descrizione;
    int codice = -1; ///< category
    bool tempoObbligatorio = false;
    QString tempo;
};

enum class EsitoVoce { Buona, MancaDescrizione, MancaTipologia, MancaTempo, MancaLuogo };
/// The first thing that keeps an entry from being stored.
[[nodiscard]] EsitoVoce checkEntry(const VoceDigitata& entry);
/// What the user is told; empty for a good entry.
[[nodiscard]] QString messaggioVoce(EsitoVoce result);

/// A description that is written by its first letters, and its category.
struct FormaBreve {
    QString descrizione;
    QString tipo;
};
/// "diar" for the logbook.
[[nodiscard]] std::optional<FormaBreve> formaDiario(const QString& text);
/// The logbook, or "cs" for maps and guide books.
[[nodiscard]] std::optional<FormaBreve> formaBreve(const QString& text);

/// A character typed for a group: upper case, 0 where it isn't allowed there. Control codes pass.
[[nodiscard]] int carattereGruppo(int code);

/// The row that a key leads to from `row` in a grid of `rows` rows with its head: up and down by one, by twelve with
/// the page keys; the same row for any other key.
[[nodiscard]] int rigaDopoTasto(int row, int key, int rows);

} // namespace vanzer
