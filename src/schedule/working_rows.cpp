// SPDX-License-Identifier: MIT
#include "schedule/working_rows.h"

#include <QStringBuilder>

namespace vanzer {

QString nomeMostrato(const RigaDiLavoro& row) {
    return row.tipo == RigaDiLavoro::Tipo::SostaItinerario ? u" > a " % row.nome : row.nome;
}

} // namespace vanzer
