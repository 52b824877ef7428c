// SPDX-License-Identifier: MIT
#include "guide/typed_entry_screen.h"

#include "core/place_name.h"
#include "core/text.h"
#include "guide/entries.h"
#include "guide/guide_screen.h"

namespace vanzer {

namespace {

/// The form in which a description is stored.
QString stored(const QString& description) {
    return PrimoMaiuscolo(Trim(description), false);
}

bool entryRow(const Grid& grid, int row) {
    return tipoRigaGuida(grid.cell(row, guidaLuogo), grid.cell(row, guidaSegno)) == TipoRigaGuida::Voce;
}

/// Whether the fields show that row. A category or time that the row leaves empty isn't compared: its field kept an
/// older value.
bool shownInFields(const Form& form, int row) {
    const auto cell = [&form, row](ColonnaGuida column) { return form.mfgTab.cell(row, column); };
    const QString category = Trim(cell(guidaTipo));
    const QString time = cell(guidaTempo);
    return stored(form.txtGDescr.text()) == stored(cell(guidaDescrizione)) &&
           stessoGruppo(form.txtGGruppo.text(), cell(guidaGruppo)) &&
           (category.isEmpty() || form.cmbGTipo.text() == category) &&
           (time.isEmpty() || tempoDigitato(form.cmbGH.text(), form.cmbGM.text()) ==
                                  tempoDigitato(oreMostrate(time), minutiMostrati(time)));
}

} // namespace

bool voceDigitata(const Form& form) {
    const Grid& grid = form.mfgTab;
    const int marked = grid.row();
    const QString& description = form.txtGDescr.text();
    if (Trim(description).isEmpty() || (!entryRow(grid, marked) && description == form.stato.FiltroGuida))
        return false;
    const QString place = RiPulisceNomeLocalita(grid.cell(marked, guidaLuogo));
    for (int row = 1; row < grid.rows(); ++row) {
        // a list that was sorted again has the entry in another row
        if (entryRow(grid, row) && RiPulisceNomeLocalita(grid.cell(row, guidaLuogo)) == place &&
            shownInFields(form, row))
            return false;
    }
    return true;
}

bool leaveEntry(Form& form, int& row) {
    if (!form.interattiva || !form.cmdSalvaRiga.reachable() || !voceDigitata(form))
        return true;
    const int answer = form.domanda(
        QStringLiteral("La nota «%1» è scritta ma non salvata.\n\nSalvarla?").arg(Trim(form.txtGDescr.text())),
        QStringLiteral("Nota non salvata"), Pulsanti::SiNoAnnulla);
    if (answer != rispostaSi)
        return answer == rispostaNo;
    const auto cells = [&form](int r) {
        QStringList texts;
        for (const ColonnaGuida column : {guidaLuogo, guidaGruppo, guidaDescrizione, guidaTempo, guidaTipo})
            texts << form.mfgTab.cell(r, column);
        return texts;
    };
    const QStringList meant = cells(row);
    SalvaLaRigaGuidaCitta(form, true);
    if (voceDigitata(form))
        return false;
    for (int r = 1; r < form.mfgTab.rows(); ++r) {
        if (cells(r) == meant) {
            row = r;
            break;
        }
    }
    return true;
}

} // namespace vanzer
