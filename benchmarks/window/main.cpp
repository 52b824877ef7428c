// SPDX-License-Identifier: MIT
// Measures how much an open window slows a calculation. The same trip is calculated with and without the window, in
// turns. Also measures the longest time that a click on "&Stop" would have to wait. Needs a display.

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

#include <QApplication>
#include <QFileInfo>
#include <QTimer>
#include <QWindow>

#include "../big_trip.h"
#include "desktop/program.h"
#include "schedule/calculation_screen.h"
#include "window/command.h"

namespace {

using namespace vanzer;

constexpr int legs = 9999;
constexpr int turns = 31;

double now() {
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

double median(std::vector<double> times) {
    std::ranges::sort(times);
    return times[times.size() / 2];
}

/// Runs one calculation with all its tests. Returns milliseconds. Shows no box at the end.
template<typename Carry> double calculation(Form& form, const Carry& carry) {
    form.cmbGiorni.setText(QStringLiteral("997"));
    const double begin = now();
    carry([&form] { comando(form, [&form] { CalcolaViandoria(form, ScopoCalcolo::Stampa); }); });
    const double taken = now() - begin;
    carry([&form] { form.cmdCalcola.click(); }); // shows the legs again
    return taken;
}

/// Waits for the first drawing of the window, which doesn't belong to a calculation.
void drawn(const QWidget& window) {
    while (!window.windowHandle()->isExposed())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    QCoreApplication::processEvents();
}

/// Measures the longest time between two runs of the event loop while "&Stop" can be pressed, milliseconds.
class Gaps : public QObject {
  public:
    explicit Gaps(const Button& stop) : stop_(stop) {
        timer_.callOnTimeout(this, [this] { look(); });
        timer_.start(0);
    }
    void begin() {
        last_ = now();
        longest_ = 0;
    }
    void look() {
        const double time = now();
        if (stop_.caption() == QStringLiteral("&Stop"))
            longest_ = std::max(longest_, time - last_);
        last_ = time;
    }
    [[nodiscard]] double longest() const { return longest_; }

  private:
    const Button& stop_;
    QTimer timer_;
    double last_ = 0;
    double longest_ = 0;
};

} // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    bench::BigTrip trip(legs);
    std::vector<double> without;
    std::vector<double> with;
    std::vector<double> waits;
    for (int i = 0; i < turns; ++i) {
        trip.reopen();
        without.push_back(calculation(trip.form(), [](const auto& command) { command(); }));
        trip.close();

        desktop::SystemClock clock;
        desktop::Program program(
            {.directory = QFileInfo(trip.file("Vanzer.mdb")).path(), .decimalMark = u'.', .versione = {}}, clock);
        if (!program.start())
            return 1;
        drawn(program.window());
        Gaps gaps(program.form().cmdEsce);
        gaps.begin();
        with.push_back(calculation(program.form(), [&program, &gaps](const auto& command) {
            program.window().binder().input(command);
            gaps.look();
        }));
        waits.push_back(gaps.longest());
    }
    std::printf("%d legs, median of %d: without a window %.1f ms, with one %.1f ms, ratio %.3f\n", legs, turns,
                median(without), median(with), median(with) / median(without));
    std::printf("longest wait of a click: %.1f ms\n", *std::ranges::max_element(waits));
    return 0;
}
