// SPDX-License-Identifier: MIT
#include "startup/unsaved_work.h"

#include <algorithm>

#include <QDir>

#include "core/text.h"
#include "core/text_file.h"
#include "itinerary/leg_editor_screen.h"
#include "itinerary/stretch_screen.h"
#include "itinerary/typed_leg_screen.h"
#include "store/draft_file.h"
#include "trip/destination_screen.h"
#include "trip/kept_legs_screen.h"
#include "trip/parameter_fields_screen.h"
#include "window/changes.h"
#include "window/command.h"

namespace vanzer {

namespace {

const QString title = QStringLiteral("Lavoro non salvato");
/// Key beside the editor's fields. Its value is the difference that the kilometres field got in place of a typed total.
const QString difference = QStringLiteral("KmDifferenza");

bool typesLeg(const Form& form) {
    return form.frmframe(riquadroTappe).visible() && !form.tappeConservate && !form.stato.ModoGuida &&
           tappaDigitata(form);
}

/// Calls `visit` with each field of the leg editor.
template<typename Visitor> void visitLegFields(const Form& form, const Visitor& visit) {
    visit(form.txtTappa);
    visit(form.txtNumStrada);
    visit(form.txtKm);
    for (ListControl* const part : form.cmbSosta)
        visit(*part);
    for (OptionButton* const type : form.optStrada)
        visit(*type);
    visit(form.chkEndDay);
    for (CheckBox* const mark : form.chkMeta)
        visit(*mark);
}

TestiDeiCampi typedLeg(const Form& form) {
    TestiDeiCampi texts{{difference, form.stato.KmDifferenza}};
    visitLegFields(form, [&texts](const auto& control) {
        if constexpr (requires { control.value(); })
            texts.emplace(control.name(), control.value() ? QStringLiteral("1") : QString());
        else
            texts.emplace(control.name(), control.text());
    });
    return texts;
}

void putLegBack(Form& form, const TestiDeiCampi& texts) {
    visitLegFields(form, [&texts](auto& control) {
        const auto text = texts.find(control.name());
        if (text == texts.end())
            return;
        if constexpr (requires { control.value(); })
            control.setValue(!text->second.isEmpty());
        else
            control.setText(text->second);
    });
    if (const auto text = texts.find(difference); text != texts.end())
        form.stato.KmDifferenza = text->second;
}

/// Puts the legs back, and the frame in which the user edited them. If the destination isn't stored any more, its legs
/// aren't either.
void putLegsBack(Form& form, const Bozza& draft, bool lost) {
    const bool changed = draft.tappeCambiate || (lost && !draft.tappe.empty());
    const bool typed = !draft.digitata.empty();
    if (lost && (changed || typed || draft.editor || draft.tratto))
        daCodiceNuovo(form);
    if (changed)
        putLegs(form, draft.tappe);
    if (draft.tratto) {
        cmdModStrada_Click(form);
        form.stato.MappaModifiche =
            draft.modifiche.isEmpty() ? QString() : draft.modifiche.leftJustified(form.mfgTab.rows(), u'0', true);
    }
    if (!draft.editor && !typed && (!changed || draft.tratto))
        return;
    cmdItinerario_Click(form);
    form.stato.RigaCorrente = std::clamp(draft.riga, 1, Maggiore(form.mfgTab.rows() - 1, 1));
    AggiornaTabellaRigaCorrenteItinerario(form);
    putLegBack(form, draft.digitata);
}

void putBack(Form& form, const Bozza& draft) {
    const bool stored = !draft.codice.isEmpty() && loadDestination(form, draft.codice, draft.nome);
    if (!stored)
        cmdNuovo_Click(form);
    TestiDeiCampi typed = draft.campi;
    if (stored)
        std::erase_if(typed, [&draft](const auto& field) { return !draft.cambiati.contains(field.first); });
    putFieldsBack(form, typed);
    ImpostaGiorniMeseInizio(form);
    putLegsBack(form, draft, !stored && !draft.codice.isEmpty());
    form.campiDaRicordare = false;
}

QString legsTold(const Bozza& draft) {
    const auto n = std::ranges::count_if(draft.tappe, [](const TappaTenuta& leg) { return !Trim(leg[0]).isEmpty(); });
    return n == 0   ? QStringLiteral("nessuna tappa")
           : n == 1 ? QStringLiteral("1 tappa")
                    : QStringLiteral("%1 tappe").arg(n);
}

QString question(const Bozza& draft, const QDate& today) {
    const auto place = draft.campi.find(QStringLiteral("txtLocalita"));
    const QString name = place == draft.campi.end() ? QString() : Trim(place->second);
    const QString what = name.isEmpty() ? QStringLiteral("un nuovo viaggio") : u'«' + name + u'»';
    const bool other = draft.scritta.date() != today;
    const QString when = draft.scritta.toString(other ? QStringLiteral("dd/MM/yyyy HH:mm") : QStringLiteral("HH:mm"));
    return QStringLiteral("Riprendere il lavoro non salvato a ") + what +
           QStringLiteral(" (%1, %2)?").arg(legsTold(draft), when);
}

} // namespace

bool nonSalvato(const Form& form) {
    if (!form.interattiva || form.chiusa || form.archivio.Db(0) == nullptr)
        return false;
    return typesLeg(form) || !nomiDeiCambiati(form).isEmpty() || tappeCambiate(form);
}

std::optional<Bozza> lavoroNonSalvato(const Form& form) {
    if (!nonSalvato(form))
        return std::nullopt;
    Bozza draft{
        .codice = form.txtCodice.text(),
        .nome = form.campiMemorizzati.value(0),
        .campi = testiDeiCampi(form),
        .cambiati = nomiDeiCambiati(form),
        .tappe = tappeInVista(form),
        .tappeCambiate = tappeCambiate(form),
        .editor = form.frmframe(riquadroTappe).visible(),
        .tratto = form.frmframe(riquadroTratto).visible(),
        .riga = form.stato.RigaCorrente,
        .modifiche = form.stato.MappaModifiche,
        .digitata = typesLeg(form) ? typedLeg(form) : TestiDeiCampi(),
    };
    return draft;
}

bool resumeDraft(Form& form, const Bozza& draft) {
    bool whole = false;
    comando(form, [&form, &draft, &whole] {
        putBack(form, draft);
        whole = true;
    });
    return whole;
}

CustodeBozza::CustodeBozza(Form& form) : form_(form), path_(form.archivio.PercorsoProgramma + store::nomeBozza) {
    pool_.setMaxThreadCount(1);
    form_.beforeCommand = [this] { before_ = lavoroNonSalvato(form_); };
}

CustodeBozza::~CustodeBozza() {
    form_.beforeCommand = {};
    wait();
}

void CustodeBozza::setsAside(QLatin1String ending, const QString& told) {
    try {
        const QString where = store::setDraftAside(path_, ending);
        if (!told.isEmpty())
            form_.messaggio(told.arg(QDir::toNativeSeparators(where)), title, Icona::Avviso);
    } catch (const store::StoreError&) {
        form_.messaggio(
            QStringLiteral("La bozza %1 non si può mettere da parte: ").arg(QDir::toNativeSeparators(path_)) +
                motivoNonScritto(path_),
            title, Icona::Avviso);
    }
}

void CustodeBozza::offer() {
    if (!form_.interattiva || form_.chiusa)
        return;
    std::optional<Bozza> draft;
    try {
        const std::optional<QByteArray> bytes = store::readDraft(path_);
        if (!bytes)
            return;
        draft = bozzaDaiByte(*bytes);
    } catch (const store::StoreError&) { // the user is told below
    }
    if (!draft) {
        setsAside(store::bozzaDanneggiata,
                  QStringLiteral("La bozza del lavoro non salvato non si può leggere. È stata messa da parte: %1"));
        return;
    }
    const int answer =
        form_.ask({.text = question(*draft, form_.ports.clock.now().date()),
                   .title = title,
                   .buttons = Pulsanti::SiNo,
                   .detail = QStringLiteral("Con «No» resta accanto all'archivio, in %1, fino al prossimo «No».")
                                 .arg(store::nomeBozza + store::bozzaRifiutata)});
    if (form_.chiusa)
        return; // the window was closed without an answer
    if (answer != rispostaSi)
        setsAside(store::bozzaRifiutata, {});
    else
        exists_ = resumeDraft(form_, *draft);
}

void CustodeBozza::look() {
    if (exists_ && !form_.comandoInCorso && !nonSalvato(form_))
        takesAway();
}

void CustodeBozza::keep() {
    if (failed_.exchange(false)) {
        written_.reset();
        form_.lblAvviso.setCaption(QStringLiteral("La bozza del lavoro non salvato non è scritta: ") +
                                   motivoNonScritto(path_));
    }
    const std::optional<Bozza> work = form_.comandoInCorso || notChosen_ ? before_ : lavoroNonSalvato(form_);
    if (!work)
        takesAway();
    else if (work != written_)
        writes(*work);
}

void CustodeBozza::wasLeft() {
    takesAway();
}

void CustodeBozza::finish() {
    keep();
    wait();
    exists_ = false;
}

void CustodeBozza::writes(const Bozza& draft) {
    written_ = draft;
    exists_ = true;
    pool_.start([this, draft, now = form_.ports.clock.now()] {
        try {
            store::writeDraft(path_, byteDellaBozza(draft, now));
        } catch (const store::StoreError&) {
            failed_ = true;
        }
    });
}

void CustodeBozza::takesAway() {
    written_.reset();
    if (std::exchange(exists_, false))
        pool_.start([this] { store::removeDraft(path_); });
}

} // namespace vanzer
