// SPDX-License-Identifier: MIT
#include "exchange/iei_codes.h"

#include <map>
#include <vector>

#include <QSet>

#include "core/text.h"

namespace vanzer {

namespace {

QString key(QStringView code) {
    return code.toString().toCaseFolded();
}

/// All texts that are part of a long one. Those of one length are collected when the first of that length is searched.
class Brani {
  public:
    explicit Brani(const QString& text) : text_(text) {}

    [[nodiscard]] bool contains(const QString& part) {
        if (part.size() > text_.size())
            return false;
        const auto [of, fresh] = byLength_.try_emplace(part.size());
        for (qsizetype at = 0; fresh && at + part.size() <= text_.size(); ++at)
            of->second.insert(text_.mid(at, part.size()));
        return of->second.contains(part);
    }

  private:
    QStringView text_;
    std::map<qsizetype, QSet<QStringView>> byLength_;
};

} // namespace

CodiciMete::Esito CodiciMete::assign(const QStringList& stored, const QStringList& chosen, int longest) {
    codes_.clear();
    QString all;
    QSet<QString> taken;
    for (const QString& code : stored) {
        all += key(code) + u'\\';
        taken.insert(key(code));
    }
    Brani parts(all);
    std::vector<bool> inUse;
    for (const QString& code : chosen) {
        failed_ = code;
        if (code.size() > longest)
            return Esito::CodiceTroppoLungo;
        inUse.push_back(parts.contains(key(code)) || taken.contains(key(code)));
        if (!inUse.back())
            taken.insert(key(code));
    }
    double highest = stored.isEmpty() ? 0 : Val(stored.last());
    for (std::size_t i = 0; i < inUse.size(); ++i) {
        const QString& code = chosen[static_cast<qsizetype>(i)];
        QString fresh = code;
        if (inUse[i]) {
            failed_ = code;
            // Tries one number more than are taken, so that one of them is free. This fails only if so few digits don't
            // give as many numbers.
            qsizetype attempts = taken.size() + 1;
            do {
                if (attempts-- == 0)
                    return Esito::CodiciEsauriti;
                fresh = Zero(++highest, static_cast<int>(code.size()));
            } while (taken.contains(key(fresh)));
            taken.insert(key(fresh));
        }
        codes_[key(code)].daDare.push_back(fresh);
    }
    return Esito::Assegnati;
}

const QString* CodiciMete::perMeta(QStringView old) const {
    const auto found = codes_.constFind(key(old));
    return found == codes_.cend() || found->daDare.empty() ? nullptr : &found->daDare.front();
}

void CodiciMete::accept(QStringView old) {
    const auto found = codes_.find(key(old));
    if (found == codes_.end() || found->daDare.empty())
        return;
    if (found->dellaPrima.isEmpty())
        found->dellaPrima = found->daDare.front();
    found->daDare.pop_front();
}

void CodiciMete::refuse(QStringView old) {
    if (const auto found = codes_.find(key(old)); found != codes_.end() && !found->daDare.empty())
        found->daDare.pop_front();
}

const QString* CodiciMete::perTappe(QStringView old) const {
    const auto found = codes_.constFind(key(old));
    return found == codes_.cend() || found->dellaPrima.isEmpty() ? perMeta(old) : &found->dellaPrima;
}

} // namespace vanzer
