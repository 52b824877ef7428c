// SPDX-License-Identifier: MIT
#include "reports/calendar_file.h"

#include <map>

#include <QCryptographicHash>

#include "core/text.h"
#include "core/time_values.h"

namespace vanzer {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype longestLine = 75; // bytes, including the blank that continues a folded line

bool endsLine(QChar c) {
    return QStringView(u"\n\v\f\r\u0085\u2028\u2029").contains(c);
}

/// A property's text on one line. Line ends are escaped, other control characters are left out.
QString escaped(QString text) {
    text.replace(u"\r\n"_s, u"\n"_s).replace(u'\t', u' ');
    QString result;
    for (const QChar c : text) {
        if (endsLine(c))
            result += u"\\n"_s;
        else if (c == u'\\' || c == u';' || c == u',')
            (result += u'\\') += c;
        else if (c.category() != QChar::Other_Control)
            result += c;
    }
    return result;
}

/// Folds a long line. A fold never splits a character.
QByteArray folded(const QString& line) {
    const QByteArray bytes = line.toUtf8();
    QByteArray result;
    qsizetype width = 0;
    for (qsizetype at = 0; at < bytes.size();) {
        qsizetype next = at + 1;
        while (next < bytes.size() && (static_cast<unsigned char>(bytes[next]) & 0xC0U) == 0x80U)
            ++next;
        if (width + next - at > longestLine) {
            result += "\r\n ";
            width = 1;
        }
        result += bytes.mid(at, next - at);
        width += next - at;
        at = next;
    }
    return result + "\r\n";
}

QString floating(const LineaDelTempo& line, double hundredths) {
    const Istante moment = istante(line, hundredths);
    const Gma date = Giul2Data(moment.giuliano);
    return Zero(date.anno, 4) + Zero(date.mese, 2) + Zero(date.giorno, 2) + u'T' + Zero(moment.ora, 2) +
           Zero(moment.minuti, 2) + u"00"_s;
}

struct Evento {
    Attivita attivita; ///< a stop of several days lasts from its first piece to its last
    double spesa = 0;  ///< hundredths of an hour without the nights between the pieces
};

std::vector<Evento> events(const LineaDelTempo& line) {
    using enum Attivita::Tipo;
    std::vector<Evento> found;
    std::map<int, std::size_t> stops; // by row
    for (const Attivita& activity : line.attivita) {
        if (activity.tipo != Guida && activity.tipo != Sosta && activity.tipo != Notte)
            continue;
        if (activity.tipo == Sosta) {
            const auto [at, fresh] = stops.try_emplace(activity.riga, found.size());
            if (!fresh) {
                found[at->second].attivita.fine = activity.fine;
                found[at->second].spesa += activity.durata();
                continue;
            }
        }
        found.push_back({activity, activity.durata()});
    }
    return found;
}

QString title(const Attivita& activity) {
    switch (activity.tipo) {
    case Attivita::Tipo::Guida: return u"Guida: "_s + activity.nome;
    case Attivita::Tipo::Notte: return u"Notte: "_s + activity.nome;
    default: return activity.nome;
    }
}

QString details(const Evento& event) {
    const Attivita& activity = event.attivita;
    QStringList parts;
    if (!activity.nota.isEmpty())
        parts << activity.nota;
    if (activity.km > 0)
        parts << QString::number(activity.km) + u" km"_s;
    parts << u"ore "_s + ghmSenzaGiorni(static_cast<float>(event.spesa), giornoIntero);
    return parts.join(u", "_s);
}

} // namespace

QByteArray calendario(const QString& trip, const LineaDelTempo& line, const QDateTime& now) {
    QByteArray file;
    const auto write = [&file](const QString& text) { file += folded(text); };
    write(u"BEGIN:VCALENDAR"_s);
    write(u"VERSION:2.0"_s);
    write(u"PRODID:-//Vanzer//Vanzer//IT"_s);
    write(u"CALSCALE:GREGORIAN"_s);
    write(u"METHOD:PUBLISH"_s);
    write(u"X-WR-CALNAME:"_s + escaped(trip));
    const QString made = now.toUTC().toString(u"yyyyMMdd'T'HHmmss'Z'"_s);
    std::map<QString, int> met;
    for (const Evento& event : events(line)) {
        const Attivita& activity = event.attivita;
        const QString kind = nomeAttivita(activity.tipo);
        const QString key = QStringList{trip, kind, activity.luogo, activity.nome}.join(u'\n');
        const QString numbered = key + u'\n' + QString::number(++met[key]);
        const QByteArray hash = QCryptographicHash::hash(numbered.toUtf8(), QCryptographicHash::Sha1).toHex();
        write(u"BEGIN:VEVENT"_s);
        write(u"UID:"_s + QString::fromLatin1(hash) + u"@vanzer"_s);
        write(u"DTSTAMP:"_s + made);
        write(u"DTSTART:"_s + floating(line, activity.inizio));
        write(u"DTEND:"_s + floating(line, activity.fine));
        write(u"SUMMARY:"_s + escaped(title(activity)));
        if (!activity.luogo.isEmpty())
            write(u"LOCATION:"_s + escaped(activity.luogo));
        write(u"DESCRIPTION:"_s + escaped(details(event)));
        write(u"CATEGORIES:"_s + escaped(kind));
        write(u"END:VEVENT"_s);
    }
    write(u"END:VCALENDAR"_s);
    return file;
}

} // namespace vanzer
