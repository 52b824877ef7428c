// SPDX-License-Identifier: MIT
#include "schedule/fitting.h"

#include <algorithm>

#include "core/text.h"

namespace vanzer {

namespace {

constexpr double milionesimi = 1000000;

} // namespace

int giorniDiGuida(int drivingTime, float oreGuidaGiorno) {
    if (oreGuidaGiorno == 0)
        return 1;
    return std::max(roundToInt(Int(drivingTime / static_cast<double>(oreGuidaGiorno) + 0.99)), 1);
}

double coefficienteDiPartenza(const DatiAdeguamento& data, int giorniDesiderati) {
    const double driving = data.giorniGuida * static_cast<double>(data.oreGuidaGiorno);
    const double stops = static_cast<double>(data.sosteTotali);
    const double days = std::max(Int(stops / (driving + 0.999)), 1.0);
    if (days >= giorniDesiderati || driving + stops == 0)
        return 1;
    return std::max(giorniDesiderati * static_cast<double>(data.oreGuidaGiorno) / (driving + stops), 1.0);
}

void Adeguamento::startSeries(float oreGuidaGiorno) {
    data_.oreGuidaGiorno = oreGuidaGiorno;
    coefficiente_ = static_cast<float>(partenza_);
    numeroTest_ = 0;
}

Adeguamento::Passo Adeguamento::prossimo(int giorniCalcolati, int giorniDesiderati, bool conSoste) {
    if (numeroTest_ == 1 && coefficiente_ != 1) {
        if (!daCapo_) {
            daCapo_ = true;
            passo_ = 0.5;
            partenza_ = coefficienteDiPartenza(data_, giorniDesiderati);
            return Passo::NuovaSerie;
        }
        // The fresh start has failed too. The search goes on at 1, and the count of tests goes on.
        coefficiente_ = 1;
    } else if (numeroTest_ != 0) {
        change(giorniCalcolati, giorniDesiderati);
    }
    if (!conSoste || giorniDesiderati == 0)
        coefficiente_ = 1;
    ++numeroTest_;
    return Passo::Prova;
}

void Adeguamento::change(int giorniCalcolati, int giorniDesiderati) {
    const double change = giorniDesiderati <= giorniCalcolati ? -passo_ : passo_;
    coefficiente_ = static_cast<float>(Int((static_cast<double>(coefficiente_) + change) * milionesimi) / milionesimi);
    if (coefficiente_ < 0) {
        coefficiente_ = 1;
        passo_ = 1;
    }
    passo_ = Int(passo_ / 2 * milionesimi + 0.5) / milionesimi;
}

Adeguamento::Fine Adeguamento::esito(int giorniCalcolati, int giorniDesiderati) const {
    if (giorniDesiderati == 0)
        return Fine::SenzaAdeguamento;
    if (giorniDesiderati == giorniCalcolati)
        return Fine::Raggiunto;
    return numeroTest_ > massimoTest ? Fine::Impossibile : Fine::InCorso;
}

} // namespace vanzer
