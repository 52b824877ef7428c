// SPDX-License-Identifier: MIT
#include "guide/categories_screen.h"

#include "core/place_name.h"
#include "core/text.h"
#include "guide/categories.h"

namespace vanzer {

namespace {

store::Recordset& openCategories(Form& form) {
    form.archivio.StringaSQL = QStringLiteral("SELECT * FROM TipoGuida ORDER BY CodiceGuida");
    form.archivio.RecordSetImposta(0, store::TipoGuida);
    return form.archivio.Rs(store::TipoGuida);
}

void addCategory(store::Recordset& table, int code, const QString& name, bool timeNeeded) {
    table.AddNew();
    table.write(0, Zero(code, 2));
    table.write(1, name);
    table.writeYesNo(2, timeNeeded);
    table.Update();
}

} // namespace

void CaricaTipiGuida(Form& form) {
    store::Recordset& empty = openCategories(form);
    if (empty.EOF_()) {
        for (std::size_t i = 0; i < primeCategorie.size(); ++i)
            addCategory(empty, static_cast<int>(i) + 1, QString::fromUtf16(primeCategorie[i]), i < categorieDaVisitare);
    }
    QString wanted = QStringLiteral("Ottimo^Da vedere^Interessante^Vedibile^Punto Sosta^PS e CS^Campeggio^Ristorante^"
                                    "Gpl^Diari bordo^Carte/Guide^Altro^");
    form.cmbGTipo.clear();
    int last = 0;
    for (store::Recordset& table = openCategories(form); !table.EOF_(); table.MoveNext()) {
        const QString name = table.testo(1);
        if (const int at = posizione(wanted, name + u'^'); at > 0)
            wanted.remove(at - 1, name.size() + 1);
        last = roundToInt(Val(table.testo(0)));
        if (last >= 0 && last < static_cast<int>(form.TipiGuidaDescrizione.size())) {
            form.TipiGuidaDescrizione[static_cast<std::size_t>(last)] = name;
            form.TipiGuidaTempoObbligatorio[static_cast<std::size_t>(last)] = table.siNo(2);
        }
        form.cmbGTipo.add(name);
    }
    store::Recordset& table = form.archivio.Rs(store::TipoGuida);
    for (const QString& missing : wanted.split(u'^', Qt::SkipEmptyParts)) {
        last = addToInt(last, 1);
        addCategory(table, last, missing, true);
    }
    form.cmbGTipo.setText(form.TipiGuidaDescrizione[1]);
}

void RipulisceLuoghiGuida(Form& form) {
    if (!form.archivio.guidaConParentesi())
        return;
    form.archivio.StringaSQL = QStringLiteral("SELECT * FROM GuidaCitta WHERE Localita LIKE '*(*'");
    form.archivio.RecordSetImposta(0, store::GuidaCitta);
    for (store::Recordset& guide = form.archivio.Rs(store::GuidaCitta); !guide.EOF_(); guide.MoveNext()) {
        const QString place = cutAt(guide.testo(0), u'(');
        guide.Edit();
        guide.write(0, place);
        guide.Update();
    }
}

} // namespace vanzer
