// SPDX-License-Identifier: MIT
#include "exchange/itn_filter.h"

#include <algorithm>
#include <map>
#include <set>
#include <unordered_map>
#include <unordered_set>

#include "core/columns.h"
#include "core/text.h"
#include "core/text_file.h"

using namespace Qt::StringLiterals;

namespace vanzer {

namespace {

constexpr QStringView segno = u"[0"; // begins the mark of a leg with a stop
constexpr int cifreSegno = 5;
constexpr qsizetype lungoSegno = cifreSegno + 2;

bool isNumber(const QString& text) {
    const QString trimmed = Trim(text);
    bool digit = false;
    for (const QChar c : trimmed) {
        const bool d = c >= u'0' && c <= u'9';
        if (!d && !QStringView(u"+-.,").contains(c))
            return false;
        digit = digit || d;
    }
    return digit;
}

/// The longest of the columns of a name. If several are equally long, the first of them.
QString longestPart(QString name) {
    Colonne columns;
    SeparaColonne(name, columns);
    QString longest;
    for (int i = 1; i <= columns.numero; ++i) {
        if (columns(i).size() > longest.size())
            longest = columns(i);
    }
    return longest;
}

/// Finds the rows whose place begins with a stop's name. One pass over the places serves all stops.
class RighePerInizio {
  public:
    RighePerInizio(const QStringList& places, const QStringList& stops) : stops_(stops) {
        std::set<qsizetype> lengths;
        for (const QString& stop : stops_) {
            lengths.insert(stop.size());
            rows_.try_emplace(stop);
        }
        for (qsizetype row = 0; row < places.size(); ++row) {
            const QStringView place = places[row];
            for (const qsizetype length : lengths) {
                if (length > place.size())
                    break;
                if (const auto found = rows_.find(place.left(length)); found != rows_.end())
                    found->second.rows.push_back(row);
            }
        }
    }

    /// The first row for the stop that isn't taken yet. -1 if there is none.
    qsizetype prima(qsizetype stop, const std::vector<bool>& taken) {
        Fila& line = rows_.at(stops_[stop]);
        while (line.next < line.rows.size() && taken[static_cast<std::size_t>(line.rows[line.next])])
            ++line.next;
        return line.next < line.rows.size() ? line.rows[line.next] : -1;
    }

  private:
    struct Fila {
        std::vector<qsizetype> rows;
        std::size_t next = 0;
    };
    const QStringList& stops_;
    std::unordered_map<QStringView, Fila> rows_;
};

/// Finds the places that contain a text, by their runs of three letters. Equal places are looked at once.
class RighePerContenuto {
  public:
    explicit RighePerContenuto(const QStringList& places) : places_(places) {
        std::unordered_set<QStringView> seen;
        for (qsizetype row = 0; row < places.size(); ++row) {
            if (seen.insert(places[row]).second)
                nota(row);
        }
    }

    /// Adds a text after the place of a row. It is searched too from now on.
    void append(qsizetype row, const QString& text) { marks_[row] += text; }

    /// The first row that contains the text. -1 if there is none.
    [[nodiscard]] qsizetype prima(const QString& part) const {
        const qsizetype named = firstNamed(part);
        if (!mayMeetMark(part))
            return named;
        const auto holds = [&](const auto& mark) { return (places_[mark.first] + mark.second).contains(part); };
        const auto marked = std::ranges::find_if(marks_, holds);
        return marked != marks_.end() && (named < 0 || marked->first < named) ? marked->first : named;
    }

  private:
    using Righe = std::vector<qsizetype>; // ascending; of equal places only the first
    static constexpr int run = 3;

    static quint64 chiave(const QString& text, qsizetype at) {
        quint64 key = 0;
        for (qsizetype i = at; i < at + run; ++i)
            key = key << 16U | text[i].unicode();
        return key;
    }

    void nota(qsizetype row) {
        const QString& place = places_[row];
        names_.push_back(row);
        for (qsizetype at = 0; at + run <= place.size(); ++at) {
            Righe& rows = rows_[chiave(place, at)];
            if (rows.empty() || rows.back() != row)
                rows.push_back(row);
        }
    }

    /// Whether a text may lie in a mark, at least in part. As it has no blanks at its ends, it then has a bracket or
    /// consists of digits.
    static bool mayMeetMark(const QString& part) {
        return part.contains(u'[') || part.contains(u']') ||
               std::ranges::all_of(part, [](QChar c) { return c >= u'0' && c <= u'9'; });
    }

    [[nodiscard]] qsizetype firstNamed(const QString& part) const {
        const Righe* fewest = &names_;
        for (qsizetype at = 0; at + run <= part.size(); ++at) {
            const auto found = rows_.find(chiave(part, at));
            if (found == rows_.end())
                return -1;
            if (found->second.size() < fewest->size())
                fewest = &found->second;
        }
        const auto first = std::ranges::find_if(*fewest, [&](qsizetype row) { return places_[row].contains(part); });
        return first == fewest->end() ? -1 : *first;
    }

    const QStringList& places_;
    Righe names_;
    std::unordered_map<quint64, Righe> rows_;
    std::map<qsizetype, QString> marks_;
};

bool isEntry(const QString& place) {
    return beginsWith(place, u"Ingresso");
}

QString withoutZeros(QString marks) {
    while (marks.contains(segno))
        marks.replace(segno.toString(), QStringLiteral("["));
    return marks;
}

/// The place with its stop's number, without leading zeros. Several numbers become the range from the first to the
/// last.
QString shortMarks(const QString& place) {
    const qsizetype first = place.indexOf(segno);
    if (first < 0 || place.indexOf(segno, first + 1) < 0)
        return withoutZeros(place);
    const QString marks = place.mid(first);
    return place.left(first) + withoutZeros(marks.left(lungoSegno) + marks.right(lungoSegno))
                                   .replace(QStringLiteral("]["), QStringLiteral("-"));
}

/// The name of a leg that remains.
QString shownName(QString place, int nameSize) {
    constexpr int behindEntry = 13; // "Ingresso in "
    if (isEntry(place))
        place = QStringLiteral("Ingresso in ") + PrimoMaiuscolo(Mid(place, behindEntry), false);
    else
        place = shortMarks(place);
    if (contains(place, u"[Park]"))
        place.replace(QStringLiteral("Park] ["), QStringLiteral("Park: "), Qt::CaseInsensitive);
    const qsizetype bracket = place.indexOf(u'[');
    return bracket > nameSize ? Left(place, nameSize) + place.mid(bracket) : place;
}

} // namespace

QStringList readDestinations(const QByteArray& contents) {
    constexpr int numberWidth = 4;
    QStringList stops;
    for (RigheTesto lines(contents); lines.prossima();) {
        const QString line = lines.riga().toString();
        if (isNumber(Left(line, numberWidth)))
            stops << Trim(line.section(u',', -1).remove(u'"'));
    }
    return stops;
}

void markDestinations(std::vector<RigaPercorso>& legs, const QStringList& stops) {
    QStringList places;
    std::vector<bool> marked;
    places.reserve(static_cast<qsizetype>(legs.size()));
    marked.reserve(legs.size());
    for (const RigaPercorso& leg : legs) {
        places << senzaMaiuscole(leg.luogo);
        marked.push_back(leg.luogo.contains(segno));
    }
    QStringList names;
    names.reserve(stops.size());
    for (const QString& stop : stops)
        names << senzaMaiuscole(stop);
    RighePerInizio byStart(places, names);
    RighePerContenuto byContents(places);
    for (qsizetype i = 0; i < stops.size(); ++i) {
        if (stops[i].isEmpty())
            continue;
        qsizetype row = byStart.prima(i, marked);
        if (row < 0) {
            const QString part = senzaMaiuscole(longestPart(stops[i]));
            row = part.isEmpty() ? -1 : byContents.prima(part);
        }
        if (row < 0)
            continue;
        const QString mark = u" ["_s + Zero(static_cast<double>(i + 1), cifreSegno) + u']';
        const auto at = static_cast<std::size_t>(row);
        legs[at].luogo += mark;
        marked[at] = legs[at].luogo.contains(segno);
        byContents.append(row, mark);
    }
}

std::vector<RigaRimasta> foldLegs(const std::vector<RigaPercorso>& legs, int nameSize) {
    std::vector<RigaRimasta> left;
    QString roads;
    int km = 0;
    for (std::size_t i = 0; i < legs.size(); ++i) {
        const RigaPercorso& leg = legs[i];
        if (!contains(roads, leg.strade))
            roads += (roads.isEmpty() ? u""_s : u" "_s) + leg.strade;
        km = addToInt(km, leg.km);
        if (!leg.luogo.contains(segno) && !isEntry(leg.luogo))
            continue;
        left.push_back({static_cast<int>(i) + 1, {shownName(leg.luogo, nameSize), roads, km}});
        roads.clear();
        km = 0;
    }
    return left;
}

QString senzaNumerazione(const QString& place) {
    const qsizetype last = place.lastIndexOf(u'[');
    return Trim(last < 0 ? place : place.left(last));
}

} // namespace vanzer
