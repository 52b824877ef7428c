#include "hostile/promises.h"

#include <set>

#include <QDir>

#include "core/text.h"
#include "store/archive.h"
#include "store/schema.h"

namespace vanzer::hostile {

using namespace Qt::StringLiterals;

namespace {

const std::array<QString, 2> setMarks{u"[Start]"_s, u"[End]"_s};

/// The legs stand in the table of the editor, and nothing else.
bool legsInEditor(const Form& window) {
    return !window.stato.ModoGuida && !window.tappeConservate && window.frmframe(12).visible();
}

/// A row's number is its own, or none; a row with a place has it.
QString numbersOf(const Grid& grid, Looks& looks) {
    long& numbers = looks["numbers of rows"];
    for (int r = 1; r < grid.rows(); ++r) {
        const QString& number = grid.cell(r, 0);
        if (number.isEmpty() && Trim(grid.cell(r, 1)).isEmpty())
            continue;
        ++numbers;
        if (number != QString::number(r))
            return u"row %1 (%2) has the number %3"_s.arg(QString::number(r), grid.cell(r, 1), number);
    }
    return {};
}

QStringList rowsWith(const QString& mark, const Grid& grid, Looks& looks) {
    QStringList places;
    for (int r = 1; r < grid.rows(); ++r) {
        if (contains(grid.cell(r, 1), mark))
            places += grid.cell(r, 1);
    }
    looks[(u"rows with "_s + mark).toStdString()] += places.size();
    return places;
}

/// No two places have the same mark. One place may stand in several rows with it, since a long leg is stored in pieces.
QString marksOf(const Grid& grid, Looks& looks) {
    for (const QString& mark : setMarks) {
        const QStringList places = rowsWith(mark, grid, looks);
        for (const QString& place : places) {
            if (!uguale(place, places.first()))
                return u"%1 stands at %2 and at %3"_s.arg(mark, places.first(), place);
        }
    }
    return {};
}

/// Current row, end of the selection and top row are rows of the grid below its head, if it has any.
QString placesIn(const Grid& grid, Looks& looks) {
    ++looks["places in grids"];
    const int first = grid.rows() > 1 ? 1 : 0;
    for (const int place : {grid.row(), grid.rowSel(), grid.topRow()}) {
        if (place < first || place >= grid.rows())
            return u"%1 stands on row %2 of %3"_s.arg(grid.name(), QString::number(place),
                                                      QString::number(grid.rows()));
    }
    return {};
}

/// Between two commands nothing waits to be stored.
QString leftOpen(const Form& window, Looks& looks) {
    ++looks["commands that ended"];
    if (window.comandoInCorso)
        return u"a command still runs"_s;
    const store::Database* const archive = window.archivio.Db(0);
    return archive != nullptr && archive->inTransaction() ? u"a transaction is left open"_s : QString();
}

QString brokenValue(const store::FieldDef& field, const store::TabellaLetta::Cella& cell) {
    const auto* const text = std::get_if<QString>(&cell);
    if (text == nullptr || field.kind != store::FieldKind::Text)
        return {};
    if (text->isEmpty())
        return field.name + u" is empty"_s;
    return text->size() <= field.size ? QString() : field.name + u" has %1 letters"_s.arg(text->size());
}

QString brokenTable(const store::TabellaLetta& table, int number, Looks& looks) {
    const auto fields = store::campiDescritti(store::TabelleCampi(number));
    long& values = looks["stored values"];
    for (const auto& record : table.record) {
        values += static_cast<long>(fields.size());
        for (std::size_t i = 0; i < fields.size(); ++i) {
            if (const QString broken = brokenValue(fields[i], record.at(i)); !broken.isEmpty())
                return store::TabelleNomi(number) + u": "_s + broken;
        }
    }
    return {};
}

QString brokenCodes(const store::TabellaLetta& mete, Looks& looks) {
    std::set<QString> codes;
    for (const auto& record : mete.record) {
        ++looks["codes"];
        const auto* const code = std::get_if<QString>(&record.front());
        if (code == nullptr || Trim(*code).isEmpty())
            return u"a destination without a code"_s;
        if (!codes.insert(code->toCaseFolded()).second)
            return u"the code %1 twice"_s.arg(*code);
    }
    return {};
}

/// At most one record, and each of its texts has a value.
QString brokenSingle(const store::TabellaLetta& table, int number, Looks& looks) {
    if (table.record.size() > 1)
        return store::TabelleNomi(number) + u" has more than one record"_s;
    for (const auto& record : table.record) {
        ++looks["single records"];
        for (std::size_t i = 0; i < record.size(); ++i) {
            const QString& field = table.campi.at(static_cast<qsizetype>(i));
            if (std::holds_alternative<std::monostate>(record[i]) && !field.startsWith(u"Flag"))
                return u"%1: %2 has no value"_s.arg(store::TabelleNomi(number), field);
        }
    }
    return {};
}

/// As a schedule writes it: with no mark, which may be typed or taken away while it is at work.
QString unmarked(QString place) {
    for (const QString& mark : setMarks)
        place.remove(mark, Qt::CaseInsensitive);
    return Trim(place);
}

} // namespace

QString brokenInWindow(const Form& window, bool marksRepeated, Looks& looks) {
    QString broken = leftOpen(window, looks);
    for (const Grid* const grid : {&window.mfgTab, &window.mfgCopia, &window.mfgImExp(0), &window.mfgImExp(1)}) {
        if (broken.isEmpty())
            broken = placesIn(*grid, looks);
    }
    if (!broken.isEmpty() || !legsInEditor(window))
        return broken;
    broken = numbersOf(window.mfgTab, looks);
    return broken.isEmpty() && !marksRepeated ? marksOf(window.mfgTab, looks) : broken;
}

MarkTaken::MarkTaken(const Form& window) : wanted_{window.chkMeta(0).value(), window.chkMeta(1).value()} {}

QString MarkTaken::broken(const Form& window, Looks& looks) const {
    if (!legsInEditor(window))
        return {};
    for (std::size_t i = 0; i < setMarks.size(); ++i) {
        // The box goes off with the leg; it stays on where the leg was refused.
        if (!wanted_[i] || window.chkMeta(static_cast<int>(i)).value())
            continue;
        ++looks["marks taken"];
        if (const auto rows = rowsWith(setMarks[i], window.mfgTab, looks).size(); rows > 1)
            return u"%1 rows with %2 that one has just taken"_s.arg(QString::number(rows), setMarks[i]);
    }
    return {};
}

void ScheduleRows::see(const Form& window) {
    if (!window.tappeConservate)
        return;
    std::set<QString> legs;
    for (int r = 0; r < window.tappeConservate->rows(); ++r)
        legs.insert(unmarked(window.tappeConservate->text(r, 1)));
    for (int r = 1; r < window.mfgTab.rows(); ++r) {
        if (const QString place = unmarked(window.mfgTab.cell(r, 1)); !legs.contains(place))
            places_.insert(place);
    }
}

QString ScheduleRows::storedIn(store::Archive& archive, Looks& looks) const {
    const store::TabellaLetta legs = archive.tabella(store::TabelleNomi(store::Itinerari));
    const auto place = static_cast<std::size_t>(legs.campi.indexOf(u"Localita"));
    for (const auto& record : legs.record) {
        const auto* const text = std::get_if<QString>(&record.at(place));
        looks["legs that are no rows of a schedule"] += places_.empty() ? 0 : 1;
        if (text != nullptr && places_.contains(unmarked(*text)))
            return u"a row of a schedule is stored as a leg: "_s + *text;
    }
    return {};
}

QString brokenInArchive(store::Archive& archive, Looks& looks) {
    for (int table = store::primaTabella; table <= store::ultimaTabella; ++table) {
        const store::TabellaLetta read = archive.tabella(store::TabelleNomi(table));
        QString broken = brokenTable(read, table, looks);
        if (broken.isEmpty() && table == store::MeteVanzer)
            broken = brokenCodes(read, looks);
        if (broken.isEmpty() && (table == store::MetaCorrente || table == store::Parametri))
            broken = brokenSingle(read, table, looks);
        if (!broken.isEmpty())
            return broken;
    }
    return {};
}

QString strayFile(const QString& folder, Looks& looks) {
    ++looks["folders"];
    static const QStringList temporary{u"*-journal"_s, u"*-wal"_s, u"DBTemp*"_s, u"*.parte"_s};
    return QDir(folder).entryList(temporary, QDir::Files | QDir::Hidden).value(0);
}

QString brokenInFile(const QString& path, Looks& looks) {
    store::Archive archive(QFileInfo(path).path());
    archive.PercorsoDatabase = path;
    archive.DatabaseApre(0);
    ++looks["files whole"];
    return archive.Db(0)->intatto() ? brokenInArchive(archive, looks) : u"the archive is damaged"_s;
}

} // namespace vanzer::hostile
