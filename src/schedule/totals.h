// Kilometres and driving times of an itinerary, with no simulation: what the trip needs at least.
#pragma once

#include <array>
#include <vector>

#include <QStringList>

namespace vanzer {

/// Average speeds in km/h by road type, in the order "ASPL".
using Medie = std::array<double, 4>;

/// Position of a road-type letter in "ASPL", from 0: an empty text counts as the first, an unknown letter as the last.
[[nodiscard]] int indiceStrada(QStringView letter);

/// Driving time in hundredths, rounded to whole ones; 0 without a speed.
[[nodiscard]] double tempoTratta(int km, double speed);

struct Tratto {
    int km = 0;
    int strada = 0; ///< index of the road type
    bool traghetto = false;
};

struct TotaliItinerario {
    struct Riga {
        float tempo = 0;         ///< hundredths
        float kmProgressivi = 0; ///< up to and with this leg
    };
    std::vector<Riga> righe;      ///< one for each leg
    std::array<float, 5> km{};    ///< by road type, and in all
    std::array<float, 5> tempo{}; ///< hundredths
    int traghetti = 0;
};

[[nodiscard]] TotaliItinerario calcolaTotali(const std::vector<Tratto>& legs, const Medie& speeds);

/// Least number of days, from the driving time as gg:hh:mm with a driving day as its gg.
[[nodiscard]] int giorniMinimi(const QString& drivingTime);

/// What the list of the wanted days offers.
[[nodiscard]] QStringList giorniOfferti(int least, bool anyKilometres);

} // namespace vanzer
