// SPDX-License-Identifier: MIT
#include "window/confirmation.h"

#include "core/text.h"

namespace vanzer {

namespace {

struct Voce {
    const char16_t* code;
    const char16_t* text;
};

constexpr auto questions = std::to_array<Voce>({
    {u"I", u"Inserimento meta"},
    {u"A", u"Annullamento meta"},
    {u"M", u"Modifica dati mèta"},
    {u"R", u"Reset file mète"},
    {u"T", u"Memorizzazione dell'itinerario"},
    {u"CR", u"Cancellazione tappa"},
    {u"S", u"Stampare l'itinerario"},
    {u"IP", u"Inserimento tappe percorso"},
    {u"IS", u"Inserimento soste del percorso"},
    {u"AB", u"Rinuncia alle modifiche"},
    {u"CI", u"la rinuncia alle eventuali modifiche dell'itinerario"},
    {u"AI", u"Annullamento itinerario"},
    {u"DF", u"Memorizzazione dati mèta di default"},
    {u"EX", u"Export delle mète selezionate"},
    {u"IM", u"Import delle mète selezionate nei propri archivi"},
});

} // namespace

void BoxConferma(Form& form, const QString& what, const QString& detail) {
    QString text = what;
    for (const Voce& question : questions) {
        if (uguale(what, QString::fromUtf16(question.code)))
            text = QString::fromUtf16(question.text);
    }
    const QString question = QStringLiteral("Confermi ") + minuscolo(text) + u'?';
    detail.isEmpty() ? form.domanda(question, text, Pulsanti::SiNo) : form.domandaPericolosa(question, text, detail);
}

} // namespace vanzer
