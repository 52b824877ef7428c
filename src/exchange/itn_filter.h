// SPDX-License-Identifier: MIT
// Reads the stops that ITN Converter writes, and reduces an itinerary to them.
//
// A line of the stop file is a stop if its first four characters are a number:
//
//     8.61234,45.50123,"NOVARA"
//
// Only the name after the last comma is read. The place of a stop's leg gets the stop's number: " [00007]".
#pragma once

#include <vector>

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace vanzer {

/// The cells of a leg.
struct RigaPercorso {
    QString luogo;
    QString strade;
    int km = 0;
};

/// A leg that remains, and its former row, from 1.
struct RigaRimasta {
    int riga = 0;
    RigaPercorso cella;
};

/// The names of the stops, in the order of the file. A stop's number is its position in the list, from 1.
[[nodiscard]] QStringList readDestinations(const QByteArray& contents);

/// Writes each stop's number after the place of its leg. That is the first unmarked leg whose place begins with the
/// stop's name. If there is none, it is the first leg that contains the longest part of the name. Other stops are
/// dropped.
void markDestinations(std::vector<RigaPercorso>& legs, const QStringList& stops);

/// Keeps the marked legs and the entries into a country. Kilometres and roads of the other legs are added to the next
/// leg that remains. Several stops on one leg are shown as a range. A name keeps at most `nameSize` characters before
/// its first bracket.
[[nodiscard]] std::vector<RigaRimasta> foldLegs(const std::vector<RigaPercorso>& legs, int nameSize);

/// The place without its stop numbers: cut at the last bracket.
[[nodiscard]] QString senzaNumerazione(const QString& place);

} // namespace vanzer
