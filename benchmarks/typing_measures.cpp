// A leg typed into a long trip beside the same in a short one: no dearer, and within a frame of the screen.

#include <stdexcept>

#include <QCoreApplication>
#include <QWindow>

#include "big_trip.h"
#include "desktop/program.h"
#include "measure.h"

namespace vanzer::bench {

namespace {

constexpr int few = 100;
constexpr int many = 9900; // with room for what is typed

struct Where {
    const char* text;
    int (*row)(int legs);
};

constexpr Where places[] = {{"at the end", [](int legs) { return legs + 1; }},
                            {"in the middle", [](int legs) { return legs / 2; }},
                            {"at the top", [](int /*legs*/) { return 5; }}};

/// One leg over another one that stands there, or at the end; the row stays the same.
void types(Form& form, int row) {
    form.stato.RigaCorrente = row;
    form.txtTappa.setText(QStringLiteral("ARRIVO"));
    form.txtKm.setText(form.mfgTab.cell(row, 3) == u"12" ? QStringLiteral("13") : QStringLiteral("12"));
    form.chkKm.setValue(false);
    form.cmdInserisce.click();
}

Beside beside(const std::string& what) {
    return {.work = what + ", 9,900 legs", .against = "100 legs", .atMost = 3};
}

/// The window on a screen that nobody sees.
class Window {
  public:
    explicit Window(int legs) : trip_(legs) {
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

void typing(benchmark::State& state, const Where& where) {
    BigTrip small(few);
    BigTrip large(many);
    for (BigTrip* const trip : {&small, &large})
        trip->form().cmdItinerario.click();
    measure(state, beside(std::string("a leg typed ") + where.text),
            timed([&] { types(large.form(), where.row(many)); }), timed([&] { types(small.form(), where.row(few)); }));
}

void typingInWindow(benchmark::State& state, const Where& where) {
    Window small(few);
    Window large(many);
    const auto inside = [&where](Window& window, int legs) {
        return timed([&window, row = where.row(legs)] { window.input([&] { types(window.form(), row); }); });
    };
    measure(state, beside(std::string("a leg typed ") + where.text + " and painted"), inside(large, many),
            inside(small, few));
}

[[maybe_unused]] const bool registered = [] {
    for (const Where& where : places) {
        const auto number = std::to_string(&where - places + 1);
        benchmark::RegisterBenchmark(("typing" + number).c_str(), typing, where)->Iterations(1)->UseManualTime();
        benchmark::RegisterBenchmark(("typingInWindow" + number).c_str(), typingInWindow, where)
            ->Iterations(1)
            ->UseManualTime();
    }
    return true;
}();

} // namespace

} // namespace vanzer::bench
