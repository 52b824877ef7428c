// A route list imported and folded down to its stops, as the two buttons do it. The time is to grow with the rows.
#include <benchmark/benchmark.h>

#include <array>

#include <QFile>
#include <QTemporaryDir>

#include "batch/session.h"
#include "timing.h"

namespace vanzer::bench {

namespace {

/// Two words and some letters of its own: a figure would count as a road.
QString place(int number) {
    static constexpr std::array first{"San", "Santa", "Monte", "Villa", "Porto", "Castel", "Ponte", "Campo", "Rocca"};
    static constexpr std::array second{"Marco", "Lucia", "Giovanni", "Arso", "Alto", "Nuovo", "Fiorito"};
    const auto n = static_cast<std::size_t>(number);
    QString letters;
    for (int left = number; left > 0; left /= 26)
        letters += QChar(u'a' + left % 26);
    return QLatin1StringView(first[n % first.size()]) + u' ' + QLatin1StringView(second[n / 9 % second.size()]) + u' ' +
           letters;
}

/// Every row names a place, so that there are as many legs as rows.
QByteArray timedList(int rows) {
    QString text = QStringLiteral("Time\tkm\tInstruction\n0:00\t0\tDepart Torino\n");
    for (int i = 1; i < rows; ++i)
        text += QStringLiteral("9:00\t%1\tat %2, turn RIGHT onto SS%3\n").arg(i).arg(place(i)).arg(i % 300);
    return text.toUtf8();
}

QByteArray placeList(int rows) {
    QString text = QStringLiteral(". Località\tDirezione\tDistanza\tTempo\tPosizione opposta\n");
    for (int i = 1; i < rows; ++i)
        text += place(i) + QStringLiteral(" (SS%1)\tdiritto\t1 KM\t\t%2 KM\n").arg(i % 300).arg(i);
    return text.toUtf8();
}

/// A stop on every tenth leg: by its name's beginning, by a part of it, or nowhere.
QByteArray stopFile(int rows) {
    QString text = QStringLiteral("lon,lat,nome\n");
    for (int i = 5; i < rows; i += 10) {
        const QString name = place(i).toUpper();
        const QString written = i % 30 == 5    ? name
                                : i % 30 == 15 ? QStringLiteral("Sosta;") + name.section(u' ', 1)
                                               : name + QStringLiteral(" BIS");
        text += QStringLiteral("8.12345,45.12345,\"%1\"\n").arg(written);
    }
    return text.toUtf8();
}

/// An itinerary in the making, with files to read.
class Planner {
  public:
    Planner() {
        session_.clock.set(QDateTime(QDate(2003, 6, 21), QTime(8, 30)));
        session_.start();
        form().cmdNuovo.click();
        form().txtLocalita.setText(QStringLiteral("VIAGGIO"));
        form().txtNazione.setText(QStringLiteral("ITALIA"));
        session_.boxes.enqueue(rispostaSi);
        form().cmdSalva.click();
        form().cmdItinerario.click();
    }
    [[nodiscard]] Form& form() { return *session_.window(); }

    double import(const QByteArray& list) { return pressed(form().cmdMapPoint, list); }
    double filter(const QByteArray& stops) { return pressed(form().cmdSelezionaMete, stops); }

  private:
    double pressed(Button& button, const QByteArray& contents) {
        const QString path = directory_.filePath(QStringLiteral("scelto.txt"));
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(contents) != contents.size())
            return 0;
        file.close();
        session_.dialogs.enqueue(path);
        return seconds([&button] { button.click(); });
    }

    QTemporaryDir directory_;
    batch::Session session_{{.directory = directory_.path(), .decimalMark = u'.', .versione = QStringLiteral("bench")}};
};

void importAndFilter(benchmark::State& state, QByteArray (*list)(int)) {
    const int rows = static_cast<int>(state.range(0));
    const QByteArray route = list(rows);
    const QByteArray stops = stopFile(rows);
    double imported = 0;
    double filtered = 0;
    for (auto _ : state) {
        Planner planner;
        const double import = planner.import(route);
        if (planner.form().stato.NumeroTappe < rows - 1)
            state.SkipWithError("not every row came in");
        const double filter = planner.filter(stops);
        if (planner.form().mfgTab.rows() > rows / 5)
            state.SkipWithError("the legs were not folded");
        imported += import;
        filtered += filter;
        state.SetIterationTime(import + filter);
    }
    state.counters["import_ms"] = benchmark::Counter(imported * 1000, benchmark::Counter::kAvgIterations);
    state.counters["filter_ms"] = benchmark::Counter(filtered * 1000, benchmark::Counter::kAvgIterations);
}

} // namespace

void importTimedList(benchmark::State& state) {
    importAndFilter(state, timedList);
}
BENCHMARK(importTimedList)->Arg(2000)->Arg(20'000)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(5);

void importPlaceList(benchmark::State& state) {
    importAndFilter(state, placeList);
}
BENCHMARK(importPlaceList)->Arg(2000)->Arg(20'000)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(5);

} // namespace vanzer::bench
