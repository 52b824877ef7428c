// SPDX-License-Identifier: MIT
// A draft is a JSON object:
//
//   "bozza"      version of the format, 1
//   "scritta"    local date and time, "2026-11-23T18:05:00"
//   "codice", "nome", "campi", "cambiati", "tappeCambiate", "editor", "tratto", "riga", "modifiche", "digitata"
//                as in Bozza; "campi" and "digitata" are objects of texts
//   "tappe"      the cells of all legs one after the other, six texts a leg; flat, so that reading takes little memory
//                even if the file isn't a draft
//
// Missing values are empty. A value of another kind, a text that is too long or another version makes the draft
// invalid.
#include "core/draft.h"

#include <algorithm>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace vanzer {

namespace {

using namespace Qt::StringLiterals;

constexpr int version = 1;
constexpr qsizetype longestText = 1 << 16; // characters; legs of a route list are longer than their stored form
constexpr std::size_t mostLegs = 100000;
constexpr qsizetype longestMap = 1 << 20; // characters of "modifiche", one for each row of the table

struct NotADraft {};

void require(bool holds) {
    if (!holds)
        throw NotADraft();
}

QJsonObject objectOf(const TestiDeiCampi& texts) {
    QJsonObject object;
    for (const auto& [name, text] : texts)
        object.insert(name, text);
    return object;
}

QString textIn(const QJsonValue& value, qsizetype longest = longestText) {
    require(value.isString() || value.isUndefined());
    QString text = value.toString();
    require(text.size() <= longest);
    return text;
}

TestiDeiCampi textsIn(const QJsonValue& value) {
    require(value.isObject() || value.isUndefined());
    const QJsonObject object = value.toObject();
    TestiDeiCampi texts;
    for (auto field = object.begin(); field != object.end(); ++field)
        texts.emplace(field.key(), textIn(field.value()));
    return texts;
}

QJsonArray arrayIn(const QJsonValue& value) {
    require(value.isArray() || value.isUndefined());
    return value.toArray();
}

bool flagIn(const QJsonValue& value) {
    require(value.isBool() || value.isUndefined());
    return value.toBool();
}

TappeTenute legsIn(const QJsonArray& cells) {
    const auto width = static_cast<qsizetype>(colonneTenute.size());
    require(cells.size() % width == 0);
    require(static_cast<std::size_t>(cells.size() / width) <= mostLegs);
    TappeTenute legs(static_cast<std::size_t>(cells.size() / width));
    qsizetype at = 0;
    for (TappaTenuta& leg : legs) {
        for (QString& cell : leg)
            cell = textIn(cells.at(at++));
    }
    return legs;
}

Bozza read(const QJsonObject& object) {
    require(object[u"bozza"].toInt() == version);
    Bozza draft{
        .codice = textIn(object[u"codice"]),
        .nome = textIn(object[u"nome"]),
        .campi = textsIn(object[u"campi"]),
        .cambiati = {},
        .tappe = legsIn(arrayIn(object[u"tappe"])),
        .tappeCambiate = flagIn(object[u"tappeCambiate"]),
        .editor = flagIn(object[u"editor"]),
        .tratto = flagIn(object[u"tratto"]),
        .riga = object[u"riga"].toInt(1),
        .modifiche = textIn(object[u"modifiche"], longestMap),
        .digitata = textsIn(object[u"digitata"]),
        .scritta = QDateTime::fromString(textIn(object[u"scritta"]), Qt::ISODate),
    };
    for (const QJsonValue name : arrayIn(object[u"cambiati"]))
        draft.cambiati << textIn(name);
    require(std::ranges::all_of(draft.modifiche, [](QChar c) { return c == u'0' || c == u'1'; }));
    require(draft.scritta.isValid());
    return draft;
}

} // namespace

QByteArray byteDellaBozza(const Bozza& draft, const QDateTime& now) {
    QJsonArray cells;
    for (const TappaTenuta& leg : draft.tappe) {
        for (const QString& cell : leg)
            cells.append(cell);
    }
    const QJsonObject object{{u"bozza"_s, version},
                             {u"scritta"_s, now.toString(u"yyyy-MM-ddTHH:mm:ss"_s)},
                             {u"codice"_s, draft.codice},
                             {u"nome"_s, draft.nome},
                             {u"campi"_s, objectOf(draft.campi)},
                             {u"cambiati"_s, QJsonArray::fromStringList(draft.cambiati)},
                             {u"tappe"_s, cells},
                             {u"tappeCambiate"_s, draft.tappeCambiate},
                             {u"editor"_s, draft.editor},
                             {u"tratto"_s, draft.tratto},
                             {u"riga"_s, draft.riga},
                             {u"modifiche"_s, draft.modifiche},
                             {u"digitata"_s, objectOf(draft.digitata)}};
    return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

std::optional<Bozza> bozzaDaiByte(const QByteArray& bytes) {
    const QJsonDocument document = QJsonDocument::fromJson(bytes);
    if (!document.isObject())
        return std::nullopt;
    try {
        return read(document.object());
    } catch (const NotADraft&) {
        return std::nullopt;
    }
}

} // namespace vanzer
