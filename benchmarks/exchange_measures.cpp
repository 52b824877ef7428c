// SPDX-License-Identifier: MIT
// Imports an archive of 100,000 legs from a file, compared with adding the same records by plain engine calls.

#include <map>
#include <stdexcept>
#include <string>

#include <QFile>
#include <QTemporaryDir>

#include "bare_archive.h"
#include "batch/session.h"
#include "big_archive.h"
#include "exchange/iei_file.h"
#include "measure.h"
#include "store/schema.h"

namespace vanzer::bench {

namespace {

/// An archive with a single destination. Without one, nothing can be imported.
class Traveller {
  public:
    Traveller() {
        session_.clock.set(QDateTime(QDate(2003, 6, 21), QTime(8, 30)));
        session_.start();
    }
    [[nodiscard]] Form& form() { return *session_.window(); }
    [[nodiscard]] QString path(const char* name) const { return directory_.filePath(QLatin1StringView(name)); }

    /// Exports (0) or imports (1) everything. Returns the seconds.
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
    std::vector<BareTable> records; // read after `ours` has shown how much memory it needs
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

namespace {

/// Builds a file for an import from records of which some fields are set.
class Lines {
  public:
    void head(int section) {
        names_.clear();
        for (const store::FieldDef& field : store::campiDescritti(store::TabelleCampi(section)))
            names_ += field.name;
        section_ = section;
        file_.testa(section, names_);
    }
    void record(const std::map<QString, QString>& texts) {
        for (const QString& name : names_) {
            const auto text = texts.find(name);
            file_.testo(section_, text == texts.end() ? QStringLiteral("1") : text->second);
        }
        file_.fineRiga();
    }
    [[nodiscard]] const QByteArray& contents() const { return file_.contenuto(); }

  private:
    ScrittoreIei file_;
    QStringList names_;
    int section_ = 0;
};

const QString code = QStringLiteral("CodiceMeta");
const QString place = QStringLiteral("Localita");

void trip(Lines& lines) {
    lines.head(sezioneMete);
    lines.record({{code, QStringLiteral("000001")}, {place, QStringLiteral("GIRO")}});
    lines.head(sezioneTappe);
    lines.record({{code, QStringLiteral("000001")}, {place, QStringLiteral("ASTI")}});
}

QByteArray entriesOfAPlace(int count) {
    Lines lines;
    trip(lines);
    lines.head(sezioneGuida);
    for (int i = 0; i < count; ++i)
        lines.record({{place, QStringLiteral("ASTI")}, {QStringLiteral("Descrizione"), QStringLiteral("?%1").arg(i)}});
    return lines.contents();
}

QByteArray headLines(int count) {
    Lines lines;
    trip(lines);
    for (int i = 0; i < count; ++i)
        lines.head(i % 2 == 0 ? sezioneGuida : sezioneTappe);
    return lines.contents();
}

QByteArray trips(int count) {
    Lines lines;
    lines.head(sezioneMete);
    for (int i = 1; i <= count; ++i)
        lines.record(
            {{code, QStringLiteral("%1").arg(i, 6, 10, QChar(u'0'))}, {place, QStringLiteral("GIRO %1").arg(i)}});
    return lines.contents();
}

struct Shape {
    const char* name;
    QByteArray (*file)(int count);
    int many;
};
constexpr Shape shapes[] = {{"entries of one place that begin with \"?\"", entriesOfAPlace, 40'000},
                            {"head lines", headLines, 80'000},
                            {"trips", trips, 40'000}};

/// The time for unusual contents of a file grows in proportion to their size.
void importGrows(benchmark::State& state, const Shape& shape) {
    const auto takes = [&shape](int count) {
        return [contents = shape.file(count)] {
            Traveller traveller;
            fillArchive(traveller.form(), {.destinations = 1, .legs = 1, .entries = 1});
            const QString path = traveller.path("viaggi.iei");
            QFile file(path);
            if (!file.open(QIODevice::WriteOnly) || file.write(contents) != contents.size())
                throw std::runtime_error("no file to import");
            file.close();
            return traveller.exchange(1, path);
        };
    };
    const std::string many = std::to_string(shape.many / 1000) + ",000 ";
    const std::string few = std::to_string(shape.many / 10'000) + ",000 ";
    measure(state, {.work = "import of " + many + shape.name, .against = few, .atMost = 11}, takes(shape.many),
            takes(shape.many / 10));
}

[[maybe_unused]] const bool importsRegistered = [] {
    for (std::size_t i = 0; i < std::size(shapes); ++i) {
        const std::string name = "importGrows" + std::to_string(i + 1);
        benchmark::RegisterBenchmark(name.c_str(), importGrows, shapes[i])->Iterations(1)->UseManualTime();
    }
    return true;
}();

} // namespace

} // namespace vanzer::bench
