// SPDX-License-Identifier: MIT
// Real names of places, as they are and as users write them.
#pragma once

#include <random>
#include <vector>

#include <QString>

namespace vanzer::bench {

/// A random generator that gives the same numbers in every run and with every library.
class Chance {
  public:
    explicit Chance(unsigned seed) : numbers_(seed) {}
    [[nodiscard]] int below(std::size_t bound) { return static_cast<int>(numbers_() % bound); }
    [[nodiscard]] bool oneIn(std::size_t cases) { return below(cases) == 0; }

  private:
    std::mt19937 numbers_;
};

struct Place {
    QString name;
    QString country; ///< two letters
};

/// The places by country, then by name. Names differ in more than their capitals.
[[nodiscard]] const std::vector<Place>& allPlaces();

/// A name as a user may write it: in capitals, with the country in brackets, or with a shortened saint. It is never
/// longer than the archive's field with room for the mark of the start.
[[nodiscard]] QString asWritten(const Place& place, Chance& chance);

} // namespace vanzer::bench
