// SPDX-License-Identifier: MIT
// The schedule on paper: covers, page heads, and rows. The first page's head has the trip's data.
#pragma once

#include <array>
#include <vector>

#include <QString>

#include "reports/sheet.h"
#include "reports/text_files.h"

namespace vanzer {

/// The texts of the trip as the window shows them. Dates and clocks are split into their parts.
struct DatiViandoria {
    struct Orologio {
        QString ore;
        QString minuti;
    };
    struct Strada {
        QString nome;
        QString media; ///< km/h
        QString km;    ///< with thousands points; 0 or empty for none
        QString tempo;
    };
    QString localita;
    QString nazione;
    QString giornoInizio; ///< day of the week
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
        orari;            ///< breakfast, lunch, dinner, night, length of lunch, of dinner, start and end of visits
    QString range;        ///< minutes
    QString riposoMinuti; ///< minutes
    QString riposoOre;
    QString riposoGiorni;
    QString riposoDopoGiorni;
};

/// Which titles the general cover shows.
using VociFrontespizio = std::array<bool, 4>;

class ReportViandoria {
  public:
    /// `cell` returns an empty text beyond the end of the schedule.
    ReportViandoria(Foglio& sheet, const DatiViandoria& trip, const Piede& foot, CellaViandoria cell);

    void frontespizioGenerale(const VociFrontespizio& titles);
    void frontespizioViandoria();
    /// Begins a page if the row needs one. The head of the first row's page has the trip's data.
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
    double y_ = nessunaPagina; ///< bottom of the current row, mm
    double top_ = 0;           ///< top of the table on this page, mm
};

} // namespace vanzer
