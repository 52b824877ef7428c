// SPDX-License-Identifier: MIT
// vanzer_counted WORK [LEGS]: does one of the key works on a trip of so many legs (default 1,000). An instruction
// counter sees the work alone. Prints the number of rows that the work handled. Run by benchmarks/count.

#include <cstdio>
#include <functional>
#include <map>

#include <QCoreApplication>
#include <valgrind/callgrind.h>

#include "../big_trip.h"
#include "schedule/calculation_screen.h"
#include "schedule/preparation_screen.h"
#include "window/command.h"

namespace {

using namespace vanzer;
using bench::BigTrip;

constexpr int typed = 100;

void counted(const std::function<void()>& work) {
    CALLGRIND_START_INSTRUMENTATION;
    CALLGRIND_TOGGLE_COLLECT;
    work();
    CALLGRIND_TOGGLE_COLLECT;
    CALLGRIND_STOP_INSTRUMENTATION;
}

/// One test, as in a search that has run another one before. Returns the rows of its schedule.
std::size_t simulation(BigTrip& trip) {
    RigheDiLavoro rows;
    comando(trip.form(), [&] { rows = *PreparaTabellaPerCalcoloViandoria(trip.form()); });
    const ParametriSimulazione with = parametriSimulazione(trip.form());
    Viandoria schedule = simulate(rows.righe, with, 1);
    counted([&] { schedule = simulate(rows.righe, with, 1, {}, std::move(schedule.righe)); });
    return schedule.righe.size();
}

/// "&Calcola" with all tests of a search. Returns the legs.
std::size_t calculation(BigTrip& trip) {
    trip.wantTheImpossible();
    counted([&] { trip.form().cmdCalcola.click(); });
    return static_cast<std::size_t>(trip.legs());
}

/// "&Sblocca", which shows the legs again. Returns the legs.
std::size_t unlocking(BigTrip& trip) {
    trip.form().cmdCalcola.click();
    counted([&] { trip.form().cmdCalcola.click(); });
    return static_cast<std::size_t>(trip.legs());
}

std::size_t loading(BigTrip& trip) {
    counted([&] { trip.reload(); });
    return static_cast<std::size_t>(trip.legs());
}

/// "&Cerca", which lists all legs.
std::size_t listing(BigTrip& trip) {
    trip.form().cmdItinerario.click();
    counted([&] { trip.form().cmdCerca.click(); });
    return static_cast<std::size_t>(trip.legs());
}

/// Types legs at the end, one by one.
std::size_t typing(BigTrip& trip) {
    Form& form = trip.form();
    form.cmdItinerario.click();
    form.stato.RigaCorrente = trip.legs() + 1;
    counted([&form] {
        for (int i = 0; i < typed; ++i) {
            form.txtTappa.setText(QStringLiteral("ARRIVO"));
            form.txtKm.setText(QStringLiteral("12"));
            form.cmdInserisce.click();
        }
    });
    return typed;
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const std::map<QString, std::size_t (*)(BigTrip&)> works{
        {QStringLiteral("simulation"), simulation}, {QStringLiteral("calculation"), calculation},
        {QStringLiteral("typing"), typing},         {QStringLiteral("loading"), loading},
        {QStringLiteral("unlocking"), unlocking},   {QStringLiteral("listing"), listing},
    };
    const auto work = works.find(QCoreApplication::arguments().value(1));
    if (work == works.end()) {
        std::fputs("usage: vanzer_counted simulation|calculation|typing|loading|unlocking|listing [LEGS]\n", stderr);
        return 2;
    }
    const QTemporaryDir archive;
    const int legs = QCoreApplication::arguments().size() > 2 ? QCoreApplication::arguments().at(2).toInt() : 1000;
    bench::makeArchive(archive.path(), {.destinations = 1, .legs = 10, .entries = 20 * legs});
    BigTrip trip(legs, archive.path());
    std::printf("%zu\n", work->second(trip));
    return 0;
}
