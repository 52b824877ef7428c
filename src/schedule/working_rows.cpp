#include "schedule/working_rows.h"

#include <QStringBuilder>

#include "core/text.h"

namespace vanzer {

QString nomeMostrato(const RigaDiLavoro& row) {
    using enum RigaDiLavoro::Tipo;
    const QStringView name = Trim(QStringView(row.voce == nullptr ? row.nome : row.voce->descrizione));
    const QStringView group = row.voce == nullptr ? QStringView() : Trim(QStringView(row.voce->gruppo));
    switch (row.tipo) {
    case Tappa: return row.nome;
    case SostaItinerario: return u" > a " % row.nome;
    case SostaGuida:
        if (!group.isEmpty() && group != u"0")
            return u" > " % group % u" * " % name;
        [[fallthrough]];
    default: return u" > " % name;
    }
}

} // namespace vanzer
