// SPDX-License-Identifier: MIT
#include "exchange/route_package.h"

#include <algorithm>
#include <array>
#include <string>

#include "core/text.h"
#include "core/text_file.h"

using namespace Qt::StringLiterals;

namespace vanzer {

namespace {

constexpr qsizetype shortestFile = 151; // characters
constexpr int headLines = 16;
constexpr int nameWidth = 30;
constexpr int lastColumn = 20;

const QString nessuna = QStringLiteral("\\"); // no road; also an instruction that is used up
const QString traghetto = QStringLiteral("TRAGH");

/// Columns from 1. Columns that a line lacks are empty.
using ColonneTappa = std::array<QString, lastColumn + 1>;

ColonneTappa EstraeColonneTappa(QStringView line) {
    ColonneTappa columns;
    qsizetype from = 0;
    for (std::size_t i = 1; i <= lastColumn && from < line.size(); ++i) {
        const qsizetype tab = line.indexOf(u'\t', from);
        const qsizetype end = tab < 0 ? line.size() : tab;
        columns[i] = Trim(line.mid(from, end - from).toString());
        from = end + 1;
    }
    return columns;
}

/// Position of a character from position `from` on, both counted from 1. 0 if there is none.
int posizioneDa(const QString& s, QChar c, int from) {
    return static_cast<int>(s.indexOf(c, from - 1)) + 1;
}

/// The text from position a to the position before b, counted from 1.
QString tra(const QString& s, int a, int b) {
    return Mid(s, a, Maggiore(b - a, 0));
}

int oltreLaFine(const QString& s) {
    return static_cast<int>(s.size()) + 1;
}

QString parola(const QString& s, int n) {
    return s.section(u' ', n - 1, n - 1, QString::SectionSkipEmpty);
}

QString senzaPrimaParola(const QString& s) {
    return s.section(u' ', 1, -1, QString::SectionSkipEmpty);
}

QString senza(QString s, const QString& part) {
    return s.remove(part, Qt::CaseInsensitive);
}

int posizioneVicino(const QString& s) {
    const int italian = posizione(s, u"vicino");
    return italian > 0 ? italian : posizione(s, u"near");
}

/// The state that both kinds of lists share: the current leg, and the legs so far.
class Percorso {
  public:
    [[nodiscard]] int km() const { return km_; }
    void setKm(int km) { km_ = km; }
    [[nodiscard]] int kmDallUltima() const { return addToInt(km_, -std::int64_t{kmLast_}); }

    [[nodiscard]] bool senzaStrade() const { return roads_.size() <= 1; }
    [[nodiscard]] bool hasRoad(const QString& road) const { return contains(roads_, road); }
    void addRoads(const QString& text) { roads_ += text; }

    [[nodiscard]] bool ultima(const QString& place) const { return uguale(place, last_); }

    /// Ends the current leg at the place.
    void chiude(const QString& place) {
        last_ = place;
        const QString roads = Mid(roads_, 2);
        legs_.push_back({maiuscolo(Trim(beginsWith(place, u"vicino a") ? Mid(place, 10) : place)), Trim(roads),
                         kmDallUltima(), km_, beginsWith(roads, u"A"), contains(roads, traghetto)});
        roads_ = nessuna;
        kmLast_ = km_;
    }

    [[nodiscard]] std::vector<TappaImportata>&& tappe() { return std::move(legs_); }

  private:
    int km_ = 0;
    int kmLast_ = 0;
    QString roads_ = nessuna; // the roads stand after the first character
    QString last_;
    std::vector<TappaImportata> legs_;
};

/// Lists of time, kilometres, instruction. The steps of a row share one instruction. Each works on what the step before
/// has left.
class ListaOraria {
  public:
    void riga(const ColonneTappa& columns) {
        km_ = roundToInt(Val(columns[2]));
        instruction_ = columns[3];
        place_.clear();
        prepare();
        nonLuogo();
        partenza();
        arrivo();
        passaggio();
        confine();
        traghetti();
        closeLeg();
        seguita();
    }

    [[nodiscard]] Percorso& percorso() { return route_; }

  private:
    void prepare() {
        instruction_ =
            Trim(senza(senza(instruction_, QStringLiteral("*Toll road*")), QStringLiteral("*gate access required*")));
        if (const int comma = posizioneDa(instruction_, u',', 1); comma > 0 && beginsWith(instruction_, u"At exit"))
            instruction_ = Mid(instruction_, comma + 2);
        if (contains(instruction_, u"arrive"))
            instruction_ =
                Trim(instruction_.replace(QStringLiteral("arrive"), QStringLiteral("At "), Qt::CaseInsensitive));
        word_ = parola(instruction_, 1);
    }

    /// Ignores rows without a place: those that are near one, and the head row.
    void nonLuogo() {
        if (parolaE(u"vicino") || parolaE(u"near")) {
            word_ = parola(instruction_, 2);
            esaurita();
        }
        if (parolaE(u"Istruzioni") || parolaE(u"instruction"))
            esaurita();
    }

    /// Takes the place of the first departure. Later ones don't count.
    void partenza() {
        constexpr int pastNear = 9;
        if (departed_ || !(beginsWith(word_, u"partenza") || beginsWith(word_, u"depart")))
            return;
        const int near = posizioneVicino(instruction_);
        place_ = Trim(near > 0 ? Mid(instruction_, near + pastNear) : senzaPrimaParola(instruction_));
        departed_ = true;
        esaurita();
    }

    void arrivo() {
        constexpr int pastNear = 7;
        if (!beginsWith(word_, u"arriv"))
            return;
        if (const int near = posizioneVicino(instruction_); near > 0)
            instruction_ = Mid(instruction_, near + pastNear);
        place_ = parola(instruction_, 2);
        readKm();
        esaurita();
    }

    void passaggio() {
        constexpr int pastAt = 3;
        constexpr int pastPresso = 8;
        int from = 0;
        int end = 0;
        if (parolaE(u"a") ||
            (parolaE(u"at") && !contains(instruction_, u"exit") && !contains(instruction_, u"roundabout"))) {
            from = pastAt;
            end = primaDellaVirgola(from);
            readKm();
        }
        if (beginsWith(instruction_, u"at exit")) {
            const int bracket = posizioneDa(instruction_, u'[', 1);
            from = bracket > 0 ? bracket + 1 : 0;
            end = posizioneDa(instruction_, u']', 1);
            readKm();
        }
        if (parolaE(u"presso")) {
            from = pastPresso;
            end = primaDellaVirgola(from);
            readKm();
        }
        if (from > 0)
            place_ = Trim(
                senza(senza(tra(instruction_, from, end), QStringLiteral("Échangeur de")), QStringLiteral("Svincolo")));
    }

    void confine() {
        const QString entering = QStringLiteral("Entering");
        if (!parolaE(u"Ingresso") && !parolaE(entering))
            return;
        readKm();
        place_ = instruction_;
        place_.replace(entering, QStringLiteral("Ingresso in"), Qt::CaseInsensitive);
    }

    void traghetti() {
        constexpr int past = 4; // length of a star and what stands between it and the name, or of " su "
        if (contains(instruction_, u"controllo orari")) {
            int from = posizioneDa(instruction_, u'*', past) + past;
            int end = posizioneDa(instruction_, u',', from);
            if (end == 0) {
                from = posizione(instruction_, u" su ") + past;
                end = posizioneDa(instruction_, u'(', from);
            }
            if (from > past) {
                place_ = tra(instruction_, from, end > 0 ? end : oltreLaFine(instruction_));
                route_.addRoads(traghetto + u' ');
            }
            readKm();
        }
        if (contains(instruction_, u"check timetable"))
            route_.addRoads(traghetto + u' ');
    }

    void closeLeg() {
        if (place_.isEmpty() || route_.ultima(place_))
            return;
        if (route_.senzaStrade()) {
            findRoad();
            instruction_.clear();
            route_.addRoads(road_);
        }
        route_.chiude(place_);
        road_.clear();
    }

    /// Adds the road that the row leads to. It belongs to the leg that begins now.
    void seguita() {
        constexpr int shortestRoad = 2;
        findRoad();
        if (road_.size() >= shortestRoad && !route_.hasRoad(road_))
            route_.addRoads(road_ + u' ');
    }

    [[nodiscard]] bool parolaE(QStringView word) const { return uguale(word_, word); }
    void esaurita() { instruction_ = nessuna; }
    void readKm() { route_.setKm(km_); }
    [[nodiscard]] int primaDellaVirgola(int from) const {
        const int comma = posizioneDa(instruction_, u',', from);
        return comma > 0 ? comma : oltreLaFine(instruction_);
    }
    void findRoad() {
        if (const auto road = RilevaStradaCorrente(instruction_))
            road_ = *road;
    }

    Percorso route_;
    bool departed_ = false;
    QString road_; // of the last row that named one; cleared at the end of a leg
    // the current row
    int km_ = 0;
    QString instruction_;
    QString word_;
    QString place_;
};

/// Lists of place, direction, distance.
class ListaLuoghi {
  public:
    void riga(const ColonneTappa& columns) {
        if (std::ranges::all_of(columns, &QString::isEmpty))
            return;
        if (!head_) {
            readHead(columns);
            return;
        }
        const QString& counter = columns[kmColumn_];
        place_ = columns[1];
        direction_ = columns[2];
        const int passes = contains(direction_, u"confine") ? 2 : 1;
        for (int pass = 1; pass <= passes; ++pass) {
            const int raw = contains(counter, u"KM") ? roundToInt(Val(counter)) : 0;
            const bool without = bracketedRoad();
            splitRoad(without);
            if (Trim(place_).isEmpty())
                luogoDallaDirezione();
            tally(raw);
            EstraeTappaStrada();
            if (closeLeg())
                break;
            place_.clear();
        }
    }

    [[nodiscard]] Percorso& percorso() { return route_; }

  private:
    void readHead(const ColonneTappa& columns) {
        head_ = true;
        const auto found =
            std::ranges::find_if(columns, [](const QString& head) { return uguale(head, u"posizione opposta"); });
        kmColumn_ = found == columns.end() ? 0 : static_cast<std::size_t>(found - columns.begin());
    }

    /// Moves a road in brackets from the front of the place to the road. True if the column names no place.
    bool bracketedRoad() {
        bool without = false;
        if (place_.startsWith(u'-')) {
            place_.remove(0, 1);
            without = true;
        }
        if (!place_.startsWith(u'('))
            return without;
        const int end = posizioneDa(place_, u')', 1);
        road_ = tra(place_, 2, end > 0 ? end : oltreLaFine(place_));
        place_ = end > 0 ? Trim(Mid(place_, end + 1)) : QString();
        if (!place_.isEmpty()) {
            place_ = place_.section(u'(', 0, 0);
            return without;
        }
        place_ = road_;
        return true;
    }

    void splitRoad(bool without) {
        if (without) {
            road_ = place_;
            place_.clear();
            return;
        }
        const int open = posizioneDa(place_, u'(', 1);
        if (open == 0 || !road_.isEmpty())
            return;
        const int end = posizioneDa(place_, u')', open);
        road_ = tra(place_, open + 1, end > 0 ? end : oltreLaFine(place_));
        place_ = Left(place_, open - 1);
    }

    void luogoDallaDirezione() {
        const QString toward = QStringLiteral("direzione di ");
        constexpr int pastVerso = 6;
        if (const int at = posizione(direction_, u"direzione di"); at > 0)
            place_ = QStringLiteral("Direzione ") + Mid(direction_, at + toward.size());
        if (contains(direction_, u"confine"))
            place_ = ingresso + u" in "_s + Mid(direction_, posizione(direction_, u"verso") + pastVerso);
        if (contains(direction_, u"traghetto"))
            route_.addRoads(traghetto);
    }

    /// Sets the kilometres. If the counter starts again, the count goes on from its last value.
    void tally(int raw) {
        if (raw < lastRaw_)
            correction_ = addToInt(correction_, lastRaw_);
        lastRaw_ = raw;
        route_.setKm(addToInt(raw, correction_));
    }

    /// Separates place and road, which share a column, and shortens the place.
    void EstraeTappaStrada() {
        QString number;
        std::ranges::copy_if(place_, std::back_inserter(number), [](QChar c) { return cifra(c) || c == u'/'; });
        if (const int at = number.isEmpty() ? 0 : posizione(place_, number); at > 0) {
            road_ = Mid(place_, at);
            place_ = Left(place_, at - 1);
        }
        place_ = place_.section(u',', 0, 0);
        if (const QString direction = Trim(direction_);
            road_.isEmpty() && !direction.isEmpty() && cifra(direction.back()))
            road_ = direction.section(u' ', -1);
        if (place_.size() + 1 + road_.size() > nameWidth)
            place_ = place_.section(u'(', 0, 0);
        shortenRepublic();
        if (place_.contains(u'(') && !place_.contains(u')'))
            place_ = Trim(place_.section(u'(', 0, 0));
    }

    /// Shortens "Repubblica Ceca" to "Rep.  Ceca".
    void shortenRepublic() {
        constexpr int kept = 3;
        const int at = posizione(place_, u"REPUBBL");
        if (at == 0)
            return;
        const int blank = posizioneDa(place_, u' ', at);
        place_ = Left(place_, at + kept - 1) + u". "_s + (blank > 0 ? Mid(place_, blank) : QString());
    }

    /// Ends the leg. True if it was the entry into a country, which ends the row.
    bool closeLeg() {
        const bool entry = contains(place_, ingresso);
        if (entry || (!place_.isEmpty() && route_.kmDallUltima() >= 1 && !route_.ultima(place_))) {
            if (!road_.isEmpty() && !route_.hasRoad(road_))
                route_.addRoads(Trim(road_) + u'\\');
            if (!route_.senzaStrade())
                road_.clear();
            route_.chiude(place_);
        }
        return entry;
    }

    static bool cifra(QChar c) { return c >= u'0' && c <= u'9'; }

    const QString ingresso = QStringLiteral("Ingresso");

    Percorso route_;
    bool head_ = false;
    std::size_t kmColumn_ = 0; // 0 if there is none; column 0 is always empty
    int lastRaw_ = 0;
    int correction_ = 0; // kilometres
    QString road_;       // kept until a leg takes it
    // the current row
    QString place_;
    QString direction_;
};

Pacchetto formatoDellaTesta(const ColonneTappa& c) {
    const auto endsIn = [&c](QStringView end) { return c[1].endsWith(end, Qt::CaseInsensitive); };
    constexpr int behindMark = 3;
    if (endsIn(u"ora") && uguale(c[2], u"km") && uguale(c[3], u"istruzioni"))
        return Pacchetto::MapPointItaliano;
    if (uguale(Mid(c[1], behindMark), u"località") && uguale(c[2], u"direzione") && uguale(c[3], u"distanza"))
        return Pacchetto::Autoroute;
    if (endsIn(u"time") && uguale(c[2], u"km") && uguale(c[3], u"instruction"))
        return Pacchetto::MapPointInglese;
    return Pacchetto::Sconosciuto;
}

/// Reads the lines up to the head row, which stays the current one.
Pacchetto recognise(RigheTesto& lines) {
    auto found = Pacchetto::Sconosciuto;
    while (found == Pacchetto::Sconosciuto && lines.numero() < headLines && lines.prossima())
        found = formatoDellaTesta(EstraeColonneTappa(lines.riga()));
    return found;
}

/// Reads the rows from the head row to the end of the file.
template<typename Lista> std::vector<TappaImportata> readRows(RigheTesto& lines) {
    Lista list;
    do {
        list.riga(EstraeColonneTappa(lines.riga()));
    } while (lines.prossima());
    return list.percorso().tappe();
}

std::string mascheraStrada(QStringView text) {
    std::string mask(static_cast<std::size_t>(text.size()), '0');
    std::ranges::transform(text, mask.begin(), [](QChar c) {
        if (c == u'[' || c == u']')
            return '2';
        return (c >= u'0' && c <= u'9') || (c >= u'A' && c <= u'Z') ? '1' : '0';
    });
    return mask;
}

/// The road in a text. One character stands before it.
QString stradaNel(QString text) {
    std::string mask = mascheraStrada(text);
    const auto begin = [&](std::size_t at) {
        mask.erase(0, at);
        text.remove(0, static_cast<qsizetype>(at));
    };
    QString road;
    if (const std::size_t bracket = mask.rfind("21"); bracket != std::string::npos) {
        begin(bracket);
        const std::size_t end = std::min(mask.find('2', 1), mask.size() - 1);
        if (mask.find_first_not_of('1', 1) >= end)
            road = text.mid(1, static_cast<qsizetype>(end) - 1);
    }
    if (const std::size_t run = mask.rfind("011"); road.isEmpty() && run != std::string::npos) {
        begin(run + 1);
        const std::size_t end = mask.find("10");
        road = end == std::string::npos ? text : text.left(static_cast<qsizetype>(end) + 1);
    }
    for (const auto* const turn : {u"RIGHT", u"LEFT", u"DESTRA", u"SINISTRA"})
        road = senza(road, QString::fromUtf16(turn));
    return road;
}

} // namespace

std::optional<QString> RilevaStradaCorrente(const QString& instruction) {
    struct Parola {
        QStringView testo;
        int salto; // characters from the word's start to the one before the road
    };
    static constexpr std::array words{Parola{u" onto ", 4}, Parola{u" su ", 2}, Parola{u" on ", 2}, Parola{u" [", 0}};
    for (const Parola& word : words) {
        if (const int at = posizione(instruction, word.testo); at > 0)
            return stradaNel(Mid(instruction, at + word.salto));
    }
    return std::nullopt;
}

PercorsoImportato readPackage(const QByteArray& contents) {
    if (contents.size() < shortestFile)
        return {};
    RigheTesto lines(contents);
    const Pacchetto format = recognise(lines);
    switch (format) {
    case Pacchetto::MapPointItaliano:
    case Pacchetto::MapPointInglese: return {format, readRows<ListaOraria>(lines)};
    case Pacchetto::Autoroute: return {format, readRows<ListaLuoghi>(lines)};
    case Pacchetto::Sconosciuto: break;
    }
    return {};
}

} // namespace vanzer
