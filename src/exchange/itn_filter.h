// The stops that ITN converter writes, and an itinerary folded down to them.
//
// A line of the stop file is a stop if its first four characters are a number:
//
//     8.61234,45.50123,"NOVARA"
//
// Only the name behind the last comma is read. A leg that a stop falls on gets the stop's number behind its place: "
// [00007]".
#pragma once

#include <vector>

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace vanzer {

/// A leg as its cells have it.
struct RigaPercorso {
    QString luogo;
    QString strade;
    int km = 0;
};

/// A leg that stays, and the row, from 1, that it was.
struct RigaRimasta {
    int riga = 0;
    RigaPercorso cella;
};

/// The names of the stops in the order of the file; a stop's number is its place in the list, from 1.
[[nodiscard]] QStringList readDestinations(const QByteArray& contents);

/// Writes the number of each stop behind the place that it falls on: the first unmarked one that begins with the stop's
/// name, else the first that holds the longest part of the name. A stop that fits nowhere is dropped.
void markDestinations(std::vector<RigaPercorso>& legs, const QStringList& stops);

/// What is left of the marked legs: those with a stop and the entries into a country. The others go into the next leg
/// that stays, with their kilometres and roads. Several stops on a leg become a range, and a name keeps at most
/// `nameSize` characters before its first bracket.
[[nodiscard]] std::vector<RigaRimasta> foldLegs(const std::vector<RigaPercorso>& legs, int nameSize);

/// The name without its numbers: cut at the last bracket.
[[nodiscard]] QString senzaNumerazione(const QString& place);

} // namespace vanzer
