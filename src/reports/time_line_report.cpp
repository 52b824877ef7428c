// SPDX-License-Identifier: MIT
#include "reports/time_line_report.h"

#include <algorithm>
#include <span>

#include "core/text.h"
#include "core/time_values.h"

namespace vanzer {

using namespace Qt::StringLiterals;
using enum Posizione;

namespace {

// all in mm
constexpr double left = 12;
constexpr double right = 200;
constexpr double firstHour = 32;
constexpr double lastHour = 182;
constexpr double titleLine = 20;
constexpr double legendLine = 28;
constexpr double hoursLine = 35;
constexpr double top = 36;
constexpr double bottom = 284;
constexpr double highestRow = 10;
constexpr double lowestRow = 2.5;
constexpr double air = 0.12; ///< part of a row's height that stays free above its bars, and below

constexpr double leastSize = 6; // points
constexpr int shortestName = 3; // letters
constexpr int hoursBetweenMarks = 3;

struct Colore {
    Attivita::Tipo tipo;
    quint32 colore;
};
constexpr std::array colori{Colore{Attivita::Tipo::Guida, 0x9EC5E8}, Colore{Attivita::Tipo::Sosta, 0xB7DDA8},
                            Colore{Attivita::Tipo::Pasto, 0xF6C98A}, Colore{Attivita::Tipo::Pausa, 0xE0C8EE},
                            Colore{Attivita::Tipo::Notte, 0xC3C7D6}};

std::optional<quint32> colour(Attivita::Tipo type) {
    const auto* const found =
        std::find_if(colori.begin(), colori.end(), [type](const Colore& c) { return c.tipo == type; });
    return found == colori.end() ? std::nullopt : std::optional(found->colore);
}

double across(double hundredths) {
    return firstHour + (lastHour - firstHour) * hundredths / giornoIntero;
}

class Pagina {
  public:
    Pagina(Foglio& sheet, const QString& trip, const LineaDelTempo& line, const Piede& foot)
        : sheet_(sheet), trip_(trip), line_(line), foot_(foot) {}

    void stampa(std::span<const Giornata> days, double height) {
        height_ = height;
        sheet_.penna(1);
        head();
        const double end = top + height * static_cast<double>(days.size());
        hours(end);
        double y = top;
        for (const Giornata& day : days) {
            riga(day, y);
            y += height;
        }
        sheet_.fill({});
        sheet_.riquadro(left, top, right, end);
        sheet_.StampaTesto(foot_.data, bottom + interlinea, left, firstHour + 10, {.dimensione = 6, .corsivo = true});
        sheet_.StampaTesto(foot_.finestra, bottom + interlinea, left, right,
                           {.dimensione = 6, .corsivo = true, .posizione = Destra});
    }

  private:
    void head() {
        sheet_.StampaTesto(trip_ + u" - Linea del tempo"_s, titleLine, left, right,
                           {.dimensione = 16, .grassetto = true});
        double x = left;
        for (const Colore& c : colori) {
            constexpr double sample = 5;
            constexpr double each = 30;
            sheet_.fill(c.colore);
            sheet_.riquadro(x, legendLine - 3.5, x + sample, legendLine);
            sheet_.StampaTesto(nomeAttivita(c.tipo), legendLine, x + sample + 1.5, x + each, {.dimensione = 8});
            x += each;
        }
        sheet_.fill({});
    }

    void hours(double end) {
        constexpr int lastMark = 24;
        for (int hour = 0; hour <= lastMark; hour += hoursBetweenMarks) {
            const double x = across(hour * 100);
            sheet_.linea(x, top, x, end);
            inTheMiddle(QString::number(hour), hoursLine, x - 4, x + 4, 7);
        }
        sheet_.StampaTesto(u"km"_s, hoursLine, lastHour, right, {.dimensione = 7, .posizione = Destra});
    }

    void riga(const Giornata& day, double y) {
        const double size = std::clamp(height_ * 1.8, leastSize, 9.0);
        const double base = y + height_ / 2 + size * 0.21;
        sheet_.linea(left, y + height_, right, y + height_);
        sheet_.StampaTesto(day.data, base, left + 1, firstHour, {.dimensione = size});
        if (day.km > 0)
            sheet_.StampaTesto(QString::number(day.km), base, lastHour, right,
                               {.dimensione = size, .posizione = Destra});
        for (const Barra& bar : day.barre)
            barra(bar, y, base, size);
        sheet_.fill({});
    }

    void barra(const Barra& bar, double y, double base, double size) {
        const Attivita& activity = line_.attivita[bar.attivita];
        const auto fill = colour(activity.tipo);
        if (!fill)
            return;
        const double from = across(bar.da);
        const double to = across(bar.a);
        sheet_.fill(fill);
        sheet_.riquadro(from, y + height_ * air, to, y + height_ * (1 - air));
        if (const QString name = shortened(activity.nome, to - from); !name.isEmpty())
            inTheMiddle(name, base, from, to, std::min(size, 8.0));
    }

    void inTheMiddle(const QString& text, double y, double from, double to, double size) {
        constexpr double leftwards = 1; // mm left of the middle, where the sheet centres the cells of its tables
        sheet_.StampaTesto(text, y, from + leftwards, to + leftwards, {.dimensione = size, .posizione = Centro});
    }

    /// The name, shortened until it fits. Empty if too few letters would remain.
    QString shortened(const QString& name, double width) {
        constexpr double margin = 1.5;
        const auto fits = [this, width](const QString& text) {
            return sheet_.larghezza(text, {.dimensione = leastSize}) + margin < width;
        };
        if (fits(name))
            return name;
        for (qsizetype length = name.size() - 1; length >= shortestName; --length) {
            if (QString part = Trim(name.left(length)) + u'.'; fits(part))
                return part;
        }
        return {};
    }

    Foglio& sheet_;
    const QString& trip_;
    const LineaDelTempo& line_;
    const Piede& foot_;
    double height_ = highestRow;
};

} // namespace

void printTimeLine(Foglio& sheet, const QString& trip, const LineaDelTempo& line, const Piede& foot) {
    const std::vector<Giornata> days = giornate(line);
    const double count = static_cast<double>(days.size());
    const double height = std::clamp((bottom - top) / std::max(count, 1.0), lowestRow, highestRow);
    const auto fitting = static_cast<std::size_t>((bottom - top) / height + 1e-6);
    Pagina page(sheet, trip, line, foot);
    for (std::size_t first = 0; first < days.size(); first += fitting) {
        if (first > 0)
            sheet.nuovaPagina();
        page.stampa(std::span(days).subspan(first, std::min(fitting, days.size() - first)), height);
    }
}

} // namespace vanzer
