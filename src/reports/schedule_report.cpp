// SPDX-License-Identifier: MIT
#include "reports/schedule_report.h"

#include <algorithm>
#include <cmath>

#include "core/text.h"
#include "core/time_values.h"
#include "schedule/rows.h"

namespace vanzer {

using enum Posizione;

namespace {

constexpr double lastScheduleLine = 285; ///< mm; a row below it goes to the next page
constexpr int printedColumns = 13;

struct Colonna {
    const char16_t* heading;
    double width; ///< mm
    Posizione headAt;
    Posizione cellAt;
};
constexpr double firstEdge = 12; ///< mm
constexpr double lastEdge = 200; ///< mm
constexpr std::array<Colonna, printedColumns> columns{{{u"N.", 6, Centro, Destra},
                                                       {u"Località", 48, Sinistra, Sinistra},
                                                       {u"Num.Strada", 18, Centro, Centro},
                                                       {u"Km", 8, Centro, Destra},
                                                       {u"Str.", 5, Centro, Centro},
                                                       {u"", 10, Destra, Destra},
                                                       {u"Tempo", 10, Centro, Centro},
                                                       {u"Itinerario", 10, Centro, Centro},
                                                       {u"Sosta max", 10, Centro, Centro},
                                                       {u"Giorno", 8, Centro, Centro},
                                                       {u"Data", 8, Centro, Centro},
                                                       {u"Ora", 8, Sinistra, Centro},
                                                       {u"Note", 20, Sinistra, Sinistra}}};
/// Numbers of printed columns, from 1.
constexpr std::size_t colLuogo = 2;
constexpr std::size_t colVia = 3;
constexpr std::size_t colItinerario = 8;
constexpr std::size_t colSostaMassima = 9;
constexpr std::size_t colNota = 13;
constexpr std::size_t oltreNota = 14;  ///< right edge of the table
constexpr std::size_t dentroNota = 15; ///< where the second part of a note begins

/// Left edges of the columns in mm, from 1. The right edge of the table and the working edge of the notes follow.
constexpr std::array<double, 17> baseEdges = [] {
    std::array<double, 17> edges{};
    edges[1] = firstEdge;
    for (std::size_t i = 1; i <= printedColumns; ++i)
        edges[i + 1] = edges[i] + columns[i - 1].width;
    edges[dentroNota] = edges[colNota];
    edges[oltreNota] = lastEdge;
    return edges;
}();

/// Moves an edge to a whole millimetre.
void move(double& edge, double to) {
    edge = roundToInt(to);
}

Stile bold(double size, Posizione at = Sinistra) {
    return {.dimensione = size, .grassetto = true, .posizione = at};
}
Stile italic(double size, Posizione at = Sinistra) {
    return {.dimensione = size, .corsivo = true, .posizione = at};
}
Stile boldItalic(double size, Posizione at = Sinistra) {
    return {.dimensione = size, .grassetto = true, .corsivo = true, .posizione = at};
}
Stile plain(double size, Posizione at = Sinistra) {
    return {.dimensione = size, .posizione = at};
}

QString dateText(const std::array<QString, 3>& date) {
    return date[0] + u'/' + date[1] + u'/' + date[2];
}

QString clockText(const DatiViandoria::Orologio& clock) {
    return clock.ore + u':' + clock.minuti;
}

/// Whether a text has only digits, points and commas, with or without a sign in front.
bool isNumber(const QString& text) {
    const QStringView digits = QStringView(text).mid(text.startsWith(u'-') || text.startsWith(u'+') ? 1 : 0);
    const auto belongs = [](QChar c) { return (c >= u'0' && c <= u'9') || c == u'.' || c == u','; };
    return std::ranges::all_of(digits, belongs) && std::ranges::any_of(digits, [](QChar c) { return c.isDigit(); });
}

/// Whether a cell opens a stop: ">" is the first character, or the second after a blank.
bool opensStop(const QString& cell) {
    return Trim(Left(cell, 2)).startsWith(u'>');
}

QString without(QString text, QStringView marks) {
    text.removeIf([marks](QChar c) { return marks.contains(c); });
    return text;
}

/// The text without the word that begins with "(Tr".
QString withoutFerry(const QString& text) {
    const int word = posizione(text, u"(Tr");
    if (word == 0)
        return text;
    const qsizetype behind = (text + u' ').indexOf(u' ', word - 1);
    return Trim(Left(text, word - 1)) + u' ' + Trim(Mid(text, behind + 1));
}

struct DueRighe {
    QString sopra;
    QString sotto;
};

/// A road on two lines. It is split at the first blank in its second half, else at the last blank in its first half,
/// else in the middle.
DueRighe splitRoad(const QString& text) {
    const qsizetype half = (text.size() + 1) / 2;
    qsizetype blank = text.indexOf(u' ', half - 1);
    if (blank < 0)
        blank = text.lastIndexOf(u' ', half - 1);
    const qsizetype at = blank < 0 ? text.size() / 2 : blank;
    return {Trim(text.left(at)), Trim(text.mid(at))};
}

} // namespace

ReportViandoria::ReportViandoria(Foglio& sheet, const DatiViandoria& trip, const Piede& foot, CellaViandoria cell)
    : sheet_(sheet), trip_(trip), foot_(foot), cell_(std::move(cell)) {}

void ReportViandoria::frontespizioGenerale(const VociFrontespizio& titles) {
    static constexpr std::array<const char16_t*, 4> names{u"Viandoria", u"Diario di Bordo", u"Mappe itinerario",
                                                          u"Mappe città"};
    std::vector<QString> chosen;
    for (std::size_t i = names.size(); i-- > 0;) {
        if (titles[i])
            chosen.push_back(QString::fromUtf16(names[i]));
    }
    cover(chosen);
}

void ReportViandoria::frontespizioViandoria() {
    cover({QStringLiteral("Viandoria")});
}

namespace {

constexpr double titleSize = 48; ///< points

/// The trip's name on one to three lines. A number at its end gets a line of its own, and a name that is too wide is
/// halved.
std::vector<QString> titleLines(Foglio& sheet, const QString& name) {
    constexpr double widest = 180; // mm
    std::vector<QString> lines{name};
    const qsizetype blank = name.lastIndexOf(u' ');
    if (blank >= 0 && isNumber(Trim(name.mid(blank))))
        lines = {Trim(name.left(blank)), Trim(name.mid(blank))};
    const QString first = lines.front();
    if (sheet.larghezza(first, plain(titleSize)) <= widest)
        return lines;
    const qsizetype half = roundToInt(static_cast<double>(first.size()) / 2);
    qsizetype at = first.indexOf(u' ', half - 1);
    if (at < 0)
        at = first.lastIndexOf(u' ', half - 1);
    if (at < 0)
        at = half - 1;
    lines.front() = Trim(first.left(at));
    lines.insert(lines.begin() + 1, Trim(first.mid(at)));
    return lines;
}

} // namespace

void ReportViandoria::cover(const std::vector<QString>& titles) {
    // mm
    constexpr double height = 280;
    constexpr double left = 16;
    constexpr double right = 195;
    sheet_.riquadro(15, 15, right, height);
    sheet_.immagine(Immagine::LogoSito, 22, 20, 15);
    sheet_.immagine(Immagine::Logo, 170, 19, 18);
    const std::vector<QString> lines = titleLines(sheet_, trip_.localita);
    double y = height / 2 - 5;
    for (const QString& line : lines) {
        text(line, y, left, right, bold(titleSize, Centro));
        y += 20;
    }
    y = height - 50;
    for (const QString& title : titles) {
        text(title, y, 15, right, bold(36, Centro));
        y -= 20;
    }
    text(dateText(trip_.inizio) + u'-' + dateText(trip_.fine), height - 20, left, right, bold(24, Centro));
    text(foot_.finestra, height - 5, 15, right, italic(8, Centro));
    sheet_.nuovaPagina();
}

void ReportViandoria::finePagina() {
    StampaFinePagina(sheet_, foot_, y_, top_, baseEdges[1], baseEdges[4], lastEdge);
}

void ReportViandoria::preparePage(int row) {
    if (y_ <= lastScheduleLine)
        return;
    finePagina();
    StampaIntestaPagina(row == 1);
}

void ReportViandoria::StampaIntestaPagina(bool first) {
    sheet_.setUp();
    sheet_.penna(3);
    sheet_.fill(verdeChiaro);
    sheet_.riquadro(40, 10, 130, 20);
    sheet_.riquadro(135, 10, 175, 20);
    sheet_.riquadro(180, 10, 200, 20);
    sheet_.immagine(Immagine::LogoSito, 10, 5, 15);
    text(trip_.localita, 18, 40, 130, bold(11, Centro));
    text(trip_.nazione, 18, 135, 175, plain(10, Centro));
    text(QStringLiteral("Pagina: ") + Zero(sheet_.pagina(), 2), 18, 180, 200, boldItalic(9, Centro));
    y_ = 22;
    if (first) {
        StampaCaratteristiche();
        y_ -= 1;
    }
    sheet_.penna(3);
    sheet_.fill(verdeChiaro);
    sheet_.riquadro(firstEdge - 2, y_, lastEdge, y_ + 6);
    sheet_.penna(1);
    sheet_.fill({});
    y_ += interlinea;
    headings(y_);
    top_ = roundToInt(y_ + 2.5);
    y_ = top_ + interlinea;
}

void ReportViandoria::headings(double y) {
    const double base = y + 0.5;
    for (std::size_t i = 1; i <= printedColumns; ++i) {
        if (i == colNota)
            text(QStringLiteral("Guide"), base, baseEdges[colNota], lastEdge, bold(8, Destra));
        text(QString::fromUtf16(columns[i - 1].heading), base, baseEdges[i], baseEdges[i + 1],
             bold(9, columns[i - 1].headAt));
    }
    for (std::size_t i = 2; i <= printedColumns; ++i)
        sheet_.linea(baseEdges[i] - 1, y - interlinea, baseEdges[i] - 1, y + 1.5);
    text(QStringLiteral("Km/Prog."), base, baseEdges[6] - 5, baseEdges[7] + 5, bold(8, Centro));
}

void ReportViandoria::StampaCaratteristiche() {
    sheet_.fill({});
    tripTimes(y_);
    roads(y_);
    dayTimes(y_);
    rests(y_);
    sheet_.fill(verdeChiaro);
    y_ += 23;
}

void ReportViandoria::tripTimes(double y) {
    sheet_.riquadro(10, y, 70, y + 21);
    text(QStringLiteral("Periodo del viaggio:"), y + 4, 12, 70, boldItalic(9));
    sheet_.linea(10, y + 5, 35, y + 5);
    text(QStringLiteral("Inizio:"), y + 9, 12, 35, boldItalic(8));
    text(trip_.giornoInizio + QStringLiteral(" - ") + dateText(trip_.inizio), y + 14, 11, 34, plain(8, Centro));
    text(QStringLiteral("alle ore ") + clockText(trip_.oraInizio), y + 19, 11, 34, plain(8, Centro));
    sheet_.linea(35, y + 5, 70, y + 5);
    sheet_.penna(1);
    sheet_.linea(35, y + 5, 35, y + 21);
    sheet_.penna(2);
    text(QStringLiteral("Fine:"), y + 9, 37, 69, boldItalic(8));
    text(trip_.giornoFine + QStringLiteral(" - ") + dateText(trip_.fine), y + 13, 35, 69, plain(8, Centro));
    text(QStringLiteral("alle ore ") + clockText(trip_.oraFine), y + 17, 35, 69, plain(8, Centro));
    text(QStringLiteral("dopo ") + trip_.giorni + QStringLiteral(" giorni e ") + Trim(trip_.kmTotali) +
             QStringLiteral(" Km."),
         y + 21, 38, 69, plain(8, Centro));
}

void ReportViandoria::roads(double y) {
    sheet_.riquadro(75, y, 125, y + 21);
    text(QStringLiteral("Percorrenze:"), y + 4, 76, 125, boldItalic(9));
    sheet_.linea(75, y + 4.4, 125, y + 4.4);
    const double b = y + 4.9;
    text(QStringLiteral("km/h"), b - 1, 95, 104, plain(8, Centro));
    text(QStringLiteral("Km."), b - 1, 102, 113, plain(8, Centro));
    text(QStringLiteral("Tempo"), b - 1, 112, 125, plain(8, Centro));
    const double ferries = Val(trip_.traghetti);
    const double step = ferries > 0 ? 3.2 : 4;
    double r = b + step + 0.2;
    for (std::size_t i = 0; i < trip_.strade.size(); ++i) {
        const DatiViandoria::Strada& road = trip_.strade[i];
        text(Left(road.nome, 1), r, 76, 125, boldItalic(8));
        text(road.nome, r, 79, 125, italic(8));
        text(road.media, r, 95, 103, plain(8, Centro));
        if (ValoreSenzaPunti(road.km) != 0) {
            text(road.km, r, 102, 114, plain(8, Destra));
            text(road.tempo, r, 113, 126, plain(8, Centro));
        }
        if (i + 1 < trip_.strade.size() || step < 4)
            sheet_.linea(75, r + 0.1, 125, r + 0.1);
        r += step;
    }
    if (ferries != 0)
        text(QStringLiteral("(sono previsti ") + trip_.traghetti + QStringLiteral(" traghetti)"), r, 78, 124,
             plain(8, Centro));
    for (const double x : {95.0, 102.0, 112.0})
        sheet_.linea(x, y, x, r - step);
}

void ReportViandoria::dayTimes(double y) {
    sheet_.riquadro(130, y, lastEdge, y + 21);
    text(QStringLiteral("Tempi tecnici giornalieri/Riposi/Visite:"), y + 4, 132, 200, boldItalic(9));
    sheet_.linea(130, y + 5, lastEdge, y + 5);
    const double b = y + 5;
    for (const double x : {165.0, 185.0})
        sheet_.linea(x, b, x, b + 16);
    sheet_.linea(165, b + 3, 200, b + 3);
    sheet_.linea(165, b + 9, 185, b + 9);
    sheet_.linea(165, b + 12.2, 185, b + 12.2);
    text(QStringLiteral("Orari attività"), b + 3, 165, 187, italic(7, Centro));
    text(QStringLiteral("Riposi"), b + 3, 185, 200, italic(7, Centro));
    static constexpr std::array<const char16_t*, 4> names{u"Colazione", u"Pranzo", u"Cena", u"Notte"};
    for (std::size_t k = 0; k < names.size(); ++k) {
        const double line = b + 4 * (static_cast<double>(k) + 1);
        text(QString::fromUtf16(names[k]), line, 131, 165, italic(8));
        text(clockText(trip_.orari[k]), line, 142, 165, plain(8));
        if (k == 1 || k == 2)
            text(QStringLiteral("(Pausa: ") + clockText(trip_.orari[k + 3]) + u')', line, 150, 165, plain(8));
        if (k + 1 < names.size())
            sheet_.linea(130, line + 0.22, 165, line + 0.22);
    }
}

void ReportViandoria::rests(double y) {
    const double c = y + 12;
    const auto visits = [&](const QString& s, double at, const Stile& style) { text(s, at, 166, 186, style); };
    visits(QStringLiteral("Dalle ") + clockText(trip_.orari[6]), c - 1, plain(7, Centro));
    visits(QStringLiteral("alle ") + clockText(trip_.orari[7]), c + 1.8, plain(7, Centro));
    visits(QStringLiteral("Arrotondamento orari"), c + 5.2, italic(7, Centro));
    visits(QStringLiteral("Minuti: ") + trip_.range, c + 8.8, plain(7, Centro));
    const auto pauses = [&](const QString& s, double at) { text(s, at, 186, 201, plain(7, Centro)); };
    pauses(trip_.riposoMinuti + QStringLiteral(" minuti"), c - 0.5);
    pauses(QStringLiteral("ogni ") + trip_.riposoOre + QStringLiteral(" ore;"), c + 2.5);
    pauses(trip_.riposoGiorni + QStringLiteral(" giorni"), c + 5.5);
    pauses(QStringLiteral("ogni ") + trip_.riposoDopoGiorni + QStringLiteral(" gg."), c + 8.5);
}

void ReportViandoria::StampaRiga(int row) {
    Edges x = baseEdges;
    std::size_t firstFilled = colItinerario; // from this column on, separators are drawn in any case
    for (std::size_t j = 1; j <= printedColumns; ++j) {
        const int column = static_cast<int>(j);
        if (!Trim(QStringView(cell_(row, column - 1))).isEmpty()) {
            if (j > colLuogo)
                firstFilled = std::min(firstFilled, j);
            cell(row, column, x);
            sheet_.SettaFontNamePrinter();
        }
        if (j == colLuogo || j >= firstFilled)
            sheet_.linea(x[j] - 1, y_ - interlinea, x[j] - 1, y_);
    }
    sheet_.linea(x[1] - 2, y_, lastEdge, y_);
    y_ += interlinea;
}

void ReportViandoria::cell(int row, int column, Edges& x) {
    const auto j = static_cast<std::size_t>(column);
    QString s = Trim(cell_(row, column - 1));
    Stile style{.posizione = columns[j - 1].cellAt};
    if (j == colVia) {
        road(s, x);
        return;
    }
    if (j == colLuogo)
        s = name(row, PrimoMaiuscolo(s, false), x, style.grassetto);
    style.corsivo = j == colSostaMassima || (j == colNota && contains(s, u"Riposo"));
    if (j == colNota && s.contains(u'[')) {
        note(s, style.corsivo, x);
        return;
    }
    text(s, y_, x[j], j == colLuogo ? x[colItinerario] : x[j + 1], style);
}

/// Prints a name. The group of an entry stands at the right of the row. A place that opens a run of stops is in bold
/// capitals.
QString ReportViandoria::name(int row, QString s, Edges& x, bool& heavy) {
    const int column = colTappa;
    const qsizetype star = s.indexOf(u'*');
    if (star >= 0 && (s.startsWith(u'>') || star == 0)) {
        const QString group = Trim(without(s.left(star), u">"));
        const Stile style = bold(10, Destra);
        text(group, y_, x[colLuogo], x[oltreNota] + 2, style);
        move(x[oltreNota], lastEdge - sheet_.larghezza(group, style) - 2);
        s = QStringLiteral(" > ") + Trim(s.mid(star + 1));
    }
    if (opensStop(cell_(row + 1, column)) && !opensStop(cell_(row, column)) && !cell_(row, colData).isEmpty()) {
        heavy = true;
        s = maiuscolo(s);
    }
    return withoutFerry(s);
}

void ReportViandoria::road(const QString& s, Edges& x) {
    // points
    constexpr double step = 0.3;
    constexpr double smallestOneLine = 7;
    constexpr double twoLines = 6.5;
    double size = 9;
    while (size > 0 && sheet_.larghezza(s, plain(size)) > x[colVia + 1] - x[colVia])
        size -= step;
    if (size >= smallestOneLine) {
        text(s, y_ - 0.4, x[colVia], x[colVia + 1], plain(size, Centro));
        return;
    }
    const DueRighe lines = splitRoad(s);
    for (const QString& line : {lines.sopra, lines.sotto}) {
        const double width = sheet_.larghezza(line, plain(twoLines));
        const double left = x[colVia + 1] - width + 2;
        if (width > columns[colVia - 1].width && left < x[colVia])
            move(x[colVia], left);
    }
    text(lines.sopra, y_ - 1.85, x[colVia], x[colVia + 1], plain(twoLines, Centro));
    text(lines.sotto, y_ + 0.2, x[colVia], x[colVia + 1], plain(twoLines, Centro));
}

void ReportViandoria::note(const QString& s, bool slanted, Edges& x) {
    const qsizetype bracket = s.indexOf(u'[');
    const QString before = Trim(s.left(bracket));
    const QString summary = s.mid(bracket);
    const auto style = [slanted](double size) { return Stile{.dimensione = size, .corsivo = slanted}; };
    const double beforeWidth = sheet_.larghezza(before, style(10));
    const double width = sheet_.larghezza(summary, style(10));
    text(before, y_, x[colNota], x[oltreNota], style(10));
    move(x[dentroNota], x[dentroNota] + beforeWidth + 2);
    const double left = x[dentroNota];
    const double right = x[oltreNota];
    const qsizetype semicolon = summary.indexOf(u';');
    if (width - 3 > right - left && semicolon >= 0) {
        text(without(summary.left(semicolon), u"["), y_ - 1.9, left, right, style(7));
        text(without(Trim(summary.mid(semicolon + 1)), u"]"), y_ + 0.3, left, right, style(7));
    } else {
        text(without(summary, u"[]"), y_, left, right, style(8));
    }
}

} // namespace vanzer
