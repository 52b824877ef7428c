// SPDX-License-Identifier: MIT
#include "guide/entries.h"

#include <algorithm>

#include <QStringList>

#include "core/collation.h"
#include "core/columns.h"
#include "core/text.h"

namespace vanzer {

namespace {

constexpr int tastoPaginaSu = 33;
constexpr int tastoPaginaGiu = 34;
constexpr int tastoSu = 38;
constexpr int tastoGiu = 40;
constexpr int righePagina = 12;

const QString senzaTempo = QStringLiteral("00:00");

QString twoDigits(const QString& box) {
    const QString text = Trim(box);
    return text.isEmpty() ? QStringLiteral("00") : text;
}

bool wholeDays(const QString& hours) {
    return hours.size() == 2 && hours[0].toUpper() == u'G' && hours[1] >= u'1' && hours[1] <= u'8';
}

} // namespace

TipoRigaGuida tipoRigaGuida(const QString& place, const QString& mark) {
    if (Trim(place).isEmpty())
        return TipoRigaGuida::Vuota;
    return mark == segnoVoce ? TipoRigaGuida::Voce : TipoRigaGuida::Luogo;
}

int CodiceTipoGuida(std::span<const QString> names, const QString& name) {
    if (name.isEmpty())
        return -1;
    for (std::size_t i = names.size(); i-- > 1;) {
        if (uguale(names[i], name))
            return static_cast<int>(i);
    }
    return -1;
}

QString nomeTipoGuida(std::span<const QString> names, const QString& code) {
    const double number = Val(code);
    if (number < 1 || number >= static_cast<double>(names.size()))
        return {};
    return names[static_cast<std::size_t>(number)];
}

QString gruppoMostrato(const QString& group) {
    const QString text = Trim(group);
    return text == u"0" ? QString() : text;
}

bool stessoGruppo(const QString& a, const QString& b) {
    return uguale(gruppoMostrato(a), gruppoMostrato(b));
}

QString gruppoOrdinato(const QString& group) {
    QString line = QString(group).replace(u'-', u'\t') + u'\t';
    Colonne pieces;
    SeparaColonne(line, pieces);
    QStringList marks;
    for (int i = 1; i <= pieces.numero; ++i) {
        if (!pieces(i).isEmpty())
            marks << pieces(i);
    }
    std::stable_sort(marks.begin(), marks.end(),
                     [](const QString& a, const QString& b) { return compareTexts(a, b) < 0; });
    return marks.join(u'-');
}

QString tempoDigitato(const QString& hours, const QString& minutes) {
    return twoDigits(hours) + u':' + twoDigits(minutes);
}

QString oreMostrate(const QString& time) {
    const QString hours = Left(time, 2);
    return wholeDays(hours) ? hours : Zero(Val(hours), 2);
}

QString minutiMostrati(const QString& time) {
    return Zero(Val(Right(time, 2)), 2);
}

EsitoVoce checkEntry(const VoceDigitata& entry) {
    if (Trim(entry.descrizione).isEmpty())
        return EsitoVoce::MancaDescrizione;
    if (entry.codice < 0)
        return EsitoVoce::MancaTipologia;
    if (entry.tempoObbligatorio && entry.tempo == senzaTempo)
        return EsitoVoce::MancaTempo;
    return Trim(entry.luogo).isEmpty() ? EsitoVoce::MancaLuogo : EsitoVoce::Buona;
}

QString messaggioVoce(EsitoVoce result) {
    switch (result) {
    case EsitoVoce::MancaDescrizione: return QStringLiteral("Errore! Manca la descrizione!!!");
    case EsitoVoce::MancaTipologia: return QStringLiteral("Errore! Manca la tipologia!!!");
    case EsitoVoce::MancaTempo: return QStringLiteral("Errore! Manca il tempo stimato!!!");
    case EsitoVoce::MancaLuogo: return QStringLiteral("Errore! Manca la località!!!");
    default: return {};
    }
}

std::optional<FormaBreve> formaDiario(const QString& text) {
    if (!beginsWith(text, u"diar"))
        return std::nullopt;
    return FormaBreve{QStringLiteral("Diari di bordo"), QStringLiteral("Diari bordo")};
}

std::optional<FormaBreve> formaBreve(const QString& text) {
    if (!beginsWith(text, u"cs"))
        return formaDiario(text);
    return FormaBreve{QStringLiteral("carte/guide - atlanti"), QStringLiteral("carte/guide")};
}

int carattereGruppo(int code) {
    if (code <= 31)
        return code;
    if (code >= 'a' && code <= 'z')
        return code - 'a' + 'A';
    const bool allowed = (code >= '0' && code <= '9') || (code >= 'A' && code <= 'Z') || code == '-';
    return allowed ? code : 0;
}

int rigaDopoTasto(int row, int key, int rows) {
    switch (key) {
    case tastoPaginaSu: return Maggiore(row - righePagina, 1);
    case tastoPaginaGiu: return Minore(row + righePagina, rows - 1);
    case tastoSu: return Maggiore(row - 1, 1);
    case tastoGiu: return Minore(row + 1, rows - 1);
    default: return row;
    }
}

} // namespace vanzer
