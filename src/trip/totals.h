// SPDX-License-Identifier: MIT
// Kilometres and driving times of an itinerary without a simulation: the least that the trip needs.
#pragma once

#include <array>
#include <optional>
#include <vector>

#include <QStringList>

namespace vanzer {

/// The letters of the road types. All arrays by road type have this order.
inline constexpr QStringView tipiStrada = u"ASPL";

/// Average speeds in km/h by road type.
using Medie = std::array<double, 4>;

/// Position of a road-type letter, from 0. An empty text gives the first, an unknown letter the last.
[[nodiscard]] int indiceStrada(QStringView letter);

/// Driving time in hundredths of an hour, rounded to whole ones. 0 if the speed is 0. `speed` is in km/h.
[[nodiscard]] double tempoTratta(int km, double speed);

struct Tratto {
    int km = 0;
    int strada = 0; ///< index of the road type
    bool traghetto = false;
};

struct TotaliItinerario {
    std::array<float, 5> km{};    ///< by road type; the last is the sum
    std::array<float, 5> tempo{}; ///< the same, hundredths of an hour
    int traghetti = 0;
};

/// The totals of a table of legs. They are updated by the difference of a change, so that typing a leg takes no longer
/// in a long trip than in a short one.
class TotaliTabella {
  public:
    /// The leg of each row of the table, or none. Rows count from 0.
    using Righe = std::vector<std::optional<Tratto>>;

    void recalculate(Righe rows, const Medie& speeds);
    /// Replaces the leg of a row. Returns false and changes nothing if the difference wouldn't be exact.
    [[nodiscard]] bool change(int row, const std::optional<Tratto>& leg);

    [[nodiscard]] const TotaliItinerario& totali() const { return totals_; }
    [[nodiscard]] const Medie& medie() const { return speeds_; }
    /// The leg of a row, or none.
    [[nodiscard]] const std::optional<Tratto>& tratto(int row) const;
    /// Driving time of a row's leg, hundredths of an hour.
    [[nodiscard]] float tempo(int row) const;

  private:
    void adds(TotaliItinerario& totals, const Tratto& leg, float sign) const;
    [[nodiscard]] bool exact(const TotaliItinerario& totals) const;

    Righe rows_;
    Medie speeds_{};
    TotaliItinerario totals_;
    bool negative_ = false; ///< some leg has negative kilometres
};

/// The least number of days, from a driving time as gg:hh:mm. Its gg are driving days.
[[nodiscard]] int giorniMinimi(const QString& drivingTime);

/// The entries of the list of wanted days.
[[nodiscard]] QStringList giorniOfferti(int least, bool anyKilometres);

} // namespace vanzer
