// Real names of places, and the same as users write them.
#pragma once

#include <random>
#include <vector>

#include <QString>

namespace vanzer::bench {

/// The same chance in every run and with every library.
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

/// Of a country together, by name; names differ by more than capitals.
[[nodiscard]] const std::vector<Place>& allPlaces();

/// Some in capitals, some with the country in brackets, some saints short; never longer than the archive holds beside
/// the mark of the start.
[[nodiscard]] QString asWritten(const Place& place, Chance& chance);

} // namespace vanzer::bench
