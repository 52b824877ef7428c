// SPDX-License-Identifier: MIT
#include "exchange/import_screen.h"

#include <QDir>

#include "core/text.h"
#include "core/text_file.h"
#include "exchange/choice_screen.h"
#include "exchange/chosen_file_screen.h"
#include "exchange/iei_import.h"
#include "window/button_codes.h"
#include "window/modes.h"
#include "window/progress.h"

namespace vanzer {

namespace {

constexpr qsizetype longestShown = 40;
const QString perLeLettere =
    QStringLiteral(", oppure un suo testo contiene una delle lettere ÿ þ ý, che nel file separano i campi.");
const QString niente = QStringLiteral("\n\nNon è stato inserito nulla.");

CampiIei fieldsOfTables(Form& form) {
    CampiIei fields;
    for (int section = primaSezione; section <= ultimaSezione; ++section)
        fields[static_cast<std::size_t>(section)] = campiDellaTabella(form, section);
    return fields;
}

store::Recordset wholeTable(Form& form, int table) {
    return {*form.archivio.Db(0), {store::TabelleNomi(table), {}, {}}};
}

/// The open archive, for an import.
class ArchivioAperto final : public ArchivioImport {
  public:
    explicit ArchivioAperto(Form& form) : form_(form) {
        for (int table = primaSezione; table <= ultimaSezione; ++table)
            tables_[static_cast<std::size_t>(table)] = wholeTable(form, table);
    }

    void add(int section, std::vector<QString>& values) override {
        store::Recordset& table = tables_[static_cast<std::size_t>(section)];
        table.AddNew();
        for (std::size_t i = 0; i < values.size(); ++i) {
            const int field = static_cast<int>(i);
            const bool text = table.kind(field) == store::FieldKind::Text;
            if (section == store::MeteVanzer && !text)
                continue;
            table.write(field, values[i]);
            if (text && values[i].size() > table.size(field))
                values[i] = table.testo(field);
        }
        table.Update();
    }

    std::vector<QString> nomiMete() override { return placesOf(store::MeteVanzer); }
    std::vector<QString> luoghiTappe() override { return placesOf(store::Itinerari); }

    std::vector<Voce> vociGuida() override {
        std::vector<Voce> entries;
        store::Recordset guide = wholeTable(form_, store::GuidaCitta);
        const int place = guide.campo(u"Localita");
        const int description = guide.campo(u"Descrizione");
        for (; !guide.EOF_(); guide.MoveNext()) {
            form_.yield();
            if (guide.hasValue(place) && guide.hasValue(description))
                entries.push_back({guide.testo(place), guide.testo(description)});
        }
        return entries;
    }

  private:
    std::vector<QString> placesOf(int table) {
        std::vector<QString> places;
        store::Recordset records = wholeTable(form_, table);
        const int place = records.campo(u"Localita");
        for (; !records.EOF_(); records.MoveNext()) {
            form_.yield();
            if (QString name = records.testo(place); !name.isEmpty())
                places.push_back(std::move(name));
        }
        return places;
    }

    Form& form_;
    std::array<store::Recordset, ultimaSezione + 1> tables_;
};

QString cantAssign(const CodiciMete& codes, CodiciMete::Esito result) {
    const QString code = codes.colpevole().left(longestShown);
    if (result == CodiciMete::Esito::CodiciEsauriti)
        return QStringLiteral("Per la mèta che nel file ha il codice %1 non c'è più nessun codice libero.").arg(code) +
               niente;
    return QStringLiteral("Il codice di mèta %1 è troppo lungo: il file è danneggiato%2").arg(code, perLeLettere) +
           niente;
}

QString damaged(const Form& form, int line, int section) {
    return QStringLiteral("La riga %1 del file %2 dovrebbe elencare i campi della tabella %3: il file è danneggiato%4")
               .arg(QString::number(line), QDir::toNativeSeparators(form.stato.NomeFileScambio),
                    store::TabelleNomi(section), perLeLettere) +
           niente;
}

QString report(const ContatoriImport& counts) {
    QString text = QStringLiteral("Sono stati inseriti:\n\n%1 mète/itinerari;\n%2 tratti stradali;\n%3 "
                                  "guide/informazioni località.\n\n")
                       .arg(migliaiaZero(counts.meteInserite), migliaiaZero(counts.tappeInserite),
                            migliaiaZero(counts.vociInserite));
    if (counts.meteScartate > 0 || counts.vociScartate > 0)
        text += QStringLiteral("Sono stati scartati:\n\n%1 mète/itinerari;\n%2 guide/informazioni località,\n\nperchè "
                               "già presenti nel database con lo stesso nome.")
                    .arg(migliaiaZero(counts.meteScartate), migliaiaZero(counts.vociScartate));
    return text;
}

/// Reads the whole file. The caller commits what was read.
class Lettura {
  public:
    Lettura(Form& form, CodiciMete codes)
        : form_(form), archive_(form), import_(fieldsOfTables(form), std::move(codes), archive_),
          lines_(readExchangeFile(form).value_or(QByteArray())), running_(form) {}

    /// Returns the reason of a failure, or an empty text.
    QString read() {
        form_.stato.PercentualeTotale = static_cast<double>(lines_.lunghezza());
        form_.lblElaborazione.setCaption(QStringLiteral("Importazione mète"));
        AbilitaPulsantiMeta(form_, pulsanti::soloStop);
        double done = 0;
        while (lines_.prossima()) {
            done += static_cast<double>(lines_.riga().size());
            if (!running_.advance(done))
                return QStringLiteral("Import interrotto!") + niente;
            if (!import_.riga(lines_.riga()))
                return damaged(form_, lines_.numero(), import_.sezione());
            if (import_.sezione() != nessunaSezione)
                form_.lblElaborazione.setCaption(QStringLiteral("Importazione ") +
                                                 store::TabelleNomi(import_.sezione()));
        }
        return {};
    }

    [[nodiscard]] const ContatoriImport& contatori() const { return import_.contatori(); }

  private:
    Form& form_;
    ArchivioAperto archive_;
    Importazione import_;
    RigheTesto lines_;
    LavoroInCorso running_;
};

} // namespace

EsitoImport readImportFile(Form& form) {
    try {
        CodiciMete codes;
        const CodiciMete::Esito assigned =
            codes.assign(codiciMemorizzati(form), codiciDellaLista(form.mfgImExp(0)),
                         form.archivio.dimensioneCampo(store::MeteVanzer, u"CodiceMeta"));
        if (assigned != CodiciMete::Esito::Assegnati)
            return {false, cantAssign(codes, assigned)};
        Lettura reading(form, std::move(codes));
        QString failure = reading.read();
        if (failure.isEmpty()) {
            form.archivio.storeSoFar();
            return {true, report(reading.contatori())};
        }
        form.archivio.undoSoFar();
        return {false, failure};
    } catch (const store::StoreError& error) {
        form.archivio.undoSoFar();
        return {false, error.testo() + niente};
    }
}

} // namespace vanzer
