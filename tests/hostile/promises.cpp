#include "hostile/promises.h"

#include <set>

#include <QDir>

#include "core/text.h"
#include "store/database.h"
#include "store/schema.h"

namespace vanzer::hostile {

using namespace Qt::StringLiterals;

namespace {

/// The legs stand in the table, and nothing else.
bool legsInTable(const Form& window) {
    return !window.stato.ModoGuida && !window.tappeConservate && window.frmframe(12).visible();
}

QString numbersOf(const Grid& grid, Looks& looks) {
    for (int r = 1; r < grid.rows(); ++r) {
        if (Trim(grid.cell(r, 1)).isEmpty())
            continue;
        ++looks["numbers of rows"];
        if (grid.cell(r, 0) != QString::number(r))
            return u"row %1 (%2) has the number %3"_s.arg(QString::number(r), grid.cell(r, 1), grid.cell(r, 0));
    }
    return {};
}

QString marksOf(const Grid& grid, Looks& looks) {
    for (const QString& mark : {u" [Start]"_s, u" [End]"_s}) {
        int marked = 0;
        for (int r = 1; r < grid.rows(); ++r)
            marked += contiene(grid.cell(r, 1), mark) ? 1 : 0;
        looks["marks"] += marked;
        if (marked > 1)
            return u"%1 rows with%2"_s.arg(QString::number(marked), mark);
    }
    return {};
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
    for (const auto& record : table.record) {
        for (std::size_t i = 0; i < fields.size(); ++i) {
            ++looks["stored values"];
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
        if (!codes.insert(*code).second)
            return u"the code %1 twice"_s.arg(*code);
    }
    return {};
}

} // namespace

QString brokenInWindow(const Form& window, bool marksRepeated, Looks& looks) {
    if (!legsInTable(window))
        return {};
    const QString numbers = numbersOf(window.mfgTab, looks);
    return numbers.isEmpty() && !marksRepeated ? marksOf(window.mfgTab, looks) : numbers;
}

QString brokenInArchive(store::Archive& archive, Looks& looks) {
    for (int table = store::primaTabella; table <= store::ultimaTabella; ++table) {
        const store::TabellaLetta read = archive.tabella(store::TabelleNomi(table));
        if (const QString broken = brokenTable(read, table, looks); !broken.isEmpty())
            return broken;
        if (table == store::MeteVanzer) {
            if (const QString broken = brokenCodes(read, looks); !broken.isEmpty())
                return broken;
        }
        ++looks["single records"];
        if ((table == store::MetaCorrente || table == store::Parametri) && read.record.size() > 1)
            return store::TabelleNomi(table) + u" has more than one record"_s;
    }
    return {};
}

QString brokenInFolder(const QString& folder, bool deep, Looks& looks) {
    ++looks["folders"];
    for (const QString& name : QDir(folder).entryList(QDir::Files | QDir::Hidden)) {
        if (name.endsWith(u"-journal") || name.startsWith(u"DBTemp") || name.endsWith(u".parte"))
            return u"a stray file: "_s + name;
    }
    if (!deep)
        return {};
    ++looks["files checked"];
    const auto file = store::Database::apre(folder + u"/Vanzer.mdb"_s);
    const auto check = file->prepara("PRAGMA integrity_check");
    return check->step() && check->text(0) == u"ok" ? QString() : u"the archive is damaged: "_s + check->text(0);
}

} // namespace vanzer::hostile
