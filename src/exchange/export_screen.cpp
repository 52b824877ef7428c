// SPDX-License-Identifier: MIT
#include "exchange/export_screen.h"

#include <QDir>

#include "exchange/choice_screen.h"
#include "exchange/chosen_file_screen.h"
#include "exchange/iei_file.h"
#include "store/outside_files.h"
#include "window/button_codes.h"
#include "window/modes.h"
#include "window/progress.h"

namespace vanzer {

namespace {

const QString titoloExport = QStringLiteral("Export");
constexpr std::size_t testiMostrati = 15;
constexpr qsizetype lunghezzaMostrata = 60;

class Esportazione {
  public:
    explicit Esportazione(Form& form) : form_(form), running_(form), codes_(codiciDellaLista(form.mfgImExp(1))) {}

    /// False if the user cancelled.
    bool collect() { return destinations() && legs() && guide(); }

    [[nodiscard]] const ScrittoreIei& file() const { return file_; }

  private:
    void head(int section) { file_.testa(section, campiDellaTabella(form_, section)); }

    void record(int section, const store::Recordset& record) {
        for (int field = 0; field < record.count(); ++field)
            file_.testo(section, record.testo(field));
        file_.fineRiga();
    }

    store::Recordset& recordsOf(int table, const QString& code) {
        using enum store::Condition::Test;
        return open({store::TabelleNomi(table), {{QStringLiteral("CodiceMeta"), Equal, code}}, {}});
    }

    store::Recordset& open(const store::Query& query) {
        form_.archivio.RecordSetImposta(0, store::Archive::slotAppoggio, query);
        return form_.archivio.Rs(store::Archive::slotAppoggio);
    }

    void begins(const QString& title, double total) {
        form_.lblElaborazione.setCaption(title);
        form_.stato.PercentualeTotale = total;
    }

    bool destinations() {
        head(store::MeteVanzer);
        begins(QStringLiteral("Esportazione mète"), static_cast<double>(codes_.size()));
        AbilitaPulsantiMeta(form_, pulsanti::soloStop);
        for (qsizetype i = 0; i < codes_.size(); ++i) {
            if (!running_.advance(static_cast<double>(i) + 1))
                return false;
            if (const store::Recordset& found = recordsOf(store::MeteVanzer, codes_[i]); !found.EOF_())
                record(store::MeteVanzer, found);
        }
        return true;
    }

    bool legs() {
        head(store::Itinerari);
        begins(QStringLiteral("Esportazione itinerari"), static_cast<double>(codes_.size()));
        for (qsizetype i = 0; i < codes_.size(); ++i) {
            if (!running_.advance(static_cast<double>(i) + 1))
                return false;
            for (store::Recordset& found = recordsOf(store::Itinerari, codes_[i]); !found.EOF_(); found.MoveNext())
                record(store::Itinerari, found);
        }
        return true;
    }

    bool guide() {
        store::Recordset& entries = open({store::TabelleNomi(store::GuidaCitta), {}, {}});
        if (entries.EOF_())
            return true;
        head(store::GuidaCitta);
        begins(QStringLiteral("Esportazione guida città"), form_.archivio.NumeroRecord());
        for (double done = 1; !entries.EOF_(); entries.MoveNext(), ++done) {
            if (!running_.advance(done))
                return false;
            record(store::GuidaCitta, entries);
        }
        return true;
    }

    Form& form_;
    LavoroInCorso running_;
    QStringList codes_;
    ScrittoreIei file_;
};

QString shortened(const QString& text) {
    return text.size() <= lunghezzaMostrata ? text : text.left(lunghezzaMostrata) + u'…';
}

/// Tells the user which texts are changed in the file, and how their letters are written.
void tellReplaced(Form& form, const std::vector<TestoSostituito>& texts) {
    if (texts.empty())
        return;
    QString told = QStringLiteral("Il file di scambio non conosce alcune lettere di questi testi, che saranno scritti "
                                  "così:\n");
    for (std::size_t i = 0; i < std::min(texts.size(), testiMostrati); ++i) {
        QStringList letters;
        for (const LetteraSostituita& letter : texts[i].lettere)
            letters << letter.lettera + QStringLiteral(" → ") + letter.scritta;
        told += QStringLiteral("\n%1: %2").arg(shortened(texts[i].testo), letters.join(QStringLiteral(", ")));
    }
    if (texts.size() > testiMostrati)
        told += QStringLiteral("\n... e altri %1 testi.").arg(texts.size() - testiMostrati);
    form.messaggio(told, titoloExport, Icona::Avviso);
}

} // namespace

void writeExchangeFile(Form& form) {
    const QString path = QDir::toNativeSeparators(form.stato.NomeFileScambio);
    Esportazione work(form);
    if (!work.collect()) {
        form.messaggio(QStringLiteral("Export interrotto: il file %1 non è stato scritto.").arg(path), titoloExport);
        return;
    }
    tellReplaced(form, work.file().sostituiti());
    const QString file = percorsoScelto(form);
    const QString reason = store::writeForOthers(file, work.file().contenuto(), form.archivio.PercorsoDatabase);
    if (reason.isEmpty())
        form.messaggioFile(QStringLiteral("Le mète esportate si trovano sul file ") + path, {file});
    else
        form.messaggio(QStringLiteral("Il file %1 non può essere scritto:\n%2").arg(path, reason), titoloExport,
                       Icona::Avviso);
}

} // namespace vanzer
