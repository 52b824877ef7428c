// SPDX-License-Identifier: MIT
#include "stress/users.h"

#include <QFileInfo>
#include <QJsonDocument>

#include "batch/line.h"
#include "core/text.h"
#include "store/archive.h"
#include "store/schema.h"

namespace vanzer::stress {

namespace {

const std::array<QString, 2> setMarks{u"[Start]"_s, u"[End]"_s};

/// Whether the editor's table holds the legs, and nothing else.
bool legsInEditor(const Form& window) {
    return !window.stato.ModoGuida && !window.tappeConservate && window.frmframe(12).visible();
}

/// A row's number is its own number or empty. A row with a place has its number.
QString wrongNumber(const Grid& grid) {
    for (int r = 1; r < grid.rows(); ++r) {
        const QString& number = grid.cell(r, 0);
        if (number != QString::number(r) && (!number.isEmpty() || !Trim(grid.cell(r, 1)).isEmpty()))
            return u"row %1 (%2) has the number %3"_s.arg(QString::number(r), grid.cell(r, 1), number);
    }
    return {};
}

QStringList rowsWith(const QString& mark, const Grid& grid) {
    QStringList places;
    for (int r = 1; r < grid.rows(); ++r) {
        if (contains(grid.cell(r, 1), mark))
            places += grid.cell(r, 1);
    }
    return places;
}

/// No two places have the same mark. One place may have it in several rows, since a long leg is stored in pieces.
QString doubleMark(const Grid& grid) {
    for (const QString& mark : setMarks) {
        const QStringList places = rowsWith(mark, grid);
        for (const QString& place : places) {
            if (!uguale(place, places.first()))
                return u"%1 stands at %2 and at %3"_s.arg(mark, places.first(), place);
        }
    }
    return {};
}

/// Current row, end of the selection and top row are rows below the head, if there are any.
QString wrongPlace(const Form& window) {
    for (const Grid* const grid : {&window.mfgTab, &window.mfgCopia, &window.mfgImExp(0), &window.mfgImExp(1)}) {
        for (const int place : {grid->row(), grid->rowSel(), grid->topRow()}) {
            if (place < (grid->rows() > 1 ? 1 : 0) || place >= grid->rows())
                return u"%1 stands on row %2 of %3"_s.arg(grid->name()).arg(place).arg(grid->rows());
        }
    }
    return {};
}

/// Between two commands no change waits to be stored.
QString leftOpen(const Form& window) {
    if (window.comandoInCorso)
        return u"a command still runs"_s;
    const store::Database* const archive = window.archivio.Db(0);
    return archive != nullptr && archive->inTransaction() ? u"a transaction is left open"_s : QString();
}

/// No text is empty or longer than its field.
QString brokenValue(const store::TabellaLetta& table, int number) {
    const auto fields = store::campiDescritti(store::TabelleCampi(number));
    for (const auto& record : table.record) {
        for (std::size_t i = 0; i < fields.size(); ++i) {
            const auto* const text = std::get_if<QString>(&record.at(i));
            if (text != nullptr && fields[i].kind == store::FieldKind::Text &&
                (text->isEmpty() || text->size() > fields[i].size))
                return u"%1 has %2 letters"_s.arg(fields[i].name).arg(text->size());
        }
    }
    return {};
}

QString brokenCode(const store::TabellaLetta& mete) {
    std::set<QString> codes;
    for (const auto& record : mete.record) {
        const auto* const code = std::get_if<QString>(&record.front());
        if (code == nullptr || Trim(*code).isEmpty() || !codes.insert(code->toCaseFolded()).second)
            return u"a destination's code is missing or there twice"_s;
    }
    return {};
}

/// The table has at most one record, and each of its texts has a value.
QString brokenSingle(const store::TabellaLetta& table) {
    if (table.record.size() > 1)
        return u"more than one record"_s;
    for (const auto& record : table.record) {
        for (std::size_t i = 0; i < record.size(); ++i) {
            const QString& field = table.campi.at(static_cast<qsizetype>(i));
            if (std::holds_alternative<std::monostate>(record[i]) && !field.startsWith(u"Flag"))
                return field + u" has no value"_s;
        }
    }
    return {};
}

/// The place as a schedule writes it, without its mark. Marks may be typed or removed while the schedule is shown.
QString unmarked(QString place) {
    for (const QString& mark : setMarks)
        place.remove(mark, Qt::CaseInsensitive);
    return Trim(place);
}

} // namespace

QString wrongAnswer(const QString& line, const std::optional<QJsonObject>& answer) {
    if (!answer)
        return batch::saysNothing(line) ? QString() : u"no answer"_s;
    if (answer->value(u"cmd"_s).toString() != line)
        return u"another line's answer"_s;
    const QByteArray written = QJsonDocument(*answer).toJson(QJsonDocument::Compact);
    const bool read = !written.contains('\n') && !QJsonDocument::fromJson(written).isNull();
    return read ? QString() : u"an answer that nobody can read"_s;
}

void Promises::before(const QString& line, const Form* window) {
    // Copies and the way back may repeat a place with the mark in its name.
    marksRepeated_ = marksRepeated_ || line.contains(u"cmdInsEsegui", Qt::CaseInsensitive) ||
                     line.contains(u"cmdRitorno", Qt::CaseInsensitive);
    wantedMarks_ = {};
    if (line == u"click cmdInserisce" && window != nullptr)
        wantedMarks_ = {window->chkMeta(0).value(), window->chkMeta(1).value()};
}

QString Promises::brokenBehind(const Form& window) {
    seeScheduleRows(window);
    QString broken = leftOpen(window);
    if (broken.isEmpty())
        broken = wrongPlace(window);
    if (!broken.isEmpty() || !legsInEditor(window))
        return broken;
    broken = wrongNumber(window.mfgTab);
    if (broken.isEmpty() && !marksRepeated_)
        broken = doubleMark(window.mfgTab);
    return broken.isEmpty() ? takenMark(window) : broken;
}

/// A leg that is put in as first or last destination takes the mark from all others, even if several had it.
QString Promises::takenMark(const Form& window) const {
    for (std::size_t i = 0; i < setMarks.size(); ++i) {
        // The box is cleared when the leg is put in. It stays set if the leg was refused.
        if (wantedMarks_[i] && !window.chkMeta(static_cast<int>(i)).value() &&
            rowsWith(setMarks[i], window.mfgTab).size() > 1)
            return u"rows with %1 that another has just taken"_s.arg(setMarks[i]);
    }
    return {};
}

void Promises::seeScheduleRows(const Form& window) {
    if (!window.tappeConservate)
        return;
    std::set<QString> legs;
    for (int r = 0; r < window.tappeConservate->rows(); ++r)
        legs.insert(unmarked(window.tappeConservate->text(r, 1)));
    for (int r = 1; r < window.mfgTab.rows(); ++r) {
        if (const QString place = unmarked(window.mfgTab.cell(r, 1)); !legs.contains(place))
            scheduleRows_.insert(place);
    }
}

QString Promises::scheduleRowIn(store::Archive& archive) const {
    const store::TabellaLetta legs = archive.tabella(store::TabelleNomi(store::Itinerari));
    const auto place = static_cast<std::size_t>(legs.campi.indexOf(u"Localita"));
    for (const auto& record : legs.record) {
        const auto* const text = std::get_if<QString>(&record.at(place));
        if (text != nullptr && scheduleRows_.contains(unmarked(*text)))
            return u"a row of a schedule is stored as a leg: "_s + *text;
    }
    return {};
}

QString brokenInArchive(store::Archive& archive) {
    for (int table = store::primaTabella; table <= store::ultimaTabella; ++table) {
        const store::TabellaLetta read = archive.tabella(store::TabelleNomi(table));
        QString broken = brokenValue(read, table);
        if (broken.isEmpty() && table == store::MeteVanzer)
            broken = brokenCode(read);
        if (broken.isEmpty() && (table == store::MetaCorrente || table == store::Parametri))
            broken = brokenSingle(read);
        if (!broken.isEmpty())
            return store::TabelleNomi(table) + u": "_s + broken;
    }
    return {};
}

QString brokenInFile(const QString& path) {
    store::Archive archive(QFileInfo(path).path());
    archive.PercorsoDatabase = path;
    archive.DatabaseApre(0);
    return archive.Db(0)->intatto() ? brokenInArchive(archive) : u"the archive is damaged"_s;
}

} // namespace vanzer::stress
