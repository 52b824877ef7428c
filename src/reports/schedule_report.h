// The schedule on paper: covers, the heads of the pages with the trip's data on the first one, and the rows.
#pragma once

#include <array>
#include <vector>

#include <QString>

#include "reports/sheet.h"
#include "reports/text_files.h"

namespace vanzer {

/// The trip as the window shows it. Dates and clocks come in their parts.
struct DatiViandoria {
    struct Orologio {
        QString ore;
        QString minuti;
    };
    struct Strada {
        QString nome;
        QString media; ///< km/h
        QString km;    ///< with points; 0 or empty for none
        QString tempo;
    };
    QString localita;
    QString nazione;
    QString giornoInizio; ///< of the week
    std::array<QString, 3> inizio;
    Orologio oraInizio;
    QString giornoFine;
    std::array<QString, 3> fine;
    Orologio oraFine;
    QString giorni;
    QString kmTotali;
    std::array<Strada, 4> strade;
    QString traghetti;
    std::array<Orologio, 8>
        orari;     ///< breakfast, lunch, dinner, night, length of lunch, of dinner, start and end of visits
    QString range; ///< minutes
    QString riposoMinuti;
    QString riposoOre;
    QString riposoGiorni;
    QString riposoDopoGiorni;
};

/// Which titles the general cover bears.
using VociFrontespizio = std::array<bool, 4>;

class ReportViandoria {
  public:
    /// `cell` gives an empty text beyond the schedule's end.
    ReportViandoria(Foglio& sheet, const DatiViandoria& trip, const Piede& foot, CellaViandoria cell);

    void frontespizioGenerale(const VociFrontespizio& titles);
    void frontespizioViandoria();
    /// A page begins where the row needs one; the first row's has the trip's data.
    void preparePage(int row);
    void StampaRiga(int row);
    void finePagina();

  private:
    using Edges = std::array<double, 17>;

    void cover(const std::vector<QString>& titles);
    void StampaIntestaPagina(bool first);
    void StampaCaratteristiche();
    void headings(double y);
    void tripTimes(double y);
    void roads(double y);
    void dayTimes(double y);
    void rests(double y);
    void cell(int row, int column, Edges& x);
    QString name(int row, QString text, Edges& x, bool& bold);
    void road(const QString& text, Edges& x);
    void note(const QString& text, bool italic, Edges& x);
    void text(const QString& text, double y, double left, double right, const Stile& style) {
        sheet_.StampaTesto(text, y, left, right, style);
    }

    Foglio& sheet_;
    const DatiViandoria& trip_;
    Piede foot_;
    CellaViandoria cell_;
    double y_ = nessunaPagina; ///< bottom of the row at hand
    double top_ = 0;           ///< of the table on this page
};

} // namespace vanzer
