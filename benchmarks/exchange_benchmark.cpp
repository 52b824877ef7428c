// Export and import of a large archive, beside the same rows put into an archive by bare engine calls.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <random>
#include <vector>

#include <QFile>
#include <QTemporaryDir>

#include "bare_archive.h"
#include "batch/session.h"
#include "core/text.h"
#include "timing.h"
#include "window/command.h"

namespace vanzer::bench {

namespace {

constexpr int destinations = 2000;
constexpr int legsEach = 50;
constexpr int entriesEach = 5; ///< of the guide, for each of the places that the legs visit
constexpr int places = 20'000;

/// Two or three words, as places have them; each number its own.
QString place(int number) {
    static constexpr const char* first[] = {"San",    "Santa", "Monte", "Villa", "Porto", "Castel",
                                            "Val d'", "Ponte", "Campo", "Rocca", "Borgo", "L'"};
    static constexpr const char* second[] = {"Marco", "Àgata", "Lucia", "Giovanni", "Arso", "Alto", "Nuovo", "Fiorito"};
    return QLatin1StringView(first[number % 12]) + u' ' + QString::fromUtf8(second[number / 12 % 8]) + u' ' +
           QString::number(number, 36).toUpper();
}

class Traveller {
  public:
    Traveller() {
        session_.clock.set(QDateTime(QDate(2003, 6, 21), QTime(8, 30)));
        session_.start();
    }
    [[nodiscard]] Form& form() { return *session_.window(); }
    [[nodiscard]] QString path(const char* name) const { return directory_.filePath(QLatin1StringView(name)); }

    void fill() {
        comando(form(), [this] {
            for (int i = 0; i < destinations; ++i)
                addDestination(i);
            store::Recordset guide = whole(store::GuidaCitta);
            for (int i = 0; i < places * entriesEach; ++i)
                add(guide, {{"Localita", place(i / entriesEach)},
                            {"CodiceGuida", Zero(i % 9 + 1, 2)},
                            {"Gruppo", QStringLiteral("A")},
                            {"Descrizione", QStringLiteral("Cosa da vedere, la %1 del centro").arg(i)},
                            {"TempoSosta", QStringLiteral("00:30")},
                            {"FlagVisto", QStringLiteral("0")}});
        });
    }

    /// All destinations move to the other list; the work itself isn't begun.
    void choose(int choice, const QString& file) {
        form().cmdExport.setEnabled(true);
        form().cmdExport.click();
        session_.dialogs.enqueue(file);
        form().cmdImportExport(choice).click();
        form().cmdTutto(choice).click();
        for (int box = 0; box < 2; ++box)
            session_.boxes.enqueue(rispostaSi);
    }
    void carryOut() { form().cmdImExp(0).click(); }
    [[nodiscard]] double records(int table) {
        form().archivio.RecordSetImposta(0, store::Archive::slotAppoggio, {store::TabelleNomi(table), {}, {}});
        return form().archivio.NumeroRecord();
    }

  private:
    using Texts = std::vector<std::pair<const char*, QString>>;

    store::Recordset whole(int table) { return {*form().archivio.Db(0), {store::TabelleNomi(table), {}, {}}}; }
    static void add(store::Recordset& table, const Texts& texts) {
        table.AddNew();
        for (const auto& [field, text] : texts)
            table.scrive(field, text);
        table.Update();
    }
    void addDestination(int number) {
        const QString code = Zero(number + 1, 6);
        store::Recordset destinationTable = whole(store::MeteVanzer);
        add(destinationTable, {{"CodiceMeta", code},
                               {"Localita", QStringLiteral("VIAGGIO %1").arg(number)},
                               {"Nazione", QStringLiteral("ITALIA ")},
                               {"DataInizio", QStringLiteral("21062003")},
                               {"MediaAutostrada", QStringLiteral("90")}});
        store::Recordset legTable = whole(store::Itinerari);
        for (int leg = 0; leg < legsEach; ++leg)
            add(legTable, {{"CodiceMeta", code},
                           {"Sequenza", Zero(leg + 1, 4)},
                           {"Localita", place((number * 31 + leg * 397) % places).toUpper()},
                           {"Chilometri", QString::number(10 + leg)},
                           {"NomeStrada", QStringLiteral("SS%1 ").arg(leg)},
                           {"TipoStrada", QStringLiteral("S")},
                           {"TempoSosta", QStringLiteral(" ")},
                           {"SostaGuidaCitta", QStringLiteral("00:00:30")},
                           {"FineGiorno", QStringLiteral("0")}});
    }

    QTemporaryDir directory_;
    batch::Session session_{{.directory = directory_.path(), .decimalMark = u'.', .versione = {}}};
};

double median(std::vector<double> times) {
    std::ranges::sort(times);
    return times[times.size() / 2];
}

/// The records of an archive by bare calls.
std::vector<TableRows> rowsOf(Traveller& traveller, const QTemporaryDir& directory) {
    const QString copy = directory.filePath(QStringLiteral("full.mdb"));
    QFile::copy(traveller.path("Vanzer.mdb"), copy);
    return BareArchive(copy).readTrips();
}

/// How long it takes to put them into an archive that has none.
double bareInsert(const std::vector<TableRows>& rows, const QTemporaryDir& directory) {
    const QString copy = directory.filePath(QStringLiteral("bare.mdb"));
    QFile::remove(copy);
    QFile::copy(Traveller().path("Vanzer.mdb"), copy);
    BareArchive bare(copy);
    return seconds([&] { bare.insert(rows); });
}

void report(benchmark::State& state, const std::vector<double>& ours, const std::vector<double>& bare) {
    state.counters["bare_ms"] = median(bare) * 1000;
    state.counters["ratio"] = median(ours) / median(bare);
}

} // namespace

void exportEverything(benchmark::State& state) {
    Traveller traveller;
    traveller.fill();
    const QTemporaryDir directory;
    const QString file = directory.filePath(QStringLiteral("viaggi.iei"));
    const std::vector<TableRows> rows = rowsOf(traveller, directory);
    std::vector<double> ours;
    std::vector<double> bare;
    for (auto _ : state) {
        QFile::remove(file);
        traveller.choose(0, file);
        ours.push_back(seconds([&] { traveller.carryOut(); }));
        state.SetIterationTime(ours.back());
        bare.push_back(bareInsert(rows, directory));
    }
    state.counters["MB"] = static_cast<double>(QFileInfo(file).size()) / 1e6;
    report(state, ours, bare);
}
BENCHMARK(exportEverything)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(5);

void importEverything(benchmark::State& state) {
    Traveller traveller;
    traveller.fill();
    const QTemporaryDir directory;
    const QString file = directory.filePath(QStringLiteral("viaggi.iei"));
    const std::vector<TableRows> rows = rowsOf(traveller, directory);
    traveller.choose(0, file);
    traveller.carryOut();
    std::vector<double> ours;
    std::vector<double> bare;
    for (auto _ : state) {
        Traveller other;
        other.choose(1, file);
        ours.push_back(seconds([&] { other.carryOut(); }));
        state.SetIterationTime(ours.back());
        for (const int table : {store::MeteVanzer, store::Itinerari, store::GuidaCitta}) {
            if (other.records(table) != traveller.records(table))
                state.SkipWithError("not everything came in");
        }
        bare.push_back(bareInsert(rows, directory));
    }
    report(state, ours, bare);
}
BENCHMARK(importEverything)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(5);

} // namespace vanzer::bench
