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

#define VANZER_VARIABLE(name)                                                                                          \
    { QStringLiteral(#name), value(s.name) }
#define VANZER_NUMBER(name)                                                                                            \
    { QStringLiteral(#name), value(trip.name) }
QJsonObject variables(const Form& form) {
    const StatoFinestra& s = form.stato;
    const NumeriViaggio& trip = *form.viaggio;
    return {
        VANZER_VARIABLE(CodiceMeta),
        VANZER_NUMBER(OraColazione),
        VANZER_NUMBER(OraPranzo),
        VANZER_NUMBER(OraCena),
        VANZER_NUMBER(OraNotte),
        VANZER_NUMBER(DurataPranzo),
        VANZER_NUMBER(DurataCena),
        VANZER_NUMBER(InizioVisita),
        VANZER_NUMBER(FineVisita),
        VANZER_NUMBER(OreTraghetti),
        VANZER_NUMBER(OreGuidaGiorno),
        VANZER_NUMBER(OreVisitaGiorno),
        VANZER_NUMBER(RiposoMinuti),
        VANZER_NUMBER(RiposoOre),
        VANZER_NUMBER(RiposoGiorno),
        VANZER_NUMBER(RiposoDopoGiorni),
        VANZER_NUMBER(GiornoInizio),
        VANZER_NUMBER(MeseInizio),
        VANZER_NUMBER(AnnoInizio),
        VANZER_NUMBER(GiulianoInizio),
        VANZER_NUMBER(GiulianoCorrente),
        VANZER_NUMBER(OraInizioViaggio),
        VANZER_NUMBER(GiorniDesiderati),
        VANZER_NUMBER(NumeroTraghetti),
        VANZER_VARIABLE(PulsantiMeta),
        VANZER_VARIABLE(PulsantiItinerario),
        VANZER_VARIABLE(ViandoriaCalcolata),
        VANZER_VARIABLE(ModoRicerca),
        VANZER_VARIABLE(ModoGuida),
        VANZER_VARIABLE(Risposta),
        VANZER_VARIABLE(NumeroTappe),
        VANZER_VARIABLE(RigaCorrente),
        VANZER_NUMBER(Coefficiente),
        VANZER_NUMBER(NumeroTest),
        VANZER_NUMBER(GiorniCalcolati),
    };
}
#undef VANZER_NUMBER
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
