// SPDX-License-Identifier: MIT
#include "exchange/choice_screen.h"

#include <algorithm>
#include <utility>

#include "core/collation.h"
#include "core/text.h"
#include "core/text_file.h"
#include "exchange/chosen_file_screen.h"
#include "exchange/iei_file.h"
#include "trip/destination_screen.h"
#include "window/button_codes.h"
#include "window/changes.h"
#include "window/grid_layouts.h"
#include "window/modes.h"
#include "window/progress.h"

namespace vanzer {

namespace {

constexpr int righeMinime = 15;
/// A name has at most 30 characters. A broken file may hold more, which isn't shown whole.
constexpr qsizetype lunghezzaCella = 255;

const QString metaCampo = QStringLiteral("Localita");
const QString nazioneCampo = QStringLiteral("Nazione");
const QString codiceCampo = QStringLiteral("CodiceMeta");

/// The first empty row from `row` on.
int firstEmptyRow(const Grid& list, int row = 1) {
    while (row < list.rows() && !list.cell(row, scambioMeta).isEmpty())
        ++row;
    return row;
}

void sortByName(Grid& list) {
    struct Entry {
        std::string name;
        int row;
    };
    std::vector<Entry> order;
    for (int r = 1; r < list.rows(); ++r)
        order.push_back({list.cell(r, scambioMeta).toStdString(), r});
    const auto before = [](const Entry& a, const Entry& b) { return compare(a.name, b.name) < 0; };
    if (std::ranges::is_sorted(order, before))
        return;
    std::ranges::stable_sort(order, before);
    const int row = list.row();
    const int rowSel = list.rowSel();
    const int topRow = list.topRow();
    const SenzaRidisegno quiet(list);
    const TestiTabella rows = list.takeContents();
    TestiTabella sorted;
    sorted.setRows(rows.rows());
    int to = 0;
    for (const Entry& entry : order)
        sorted.copyRow(to++, rows, entry.row - 1);
    list.setContents(std::move(sorted));
    list.select(row, list.col(), rowSel, list.colSel());
    list.setTopRow(topRow);
}

void numberRows(Grid& list) {
    for (int r = 1; r < list.rows(); ++r) {
        if (const QString number = QString::number(r); list.cell(r, scambioNumero) != number)
            list.setCell(r, scambioNumero, number);
    }
}

/// Moves the current row to the first empty row from `free` on, and sets `free` to that row. False if the current row
/// holds no destination.
bool moveCurrentRow(Grid& from, Grid& to, int& free) {
    const int row = from.row();
    if (from.cell(row, scambioMeta).isEmpty())
        return false;
    to.setRows(to.rows() + 2);
    free = firstEmptyRow(to, free);
    for (int c = scambioMeta; c < to.columns(); ++c)
        to.setCell(free, c, from.cell(row, c));
    from.removeRow(row);
    return true;
}

void chooseForExport(Form& form) {
    form.lblExLista.setCaption(QStringLiteral("Mète in memoria (da selezionare)"));
    form.lblExSelez.setCaption(QStringLiteral("Lista delle mète selezionate per l'EXPORT"));
    form.cmdImExp(0).setCaption(QStringLiteral("Esporta"));
    if (!CaricaListaMete(form))
        form.refuse(QStringLiteral("Non ci sono altre mète da esportare..."));
    AzzeraPercentuale(form);
    AggiornaPulsantiImportExport(form);
    form.setFocus(form.mfgImExp(0));
}

QString captionOfAll(int count) {
    return QStringLiteral("<--- Tutti [%1]").arg(count);
}

/// Reads the destinations of a file into the second list.
class ElencoDelFile {
  public:
    explicit ElencoDelFile(Form& form)
        : form_(form), list_(form.mfgImExp(1)),
          reader_({QStringList(), campiDellaTabella(form, store::MeteVanzer), QStringList(), QStringList()}) {}

    /// False if the user cancelled.
    bool read() {
        RigheTesto lines(readExchangeFile(form_).value_or(QByteArray()));
        LavoroInCorso running(form_);
        form_.stato.PercentualeTotale = static_cast<double>(lines.lunghezza());
        form_.lblElaborazione.setCaption(QStringLiteral("Esportazione mète"));
        double done = 0;
        while (lines.prossima()) {
            done += static_cast<double>(lines.riga().size());
            if (!running.advance(done))
                return false;
            riga(lines.riga());
        }
        return true;
    }

  private:
    /// Lists a destination. The first line of the section is the head line and is left out.
    void riga(QStringView line) {
        section_ = sezioneDellaRiga(line, section_);
        if (section_ != nessunaSezione)
            form_.lblElaborazione.setCaption(QStringLiteral("Esportazione tabella ") + store::TabelleNomi(section_) +
                                             QStringLiteral("in corso"));
        if (section_ != store::MeteVanzer || line.isEmpty())
            return;
        if (std::exchange(headRead_, true)) {
            reader_.readRecord(line);
            voce();
        } else {
            reader_.readHead(line, section_);
        }
    }

    void voce() {
        ++count_;
        if (count_ >= list_.rows() - 2)
            list_.setRows(list_.rows() + 3);
        list_.setCell(count_, scambioMeta, cella(metaCampo));
        list_.setCell(count_, scambioNazione, cella(nazioneCampo));
        list_.setCell(count_, scambioCodice, cella(codiceCampo));
        form_.cmdTutto(1).setCaption(captionOfAll(count_));
        form_.yield();
    }

    QString cella(const QString& field) {
        return reader_.colonna(reader_.campo(field)).left(lunghezzaCella).toString();
    }

    Form& form_;
    Grid& list_;
    LettoreIei reader_;
    int section_ = nessunaSezione;
    bool headRead_ = false;
    int count_ = 0;
};

void captionsOfImport(Form& form) {
    form.lblExLista.setCaption(QStringLiteral("Lista delle mète selezionate per l'Import"));
    form.lblExSelez.setCaption(QStringLiteral("Lista delle mete nel file selezionato"));
    form.cmdImExp(0).setCaption(QStringLiteral("Importa"));
    AggiornaPulsantiImportExport(form);
}

void listFile(Form& form, const QString& path) {
    form.stato.NomeFileScambio = path;
    const bool whole = ElencoDelFile(form).read();
    if (!whole) {
        form.mfgImExp(1).setRows(1);
        form.messaggio(QStringLiteral("Lettura del file interrotta!"));
    }
    AzzeraPercentuale(form);
    AggiornaPulsantiImportExport(form);
    form.setFocus(form.mfgImExp(1));
}

void chooseForImport(Form& form) {
    captionsOfImport(form);
    if (const QString path = form.ports.files.open(filtroScambio.toString()); !path.isEmpty())
        listFile(form, path);
}

} // namespace

bool importaScelto(const Form& form) {
    return uguale(form.cmdImExp(0).caption(), u"importa");
}

void PreparaExportImport(Form& form) {
    AzzeraSchermo(form);
    form.campiDaRicordare = true;
    form.frmframe(riquadroScambio).setVisible(true);
    form.cmdExport.setEnabled(false);
    for (Grid* const list : form.mfgImExp) {
        list->clearCells();
        ImpostaListaScambio(*list);
        list->setRows(righeMinime);
    }
    AggiornaPulsantiImportExport(form);
}

bool CaricaListaMete(Form& form) {
    store::Archive& archive = form.archivio;
    archive.RecordSetImposta(0, store::Archive::slotAppoggio,
                             {store::TabelleNomi(store::MeteVanzer), {}, {{metaCampo}}});
    store::Recordset& records = archive.Rs(store::Archive::slotAppoggio);
    Grid& list = form.mfgImExp(0);
    const SenzaRidisegno quiet(list);
    int count = 0;
    for (; !records.EOF_(); records.MoveNext()) {
        ++count;
        if (count >= list.rows() - 2)
            list.setRows(count + 3);
        list.setCell(count, scambioNumero, QString::number(count));
        list.setCell(count, scambioMeta, records.testo(metaCampo));
        list.setCell(count, scambioNazione, records.testo(nazioneCampo));
        list.setCell(count, scambioCodice, records.testo(codiceCampo));
    }
    return count > 0;
}

void TrasferisceMetaImportExport(Form& form, int n) {
    Grid& from = form.mfgImExp(n);
    int free = 1;
    if (!moveCurrentRow(from, form.mfgImExp(1 - n), free))
        return;
    AggiornaPulsantiImportExport(form);
    form.setFocus(from);
}

void AggiornaPulsantiImportExport(Form& form) {
    for (Grid* const list : form.mfgImExp)
        list->setRows(firstEmptyRow(*list));
    const auto entries = [&form](int n) { return form.mfgImExp(n).rows() - 1; };
    form.cmdTutto(0).setCaption(QStringLiteral("[%1] Tutti --->").arg(entries(0)));
    form.cmdTutto(1).setCaption(captionOfAll(entries(1)));
    for (int n = 0; n < 2; ++n)
        form.cmdTutto(n).setEnabled(entries(n) > 0);
    form.cmdImExp(0).setEnabled(entries(importaScelto(form) ? 0 : 1) > 0);
    form.cmdImExp(1).setEnabled(true);
    for (Grid* const list : form.mfgImExp) {
        sortByName(*list);
        list->setRows(Maggiore(list->rows(), righeMinime));
        numberRows(*list);
    }
}

QStringList campiDellaTabella(Form& form, int table) {
    const auto stored = form.archivio.Db(0)->tabella(store::TabelleNomi(table));
    QStringList names;
    for (const store::FieldDef& field : stored->campi)
        names += field.name;
    return names;
}

QStringList codiciMemorizzati(Form& form) {
    form.archivio.RecordSetImposta(0, store::Archive::slotAppoggio,
                                   {store::TabelleNomi(store::MeteVanzer), {}, {{codiceCampo}}});
    store::Recordset& records = form.archivio.Rs(store::Archive::slotAppoggio);
    QStringList codes;
    for (; !records.EOF_(); records.MoveNext())
        codes << records.testo(codiceCampo);
    return codes;
}

QStringList codiciDellaLista(const Grid& list) {
    QStringList codes;
    for (int r = 1; r < list.rows(); ++r) {
        if (const QString& code = list.cell(r, scambioCodice); !Trim(code).isEmpty())
            codes << code;
    }
    return codes;
}

void ElencaFileScambio(Form& form, const QString& path) {
    PreparaExportImport(form);
    captionsOfImport(form);
    listFile(form, path);
}

void cmdExport_Click(Form& form) {
    if (!leaveChanges(form))
        return;
    form.frmframe(riquadroScambio).setVisible(true);
    AbilitaPulsantiMeta(form, pulsanti::nessuno);
}

void cmdImportExport_Click(Form& form, int n) {
    if (!leaveChanges(form))
        return;
    PreparaExportImport(form);
    n == 0 ? chooseForExport(form) : chooseForImport(form);
}

void mfgImExp_Click(Form& form, int n) {
    TrasferisceMetaImportExport(form, n);
}

void cmdTutto_Click(Form& form, int n) {
    Grid& from = form.mfgImExp(n);
    form.stato.PercentualeTotale = from.rows() - 1;
    form.stato.PercentualeCorrente = 0;
    form.lblElaborazione.setCaption(QStringLiteral("Lettura mète"));
    for (int free = 1; !from.cell(1, scambioMeta).isEmpty();) {
        ++form.stato.PercentualeCorrente;
        AggiornaPercentuale(form);
        from.select(1, from.col(), 1, from.colSel());
        if (!moveCurrentRow(from, form.mfgImExp(1 - n), free))
            break;
    }
    form.setFocus(from);
    AzzeraPercentuale(form);
    AggiornaPulsantiImportExport(form);
}

} // namespace vanzer
