// The trip that the logbook is for, as Vanzer hands it over, and its dates in words.
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
    /// UTF-8.
    [[nodiscard]] const char* what() const noexcept override { return text_.constData(); }

  private:
    QByteArray text_;
};

/// A year and the day on which a leap year ends: what a logbook may hold at most.
inline constexpr int longestTrip = 366; // days

struct Trip {
    QString name; ///< one line, never empty
    QDate start;
    QDate end;    ///< the last day, not before the first
    int days = 0; ///< both ends count
};

/// The trip told by one word, "NAME,dd/mm/yyyy,dd/mm/yyyy". The last two commas part it, so a name may hold more of
/// them. Throws a Problem for anything that is no trip.
[[nodiscard]] Trip tripOf(const QString& word);

/// The word in a command file: what stands behind the last "\Scribolo.exe " of its first line (code page 1252).
/// Throws a Problem when there is none.
[[nodiscard]] QString wordOfCommand(const QByteArray& file);

/// "Diario di bordo - NAME.pdf". What no file system takes becomes "_", and a name that is too long for one is cut.
[[nodiscard]] QString fileName(const QString& tripName);

/// The date of a day counted from 1.
[[nodiscard]] QDate dayDate(const Trip& trip, int day);
/// "Lunedì 1 giugno 2026".
[[nodiscard]] QString dateWithWeekday(QDate date);
/// "lun 01/06".
[[nodiscard]] QString shortDate(QDate date);
/// "1 giugno 2026 – 3 giugno 2026"; a trip of one day has its date alone.
[[nodiscard]] QString period(const Trip& trip);
/// "1 giorno", "3 giorni".
[[nodiscard]] QString length(const Trip& trip);

} // namespace vanzer::scribolo
