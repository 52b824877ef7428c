// An archive of 100,000 legs that comes in from a file, beside the same records put in by bare calls.

#include <stdexcept>

#include <QFile>
#include <QTemporaryDir>

#include "bare_archive.h"
#include "batch/session.h"
#include "big_archive.h"
#include "measure.h"

namespace vanzer::bench {

namespace {

/// An archive that is empty but for one destination, without which nothing can be imported.
class Traveller {
  public:
    Traveller() {
        session_.clock.set(QDateTime(QDate(2003, 6, 21), QTime(8, 30)));
        session_.start();
    }
    [[nodiscard]] Form& form() { return *session_.window(); }
    [[nodiscard]] QString path(const char* name) const { return directory_.filePath(QLatin1StringView(name)); }

    /// Seconds of an export (0) or an import (1) of everything.
    double exchange(int choice, const QString& file) {
        form().cmdExport.setEnabled(true);
        form().cmdExport.click();
        session_.dialogs.enqueue(file);
        form().cmdImportExport(choice).click();
        form().cmdTutto(choice).click();
        for (int box = 0; box < 2; ++box)
            session_.boxes.enqueue(rispostaSi);
        return seconds([this] { form().cmdImExp(0).click(); });
    }
    [[nodiscard]] double legs() {
        form().archivio.RecordSetImposta(0, store::Archive::slotAppoggio,
                                         {store::TabelleNomi(store::Itinerari), {}, {}});
        return form().archivio.NumeroRecord();
    }

  private:
    QTemporaryDir directory_;
    batch::Session session_{{.directory = directory_.path(), .decimalMark = u'.', .versione = {}}};
};

constexpr Sizes sizes{.destinations = 1700, .legs = 100'000, .entries = 100'000};

} // namespace

void importing(benchmark::State& state) {
    Traveller traveller;
    fillArchive(traveller.form(), sizes);
    const QString file = traveller.path("viaggi.iei");
    static_cast<void>(traveller.exchange(0, file));
    QFile::copy(traveller.path("Vanzer.mdb"), traveller.path("copia.mdb"));
    std::vector<BareTable> records; // read when `ours` has shown what memory it needs
    const auto ours = [&] {
        Traveller other;
        const double taken = other.exchange(1, file);
        if (other.legs() != sizes.legs)
            throw std::runtime_error("not everything came in: " + std::to_string(other.legs()));
        return taken;
    };
    const auto theirs = [&] {
        if (records.empty())
            records = BareArchive(traveller.path("copia.mdb")).readTrips();
        const QString copy = traveller.path("bare.mdb");
        QFile::remove(copy);
        QFile::copy(Traveller().path("Vanzer.mdb"), copy);
        BareArchive bare(copy);
        return seconds([&] { bare.insert(records); });
    };
    measure(state, {.work = "import of 100,000 legs", .against = "the same records put in by bare calls", .atMost = 2},
            ours, theirs);
}
BENCHMARK(importing)->Iterations(1)->UseManualTime();

} // namespace vanzer::bench
