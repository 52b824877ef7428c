// Kilometres and driving times of an itinerary, with no simulation: what the trip needs at least.
#pragma once

#include <array>
#include <optional>
#include <vector>

#include <QStringList>

namespace vanzer {

/// The letters of the road types, in the order of all that goes by road type.
inline constexpr QStringView tipiStrada = u"ASPL";

/// Average speeds in km/h by road type.
using Medie = std::array<double, 4>;

/// Position of a road-type letter, from 0: an empty text counts as the first, an unknown letter as the last.
[[nodiscard]] int indiceStrada(QStringView letter);

/// Driving time in hundredths, rounded to whole ones; 0 without a speed.
[[nodiscard]] double tempoTratta(int km, double speed);

struct Tratto {
    int km = 0;
    int strada = 0; ///< index of the road type
    bool traghetto = false;
};

struct TotaliItinerario {
    std::array<float, 5> km{};    ///< by road type, and in all
    std::array<float, 5> tempo{}; ///< hundredths
    int traghetti = 0;
};

/// The totals of a table of legs. They are kept up to date by difference, so that a leg typed into a long trip costs no
/// more than one in a short trip.
class TotaliTabella {
  public:
    /// A leg for each row of the table, or none; rows count from 0.
    using Righe = std::vector<std::optional<Tratto>>;

    void recalculate(Righe rows, const Medie& speeds);
    /// A row's leg as it is now. False, and nothing changed, if the totals can't be had by difference.
    [[nodiscard]] bool change(int row, const std::optional<Tratto>& leg);

    [[nodiscard]] const TotaliItinerario& totali() const { return totals_; }
    [[nodiscard]] const Medie& medie() const { return speeds_; }
    /// Null where the row has none.
    [[nodiscard]] const std::optional<Tratto>& tratto(int row) const;
    /// Driving time of a row's leg, hundredths.
    [[nodiscard]] float tempo(int row) const;

  private:
    void adds(TotaliItinerario& totals, const Tratto& leg, float sign) const;
    [[nodiscard]] bool exact(const TotaliItinerario& totals) const;

    Righe rows_;
    Medie speeds_{};
    TotaliItinerario totals_;
    bool negative_ = false; ///< some leg has negative kilometres
};

/// Least number of days, from the driving time as gg:hh:mm with a driving day as its gg.
[[nodiscard]] int giorniMinimi(const QString& drivingTime);

/// What the list of the wanted days offers.
[[nodiscard]] QStringList giorniOfferti(int least, bool anyKilometres);

} // namespace vanzer
