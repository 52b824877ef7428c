// SPDX-License-Identifier: MIT
#include "batch/state_view.h"

#include <array>

#include <QJsonArray>

#include "core/text.h"
#include "trip/trip_numbers.h"

namespace vanzer::batch {

namespace {

/// A float as a double with the same short digits: 1.999997, not 1.9999970197677612.
double shortest(float x) {
    return testoNumero(x).toDouble();
}

QJsonValue value(float x) {
    return shortest(x);
}
QJsonValue value(int x) {
    return x;
}
QJsonValue value(bool x) {
    return x;
}
QJsonValue value(const QString& x) {
    return x;
}

void addText(QJsonObject& answer, const Control& control) {
    if (const auto* box = qobject_cast<const TextBox*>(&control)) {
        answer.insert(u"text", box->text());
        answer.insert(u"maxlength", box->maxLength());
    }
    if (const auto* list = qobject_cast<const ListControl*>(&control)) {
        answer.insert(u"text", list->text());
        answer.insert(u"list", QJsonArray::fromStringList(list->entries()));
    }
}

template<typename Kind> void addCaption(QJsonObject& answer, const Control& control) {
    const auto* const captioned = qobject_cast<const Kind*>(&control);
    if (captioned == nullptr)
        return;
    answer.insert(u"caption", captioned->caption());
    if constexpr (requires { captioned->value(); })
        answer.insert(u"value", captioned->value() ? 1 : 0);
    if constexpr (requires { captioned->isDefault(); })
        answer.insert(u"default", captioned->isDefault());
}

QJsonArray rowCells(const Grid& grid, int row) {
    int used = grid.columns();
    while (used > 0 && grid.cell(row, used - 1).isEmpty())
        --used;
    QJsonArray cells;
    for (int c = 0; c < used; ++c)
        cells.append(grid.cell(row, c));
    return cells;
}

struct CellValue {
    QJsonValue operator()(std::monostate /*none*/) const { return QJsonValue::Null; }
    QJsonValue operator()(bool yes) const { return yes; }
    QJsonValue operator()(const QString& text) const { return text; }
};

} // namespace

#define VANZER_VARIABLE(of, name)                                                                                      \
    { QStringLiteral(#name), value((of).name) }
QJsonObject variables(const Form& form) {
    const StatoFinestra& window = form.stato;
    const NumeriViaggio& trip = *form.viaggio;
    return {
        VANZER_VARIABLE(window, CodiceMeta),
        VANZER_VARIABLE(trip, OraColazione),
        VANZER_VARIABLE(trip, OraPranzo),
        VANZER_VARIABLE(trip, OraCena),
        VANZER_VARIABLE(trip, OraNotte),
        VANZER_VARIABLE(trip, DurataPranzo),
        VANZER_VARIABLE(trip, DurataCena),
        VANZER_VARIABLE(trip, InizioVisita),
        VANZER_VARIABLE(trip, FineVisita),
        VANZER_VARIABLE(trip, OreTraghetti),
        VANZER_VARIABLE(trip, OreGuidaGiorno),
        VANZER_VARIABLE(trip, OreVisitaGiorno),
        VANZER_VARIABLE(trip, RiposoMinuti),
        VANZER_VARIABLE(trip, RiposoOre),
        VANZER_VARIABLE(trip, RiposoGiorno),
        VANZER_VARIABLE(trip, RiposoDopoGiorni),
        VANZER_VARIABLE(trip, GiornoInizio),
        VANZER_VARIABLE(trip, MeseInizio),
        VANZER_VARIABLE(trip, AnnoInizio),
        VANZER_VARIABLE(trip, GiulianoInizio),
        VANZER_VARIABLE(trip, GiulianoCorrente),
        VANZER_VARIABLE(trip, OraInizioViaggio),
        VANZER_VARIABLE(trip, GiorniDesiderati),
        VANZER_VARIABLE(trip, NumeroTraghetti),
        VANZER_VARIABLE(window, PulsantiMeta),
        VANZER_VARIABLE(window, PulsantiItinerario),
        VANZER_VARIABLE(window, ViandoriaCalcolata),
        VANZER_VARIABLE(window, ModoRicerca),
        VANZER_VARIABLE(window, ModoGuida),
        VANZER_VARIABLE(window, Risposta),
        VANZER_VARIABLE(window, NumeroTappe),
        VANZER_VARIABLE(window, RigaCorrente),
        VANZER_VARIABLE(trip, Coefficiente),
        VANZER_VARIABLE(trip, NumeroTest),
        VANZER_VARIABLE(trip, GiorniCalcolati),
    };
}
#undef VANZER_VARIABLE

QJsonObject controlState(const Control& control) {
    const Geometria& place = control.geometria();
    QJsonObject answer{{"name", control.name()},
                       {"visible", control.visible()},
                       {"enabled", control.enabled()},
                       {"reachable", control.reachable()},
                       {"tooltip", control.tooltip()},
                       {"left", place.left},
                       {"top", place.top},
                       {"width", place.width},
                       {"height", place.height}};
    addText(answer, control);
    addCaption<Frame>(answer, control);
    addCaption<Label>(answer, control);
    addCaption<Button>(answer, control);
    addCaption<CheckBox>(answer, control);
    addCaption<OptionButton>(answer, control);
    return answer;
}

QJsonObject gridState(const Grid& grid) {
    QJsonArray cells;
    for (int r = 0; r < grid.rows(); ++r)
        cells.append(rowCells(grid, r));
    while (!cells.isEmpty() && cells.last().toArray().isEmpty())
        cells.removeLast();
    return {{"rows", grid.rows()},     {"cols", grid.columns()},  {"row", grid.row()},       {"col", grid.col()},
            {"rowsel", grid.rowSel()}, {"colsel", grid.colSel()}, {"toprow", grid.topRow()}, {"cells", cells}};
}

QJsonObject gridColumns(const Grid& grid) {
    static constexpr std::array aligned{"left", "centre", "right"};
    QJsonArray widths;
    QJsonArray alignments;
    for (int column = 0; column < grid.columns(); ++column) {
        widths.append(grid.columnWidth(column));
        alignments.append(aligned[static_cast<std::size_t>(grid.alignment(column))]);
    }
    return {{"widths", widths}, {"alignments", alignments}};
}

QJsonObject records(const store::TabellaLetta& table) {
    QJsonArray all;
    for (const auto& record : table.record) {
        QJsonArray cells;
        for (const auto& cell : record)
            cells.append(std::visit(CellValue(), cell));
        all.append(cells);
    }
    return {{"fields", QJsonArray::fromStringList(table.campi)}, {"records", all}};
}

} // namespace vanzer::batch
