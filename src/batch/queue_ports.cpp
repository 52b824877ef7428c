// SPDX-License-Identifier: MIT
#include "batch/queue_ports.h"

#include <QJsonObject>

namespace vanzer::batch {

namespace {

template<typename T> std::optional<T> taken(std::deque<T>& queue) {
    if (queue.empty())
        return std::nullopt;
    const T front = queue.front();
    queue.pop_front();
    return front;
}

int unasked(Pulsanti buttons) {
    switch (buttons) {
    case Pulsanti::Ok: return rispostaOk;
    case Pulsanti::SiNo: return rispostaNo;
    default: return rispostaAnnulla;
    }
}

QString nameOf(Pulsanti buttons) {
    switch (buttons) {
    case Pulsanti::Ok: return QStringLiteral("ok");
    case Pulsanti::SiNo: return QStringLiteral("yesno");
    default: return QStringLiteral("yesnocancel");
    }
}

QString nameOf(Icona icon) {
    switch (icon) {
    case Icona::Informazione: return QStringLiteral("information");
    case Icona::Avviso: return QStringLiteral("warning");
    default: return {};
    }
}

QString withPlainBreaks(QString text) {
    return text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
}

} // namespace

int QueuedBoxes::show(const MessageBox& box) {
    const int answer = taken(answers_).value_or(unasked(box.buttons));
    shown({{"text", withPlainBreaks(box.text)},
           {"title", box.title},
           {"buttons", nameOf(box.buttons)},
           {"icon", nameOf(box.icon)},
           {"answer", answer}});
    return answer;
}

QString QueuedDialogs::next(const QString& kind, const QString& filter) {
    QString path = taken(paths_).value_or(QString());
    shown({{"kind", kind}, {"filter", filter}, {"path", path}});
    return path;
}

void VisitedYield::letIn() {
    Visitor visitor = std::exchange(visitor_, {});
    // A visitor that didn't accept keeps waiting, unless another has replaced it.
    if (!visitor() && !visitor_)
        visitor_ = std::move(visitor);
}

} // namespace vanzer::batch
