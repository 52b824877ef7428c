// SPDX-License-Identifier: MIT
// Typing a leg into a long trip and painting it. This must fit into one frame of the screen.

#include <stdexcept>

#include <QCoreApplication>
#include <QWindow>

#include "big_trip.h"
#include "desktop/program.h"
#include "measure.h"

namespace vanzer::bench {

namespace {

constexpr int startingLegs = 9900; // leaves room for the typed legs

/// Types a leg over the current one, or at the end. The row stays the same.
void types(Form& form, int row) {
    form.stato.RigaCorrente = row;
    form.txtTappa.setText(QStringLiteral("ARRIVO"));
    form.txtKm.setText(form.mfgTab.cell(row, 3) == u"12" ? QStringLiteral("13") : QStringLiteral("12"));
    form.chkKm.setValue(false);
    form.cmdInserisce.click();
}

/// The window on an invisible screen.
class Window {
  public:
    Window() : trip_(startingLegs) {
        trip_.close();
        program_.emplace(Ambiente{.directory = trip_.folder(), .decimalMark = u'.', .versione = {}}, clock_);
        if (!program_->start())
            throw std::runtime_error("the window can't be opened");
        while (!program_->window().windowHandle()->isExposed())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        input([this] { form().cmdItinerario.click(); });
    }

    [[nodiscard]] Form& form() { return program_->form(); }
    void input(const std::function<void()>& what) {
        program_->window().binder().input(what);
        QCoreApplication::processEvents();
    }

  private:
    BigTrip trip_;
    desktop::SystemClock clock_;
    std::optional<desktop::Program> program_;
};

void typing(benchmark::State& state, const std::string& where, int row) {
    Window window;
    measure(
        state,
        {.work = "a leg typed " + where + " and painted, 9,900 legs", .against = "a frame of the screen", .atMost = 1},
        timed([&window, row] { window.input([&] { types(window.form(), row); }); }), screenFrame());
}

} // namespace

void typingAtTheEnd(benchmark::State& state) {
    typing(state, "at the end", startingLegs + 1);
}
BENCHMARK(typingAtTheEnd)->Iterations(1)->UseManualTime();

/// At the top, a typed leg changes all rows that follow.
void typingAtTheTop(benchmark::State& state) {
    typing(state, "at the top", 5);
}
BENCHMARK(typingAtTheTop)->Iterations(1)->UseManualTime();

} // namespace vanzer::bench
