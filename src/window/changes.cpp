// SPDX-License-Identifier: MIT
#include "window/changes.h"

#include <vector>

namespace vanzer {

namespace {

struct Campi {
    QString kind; ///< the user's word for these fields
    std::vector<TextControl*> fields;
};

template<typename T> std::vector<TextControl*> all(const Serie<T>& fields, int from = 0, int to = -1) {
    std::vector<TextControl*> some;
    for (int i = from; i < (to < 0 ? fields.count() : to); ++i)
        some.push_back(&fields(i));
    return some;
}

std::vector<TextControl*> clocks(const Form& form, int from, int to) {
    std::vector<TextControl*> both = all(form.cmbOra, from, to);
    const std::vector<TextControl*> minutes = all(form.cmbMin, from, to);
    both.insert(both.end(), minutes.begin(), minutes.end());
    return both;
}

std::vector<Campi> storedFields(const Form& form) {
    constexpr int meals = 6; // six pairs of clock lists for meals, then two for visits and one for ferries
    constexpr int visits = 8;
    return {{QStringLiteral("località"), {&form.txtLocalita}},
            {QStringLiteral("nazione"), {&form.txtNazione}},
            {QStringLiteral("partenza"), all(form.cmbInizio)},
            {QStringLiteral("velocità medie"), all(form.cmbMediaKm)},
            {QStringLiteral("orari di pasti e notte"), clocks(form, 0, meals)},
            {QStringLiteral("orario delle visite"), clocks(form, meals, visits)},
            {QStringLiteral("ore dei traghetti"), clocks(form, visits, visits + 1)},
            {QStringLiteral("riposi"), {&form.cmbRipM, &form.cmbRipH, &form.cmbRipG, &form.cmbRipGG}},
            {QStringLiteral("tolleranza"), {&form.cmbRange}},
            {QStringLiteral("fonti delle soste"), {&form.cmbSoste}},
            {QStringLiteral("giorni di viaggio"), {&form.cmbGiorni}}};
}

QStringList texts(const Form& form) {
    QStringList all;
    for (const Campi& some : storedFields(form)) {
        for (const TextControl* const field : some.fields)
            all << field->text();
    }
    return all;
}

} // namespace

void rememberFields(Form& form) {
    form.campiMemorizzati = texts(form);
}

QStringList campiCambiati(const Form& form) {
    QStringList changed;
    qsizetype at = 0;
    for (const Campi& some : storedFields(form)) {
        for (const TextControl* const field : some.fields) {
            if (field->text() != form.campiMemorizzati.value(at++) && !changed.contains(some.kind))
                changed << some.kind;
        }
    }
    return changed;
}

TestiDeiCampi testiDeiCampi(const Form& form) {
    TestiDeiCampi all;
    for (const Campi& some : storedFields(form)) {
        for (const TextControl* const field : some.fields)
            all.emplace(field->name(), field->text());
    }
    return all;
}

QStringList nomiDeiCambiati(const Form& form) {
    QStringList changed;
    qsizetype at = 0;
    for (const Campi& some : storedFields(form)) {
        for (const TextControl* const field : some.fields) {
            if (field->text() != form.campiMemorizzati.value(at++))
                changed << field->name();
        }
    }
    return changed;
}

void putFieldsBack(Form& form, const TestiDeiCampi& typed) {
    rememberFields(form);
    for (const Campi& some : storedFields(form)) {
        for (TextControl* const field : some.fields) {
            if (const auto text = typed.find(field->name()); text != typed.end())
                field->setText(text->second);
        }
    }
    form.campiDaRicordare = false;
}

bool leaveStretch(Form& form) {
    return !form.interattiva || !form.frmframe(riquadroTratto).visible() || !form.closeStretch || form.closeStretch();
}

bool leaveChanges(Form& form) {
    return leaveStretch(form) && leaveFields(form);
}

bool leaveFields(Form& form) {
    const QStringList changed = form.interattiva ? campiCambiati(form) : QStringList();
    if (changed.isEmpty())
        return true;
    const int answer = form.ask({.text = QStringLiteral("Salvare le modifiche a «%1»?").arg(form.txtLocalita.text()),
                                 .title = QStringLiteral("Modifiche non salvate"),
                                 .buttons = Pulsanti::SalvaNonSalvareAnnulla,
                                 .detail = QStringLiteral("Cambiati: %1.").arg(changed.join(QStringLiteral(", ")))});
    if (answer == rispostaAnnulla || (answer == rispostaSi && !form.saveDestination()))
        return false;
    rememberFields(form);
    form.campiDaRicordare = true;
    return true;
}

CampiTenuti::CampiTenuti(Form& form) : form_(form) {
    if (form.interattiva && !campiCambiati(form).isEmpty())
        typed_ = texts(form);
}

CampiTenuti::~CampiTenuti() {
    if (typed_.isEmpty())
        return;
    rememberFields(form_);
    qsizetype at = 0;
    for (const Campi& some : storedFields(form_)) {
        for (TextControl* const field : some.fields)
            field->setText(typed_[at++]);
    }
    form_.campiDaRicordare = false;
}

} // namespace vanzer
