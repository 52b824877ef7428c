// SPDX-License-Identifier: MIT
#include "trip/parameters_screen.h"

#include "trip/destination_screen.h"
#include "trip/parameter_fields_screen.h"
#include "trip/totals_screen.h"
#include "window/modes.h"

namespace vanzer {

void cmdDefault_Click(Form& form, int i) {
    AttivaFormMeta(form, true);
    static constexpr std::array<const char16_t*, 3> verbs{u"salvare", u"caricare", u"ripristinare"};
    const QString title = QStringLiteral("Dati di default");
    const QString question =
        QStringLiteral("Vuoi %1 i dati di default?").arg(QString::fromUtf16(verbs[static_cast<std::size_t>(i)]));
    if (form.domandaPericolosa(question, title, describeTrip(form)) != rispostaSi)
        return;
    if (i == 0) {
        MemorizzaVariabiliMeta(form);
        form.archivio.storeSoFar();
    } else {
        CaricaDefaultMeta(form, i == 1 ? 0 : 2);
        form.campiDaRicordare = false; // they are the user's own change
    }
    if (i == 1)
        CalcolaKmTempiItinerario(form);
    form.messaggio(QStringLiteral("Operazione eseguita!"), title, Icona::Informazione);
}

} // namespace vanzer
