// SPDX-License-Identifier: MIT
#include "trip/leg_table.h"

#include <algorithm>

#include "core/place_name.h"
#include "core/text.h"

namespace vanzer {

QString luogoMemorizzato(const QString& place, int fieldSize) {
    return Left(place, fieldSize - 1);
}

int numeroRecord(int km) {
    return km <= massimoKmRecord ? 1 : (km - 1) / massimoKmRecord + 1;
}

std::vector<RecordTappa> recordDellaRiga(const RigaTappa& row, const QString& guideStops, int placeSize) {
    const bool endOfDay = row.sosta.startsWith(u'*');
    RecordTappa record{
        .localita = luogoMemorizzato(row.luogo, placeSize),
        .chilometri = {},
        .nomeStrada = Left(row.strada + u' ', 64),
        .tipoStrada = Left(row.tipoStrada + u' ', 1),
        .tempoSosta = Left((endOfDay ? Mid(row.sosta, 2) : row.sosta) + u' ', 8),
        .sostaGuidaCitta = guideStops.isEmpty() ? QStringLiteral(" ") : guideStops,
        .fineGiorno = endOfDay,
    };
    std::vector<RecordTappa> records;
    int left = row.km;
    do {
        const int piece = std::min(left, massimoKmRecord);
        record.chilometri = QString::number(piece);
        records.push_back(record);
        record.sostaGuidaCitta = QStringLiteral(" ");
        left -= piece;
    } while (left != 0);
    return records;
}

QString sostaDelRecord(const QString& fineGiorno, const QString& tempoSosta) {
    return Trim((Val(fineGiorno) == 1 ? u'*' : u' ') + tempoSosta);
}

TrattoDellaGuida::Passo TrattoDellaGuida::prossimo(const QString& localita) {
    if (uguale(localita, last_))
        return {};
    QString s = localita;
    // Cuts the text from the mark on. A mark after a bracket or after another mark is therefore not found.
    const auto cut = [&s](QStringView mark) {
        const int at = s.contains(mark.front()) ? posizione(s, mark) : 0;
        if (at > 0)
            s = Trim(Left(s, at - 1)) + u'*';
        return at > 0;
    };
    cut(u"(");
    start_ = cut(marcaStart) || start_;
    end_ = cut(marcaEnd) || end_;
    Passo step{start_, {}};
    if (start_) {
        last_ = RiPulisceNomeLocalita(s);
        step.luogo = last_.endsWith(u'*') ? Left(last_, last_.size() - 1) : last_;
    }
    if (end_)
        start_ = false;
    return step;
}

} // namespace vanzer
