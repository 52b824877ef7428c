// SPDX-License-Identifier: MIT
#include "schedule/preparation.h"

#include <QStringBuilder>

#include "core/place_name.h"
#include "core/text.h"
#include "core/time_values.h"
#include "itinerary/leg_editor.h"
#include "trip/totals.h"

namespace vanzer {

using namespace Qt::StringLiterals;

namespace {

/// Hundredths of an hour that remain of a stop when the other source counts. The user still sees the stop.
constexpr float sostaRidotta = 1;

bool holdsMark(const QString& place, QStringView mark) {
    return place.contains(u'[') && contains(place, mark);
}

void makeMarksConsistent(std::vector<TappaDaPreparare>& legs) {
    bool started = false;
    for (TappaDaPreparare& leg : legs) {
        started = started || holdsMark(leg.luogo, marcaStart);
        if (!started && holdsMark(leg.luogo, marcaEnd))
            leg.luogo = senzaMarca(leg.luogo, marcaEnd);
    }
    if (started)
        return;
    for (TappaDaPreparare& leg : legs) {
        if (!leg.luogo.isEmpty()) {
            leg.luogo += u" [Start]"_s;
            return;
        }
    }
}

/// The name that the schedule shows for an entry: " > 2 * Foro" for a stop of group 2.
QString nomeDellaVoce(const VoceGuida& entry, RigaDiLavoro::Tipo type) {
    const QStringView name = Trim(QStringView(entry.descrizione));
    const QStringView group = Trim(QStringView(entry.gruppo));
    if (type == RigaDiLavoro::Tipo::SostaGuida && !group.isEmpty() && group != u"0")
        return u" > " % group % u" * " % name;
    return u" > " % name;
}

class Preparatore {
  public:
    Preparatore(const Preparazione& with, std::size_t legs) : with_(with) {
        constexpr std::size_t rowsPerLeg = 8; // most trips have fewer, and unused rows take no memory
        result_.righe.reserve(legs * rowsPerLeg);
    }

    void tappa(const TappaDaPreparare& leg) {
        if (with_.advance)
            with_.advance(leg.riga);
        if (leg.luogo.isEmpty())
            return;
        inside_ = inside_ || holdsMark(leg.luogo, marcaStart);
        const std::size_t first = result_.righe.size();
        RigaDiLavoro& row = conLuogo(RigaDiLavoro::Tipo::Tappa, leg);
        row.km = leg.km;
        row.strada = indiceStrada(leg.tipoStrada);
        row.traghetto = contains(leg.strada, u"TRAGH");
        const float planned = sostaItinerario(leg);
        const float visited = inside_ && !past_ && conGuida() ? vociGuida(leg) : 0;
        if (leg.sosta.startsWith(u'*'))
            result_.righe.back().fineGiorno = true;
        if (planned > 0 && visited > 0)
            narrowDown(first, planned, visited);
        past_ = past_ || holdsMark(leg.luogo, marcaEnd);
    }

    [[nodiscard]] RigheDiLavoro risultato() && {
        double planned = 0;
        double visited = 0;
        for (const RigaDiLavoro& row : result_.righe) {
            planned += static_cast<double>(row.sostaFissa);
            visited += static_cast<double>(row.sostaGuida);
        }
        result_.sosteItinerario = static_cast<float>(planned);
        result_.sosteGuida = static_cast<float>(visited);
        return std::move(result_);
    }

  private:
    [[nodiscard]] bool conItinerario() const {
        using enum FonteSoste;
        return with_.fonte == Itinerario || with_.fonte == Entrambe || with_.fonte == Maggiore || with_.fonte == Minore;
    }
    [[nodiscard]] bool conGuida() const {
        using enum FonteSoste;
        return with_.fonte == Guida || with_.fonte == Entrambe || with_.fonte == Maggiore || with_.fonte == Minore;
    }

    RigaDiLavoro& add(RigaDiLavoro::Tipo type, const TappaDaPreparare& leg) {
        RigaDiLavoro& row = result_.righe.emplace_back();
        row.tipo = type;
        row.tappa = leg.riga;
        return row;
    }
    RigaDiLavoro& conLuogo(RigaDiLavoro::Tipo type, const TappaDaPreparare& leg) {
        RigaDiLavoro& row = add(type, leg);
        row.nome = leg.luogo;
        return row;
    }

    float sostaItinerario(const TappaDaPreparare& leg) {
        if (leg.sosta.isEmpty() || !conItinerario())
            return 0;
        RigaDiLavoro& row = conLuogo(RigaDiLavoro::Tipo::SostaItinerario, leg);
        row.sostaFissa = ghmStringa2Centesimi(leg.sosta, with_.oreVisitaGiorno);
        return row.sostaFissa;
    }

    float vociGuida(const TappaDaPreparare& leg) {
        double sum = 0;
        for (const VoceGuida* const entry : with_.guida(PulisceNomeLocalita(leg.luogo))) {
            const float stop = tempoVoce(entry->tempoSosta, with_.oreVisitaGiorno, LetturaTempo::Viandoria);
            const auto type = stop == 0 ? RigaDiLavoro::Tipo::Menzione : RigaDiLavoro::Tipo::SostaGuida;
            RigaDiLavoro& row = add(type, leg);
            row.nome = nomeDellaVoce(*entry, type);
            row.nota = with_.categoria(entry->codice);
            row.sostaGuida = stop;
            sum += static_cast<double>(stop);
        }
        return static_cast<float>(sum);
    }

    /// For the sources "larger sum" and "smaller sum": shrinks the stops of the source that doesn't count.
    void narrowDown(std::size_t first, float planned, float visited) {
        const bool larger = with_.fonte == FonteSoste::Maggiore;
        if (!larger && with_.fonte != FonteSoste::Minore)
            return;
        const bool guideGivesWay = larger ? planned > visited : planned <= visited;
        const auto type = guideGivesWay ? RigaDiLavoro::Tipo::SostaGuida : RigaDiLavoro::Tipo::SostaItinerario;
        for (std::size_t r = first; r < result_.righe.size(); ++r) {
            RigaDiLavoro& row = result_.righe[r];
            if (row.tipo == type)
                (guideGivesWay ? row.sostaGuida : row.sostaFissa) = sostaRidotta;
        }
    }

    const Preparazione& with_;
    RigheDiLavoro result_;
    bool inside_ = false; ///< a "[Start]" was found
    bool past_ = false;   ///< an "[End]" was found in an earlier row
};

} // namespace

FonteSoste fonteSoste(const QString& choice) {
    const int digit = choice.isEmpty() ? 0 : choice[0].digitValue();
    return digit >= 1 && digit <= 6 ? static_cast<FonteSoste>(digit) : FonteSoste::Nessuna;
}

RigheDiLavoro prepareRows(std::vector<TappaDaPreparare> legs, const Preparazione& with) {
    makeMarksConsistent(legs);
    Preparatore maker(with, legs.size());
    for (const TappaDaPreparare& leg : legs)
        maker.tappa(leg);
    return std::move(maker).risultato();
}

} // namespace vanzer
