// SPDX-License-Identifier: MIT
// The trip of a logbook, as Vanzer passes it, and the texts of its dates.
#pragma once

#include <exception>

#include <QByteArray>
#include <QDate>
#include <QString>

namespace vanzer::scribolo {

/// Why there is no logbook: a text for the user, in Italian.
class Problem : public std::exception {
  public:
    explicit Problem(const QString& text) : text_(text.toUtf8()) {}
    /// The text as UTF-8.
    [[nodiscard]] const char* what() const noexcept override { return text_.constData(); }

  private:
    QByteArray text_;
};

/// Greatest length of a trip: a leap year.
inline constexpr int longestTrip = 366; // days

struct Trip {
    QString name; ///< one line, never empty
    QDate start;
    QDate end;    ///< the last day, not before the first
    int days = 0; ///< number of days, both ends included
};

/// Parses "NAME,dd/mm/yyyy,dd/mm/yyyy". The last two commas separate the parts, so a name may contain commas. Throws a
/// Problem for any other text.
[[nodiscard]] Trip tripOf(const QString& word);

/// The trip's word in a command file (code page 1252): the text after the last "\Scribolo.exe " in its first line.
/// Throws a Problem if there is none.
[[nodiscard]] QString wordOfCommand(const QByteArray& file);

/// "Diario di bordo - NAME.pdf". Characters that file systems refuse become "_", and a name that is too long is cut.
[[nodiscard]] QString fileName(const QString& tripName);

/// The date of a day counted from 1.
[[nodiscard]] QDate dayDate(const Trip& trip, int day);
/// "Lunedì 1 giugno 2026".
[[nodiscard]] QString dateWithWeekday(QDate date);
/// "lun 01/06".
[[nodiscard]] QString shortDate(QDate date);
/// "1 giugno 2026 – 3 giugno 2026"; just the date for a trip of one day.
[[nodiscard]] QString period(const Trip& trip);
/// "1 giorno", "3 giorni".
[[nodiscard]] QString length(const Trip& trip);

} // namespace vanzer::scribolo
