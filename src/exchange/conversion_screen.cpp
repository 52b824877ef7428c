// SPDX-License-Identifier: MIT
#include "exchange/conversion_screen.h"

#include <algorithm>
#include <optional>

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "core/place_name.h"
#include "core/text.h"
#include "exchange/choice_screen.h"
#include "exchange/conversion.h"
#include "guide/categories.h"
#include "store/old_files.h"
#include "store/outside_files.h"
#include "trip/destination.h"
#include "trip/destination_screen.h"
#include "trip/leg_table_screen.h"
#include "window/button_codes.h"
#include "window/changes.h"
#include "window/modes.h"
#include "window/progress.h"

namespace vanzer {

namespace {

const QString titolo = QStringLiteral("Conversione file");
constexpr QStringView usualRange = u"15"; // minutes

/// Two entries are the same if their descriptions are equal, and their places are equal before a "(". Case is ignored.
bool sameEntry(const QString& place, const QString& description, const VoceConvertita& entry) {
    return uguale(Trim(description), Trim(entry.Descrizione)) && stessaMeta(place, entry.Localita);
}

/// Thrown to end the work early, with the reason.
struct Interruzione {
    QString motivo;
};

class Conversione {
  public:
    explicit Conversione(Form& form) : form_(form), running_(form) { AbilitaPulsantiMeta(form, pulsanti::soloStop); }

    void mete() {
        const OldFile file = openFile(vecchieMete(), store::fileVecchieMete.toString());
        giveCodes(file);
        const int left = readRecords(QStringLiteral("Conversione file mète"), file.records, [this](const auto& record) {
            if (metaDaConvertire(record))
                writeDestination(record);
            return true;
        });
        keepCodes();
        finish(file, left);
    }

    void itinerari() {
        const QStringList codes = codiciMemorizzati(form_);
        begin(QStringLiteral("Conversione file itinerari"), static_cast<double>(codes.size()));
        double done = 0;
        for (const QString& code : codes) {
            const store::Recordset& meta = open(store::MeteVanzer, {withCode(code)});
            form_.txtNazione.setText(meta.EOF_() ? code : meta.testo(u"Localita"));
            advance(++done);
            itinerario(code);
        }
    }

    /// The guide's file comes last. The categories and the adjustment are stored with it. If the file can't be removed,
    /// it is converted again under the same codes.
    void guidaEAdeguamento() {
        const OldFile file = openFile(vecchiaGuida(), store::fileVecchiaGuida.toString());
        const int left = readRecords(QStringLiteral("Conversione file guida città"), file.records,
                                     [this](const auto& record) { return writeEntry(voceConvertita(record)); });
        remakeCategories();
        adjust();
        finish(file, left);
        if (stuck_.isEmpty())
            QFile::remove(codesFile());
    }

    [[nodiscard]] QString resoconto() const {
        QStringList moved;
        for (const CodiciConvertiti::Spostata& one : codes_->spostate())
            moved << QStringLiteral("«%1» entra con il codice %2.").arg(one.nome, one.nuovo);
        const auto listed = [](const QStringList& names) {
            constexpr qsizetype most = 10;
            const QString rest =
                names.size() > most ? QStringLiteral("\ne altri %1").arg(names.size() - most) : QString();
            return QStringList(names.first(std::min(names.size(), most))).join(u'\n') + rest;
        };
        QString text = QStringLiteral("Conversione eseguita...");
        if (!moved.isEmpty())
            text += QStringLiteral("\n\n") + moved.join(u'\n');
        if (left_ > 0)
            text += QStringLiteral("\n\nRecord danneggiati e non convertiti: %1.\nI file che li contengono non sono "
                                   "stati cancellati:\n%2")
                        .arg(migliaiaZero(left_), listed(kept_));
        if (!stuck_.isEmpty())
            text += QStringLiteral("\n\nFile convertiti, ma che non è stato possibile togliere:\n") + listed(stuck_);
        return text;
    }
    [[nodiscard]] bool tuttoConvertito() const { return left_ == 0 && stuck_.isEmpty(); }

  private:
    struct OldFile {
        QString path; ///< empty if there is none
        FileVecchio records;
    };

    OldFile openFile(const FormatoVecchio& format, const QString& name) {
        const QString path = store::oldFileIn(form_.archivio.PercorsoProgramma, name);
        if (path.isEmpty())
            return {{}, {format, {}}};
        FileLetto file = store::readFromOthers(path, form_.archivio.PercorsoDatabase);
        if (!file.errore.isEmpty())
            throw Interruzione{QStringLiteral("Il file %1 non può essere letto:\n%2").arg(shown(path), file.errore)};
        return {path, {format, std::move(file.contenuto)}};
    }

    [[nodiscard]] QString codesFile() const {
        return form_.archivio.PercorsoProgramma + fileCodiciConvertiti.toString();
    }

    /// Takes up the codes of an interrupted conversion. While the old file exists, only those that were stored count.
    void giveCodes(const OldFile& file) {
        QStringList old;
        for (int n = 1; n <= file.records.numero(); ++n) {
            if (const auto record = file.records.record(n); record && metaDaConvertire(*record))
                old << codiceConvertito(*record);
        }
        codes_.emplace(codiciMemorizzati(form_), old);
        codes_->read(store::readFromOthers(codesFile(), form_.archivio.PercorsoDatabase).contenuto);
        codes_->keep([&](const CodiciConvertiti::Spostata& one) {
            const auto holder = nameOf(one.nuovo);
            return holder && (file.path.isEmpty() || *holder == one.nome);
        });
    }

    void keepCodes() {
        if (codes_->spostate().empty())
            return;
        const QString& archive = form_.archivio.PercorsoDatabase;
        if (const QString reason = store::writeForOthers(codesFile(), codes_->contenuto(), archive); !reason.isEmpty())
            throw Interruzione{
                QStringLiteral("Il file %1 non può essere scritto:\n%2").arg(shown(codesFile()), reason)};
    }

    std::optional<QString> nameOf(const QString& code) {
        const store::Recordset& meta = open(store::MeteVanzer, {withCode(code)});
        return meta.EOF_() ? std::nullopt : std::optional(meta.testo(u"Localita"));
    }

    static QString shown(const QString& path) { return QFileInfo(path).fileName(); }

    void begin(const QString& what, double total) {
        form_.stato.PercentualeTotale = total;
        form_.lblElaborazione.setCaption(what);
    }

    /// Passes on record after record. Returns the number of records that are damaged or that `take` refuses.
    template<typename Take> int readRecords(const QString& what, const FileVecchio& records, Take take) {
        begin(what, records.numero());
        int left = 0;
        for (int n = 1; n <= records.numero(); ++n) {
            advance(n);
            const auto record = records.record(n);
            if (!record || !take(*record))
                ++left;
        }
        return left;
    }

    void advance(double done) {
        if (!running_.advance(done))
            throw Interruzione{QStringLiteral("Conversione interrotta!")};
    }

    /// Stores the records, then removes their file or renames it.
    void finish(const OldFile& file, int left) {
        form_.archivio.storeSoFar();
        if (file.path.isEmpty())
            return;
        left_ += left;
        if (left == 0) {
            if (!QFile::remove(file.path))
                stuck_ << shown(file.path);
            return;
        }
        const QString kept = freeName(file.path);
        if (QFile::rename(file.path, kept))
            kept_ << shown(kept);
        else
            stuck_ << shown(file.path);
    }

    /// A name for the kept file that no older file has.
    static QString freeName(const QString& path) {
        QString name = path + QStringLiteral(".vecchio");
        for (int n = 2; QFile::exists(name); ++n)
            name = path + QStringLiteral(".%1.vecchio").arg(n);
        return name;
    }

    static store::Condition withCode(const QString& code) {
        return {QStringLiteral("CodiceMeta"), store::Condition::Test::Equal, code};
    }

    store::Recordset& open(int table, std::vector<store::Condition> where) {
        form_.archivio.RecordSetImposta(0, table, {store::TabelleNomi(table), std::move(where), {}});
        return form_.archivio.Rs(table);
    }

    /// The first record that the query finds, for editing, or a new one.
    store::Recordset& found(int table, std::vector<store::Condition> where) {
        store::Recordset& records = open(table, std::move(where));
        records.EOF_() ? records.AddNew() : records.Edit();
        return records;
    }

    /// Adjusts the record at once, so that an interrupted conversion leaves no destination without its times.
    void writeDestination(const RecordVecchio& record) {
        const QString old = codiceConvertito(record);
        const QString name = nomeConvertito(record);
        const auto holder = nameOf(old);
        const QString code = codes_->perMeta(old, name, holder && !stessaMeta(*holder, name));
        store::Recordset& meta = found(store::MeteVanzer, {withCode(code)});
        meta.write(0, code);
        for (int field = 1; field < static_cast<int>(record.size()); ++field)
            meta.write(field,
                       valoreAdeguato(meta.name(field), meta.size(field), record[static_cast<std::size_t>(field)]));
        if (Trim(meta.testo(u"Range")).isEmpty())
            meta.write(u"Range", usualRange.toString());
        form_.txtLocalita.setText(meta.testo(u"Localita"));
        meta.Update();
    }

    void itinerario(const QString& code) {
        const OldFile file = openFile(vecchieTappe(), store::fileVecchieTappe(codes_->perTappe(code)));
        TappeVecchie legs = tappeDaLeggere(file.records);
        for (int i = 2; i <= legs.tappe + 1; ++i) {
            const auto record = file.records.record(i);
            if (!record)
                ++legs.tralasciati;
            else if (const auto leg = tappaConvertita(*record))
                writeLeg(code, Zero(i - 1, 4), *leg);
        }
        finish(file, legs.tralasciati);
    }

    void writeLeg(const QString& code, const QString& sequence, const TappaConvertita& leg) {
        form_.txtLocalita.setText(leg.Localita);
        form_.yield();
        store::Recordset& records = found(
            store::Itinerari, {withCode(code), {QStringLiteral("Sequenza"), store::Condition::Test::Equal, sequence}});
        records.write(u"CodiceMeta", code);
        records.write(u"Sequenza", sequence);
        records.write(u"Localita", leg.Localita);
        records.write(u"Chilometri", leg.Chilometri);
        records.write(u"NomeStrada", leg.NomeStrada);
        records.write(u"TipoStrada", leg.TipoStrada);
        records.write(u"TempoSosta", leg.TempoSosta);
        records.write(u"FineGiorno", leg.FineGiorno);
        records.Update();
    }

    /// When the program starts, it removes the part in brackets from the guide's places. So this pattern finds the name
    /// with and without it.
    static QString namePattern(const QString& place) {
        return place.contains(u'(') ? Trim(cutAt(place, u'(')) + u'(' : place;
    }

    /// Stores an entry. False if only its place or only its description is blank; blank entries are skipped.
    bool writeEntry(const VoceConvertita& entry) {
        if (Trim(entry.Localita).isEmpty() || Trim(entry.Descrizione).isEmpty())
            return Trim(entry.Localita).isEmpty() && Trim(entry.Descrizione).isEmpty();
        using enum store::Condition::Test;
        const QString place = QStringLiteral("Localita");
        const QString description = QStringLiteral("Descrizione");
        store::Recordset& guide = open(store::GuidaCitta, {{place, Like, LikeTesto(namePattern(entry.Localita))},
                                                           {description, Like, LikeTesto(entry.Descrizione)}});
        while (!guide.EOF_() && !sameEntry(guide.testo(place), guide.testo(description), entry))
            guide.MoveNext();
        guide.EOF_() ? guide.AddNew() : guide.Edit();
        form_.txtLocalita.setText(entry.Localita);
        guide.write(place, entry.Localita);
        guide.write(description, entry.Descrizione);
        guide.write(u"CodiceGuida", entry.CodiceGuida);
        guide.write(u"TempoSosta", entry.TempoSosta);
        guide.write(u"FlagVisto", entry.FlagVisto);
        guide.Update();
        return true;
    }

    void remakeCategories() {
        constexpr std::size_t known = 9; // categories of the earlier version
        CancellaTabella(form_, store::TipoGuida, {}, {});
        store::Recordset& categories = open(store::TipoGuida, {});
        for (std::size_t i = 0; i < known; ++i) {
            categories.AddNew();
            categories.write(0, Zero(static_cast<double>(i + 1), 2));
            categories.write(1, QString::fromUtf16(primeCategorie[i]));
            categories.Update();
        }
    }

    void adjust() {
        form_.archivio.RecordSetImposta(0, store::MeteVanzer,
                                        {store::TabelleNomi(store::MeteVanzer), {}, {{QStringLiteral("Localita")}}});
        begin(QStringLiteral("Adeguamento archivio mète"), form_.archivio.NumeroRecord());
        store::Recordset& meta = form_.archivio.Rs(store::MeteVanzer);
        for (double done = 1; !meta.EOF_(); meta.MoveNext(), ++done) {
            advance(done);
            meta.Edit();
            for (int field = 0; field < meta.count(); ++field) {
                const QString value = meta.testo(field);
                if (const QString adjusted = valoreAdeguato(meta.name(field), meta.size(field), value);
                    adjusted != value)
                    meta.write(field, adjusted);
            }
            meta.Update();
        }
    }

    Form& form_;
    LavoroInCorso running_;
    std::optional<CodiciConvertiti> codes_;
    double left_ = 0;
    QStringList kept_;
    QStringList stuck_;
};

/// Tells the user why the conversion ended early.
void tellBrokenOff(Form& form, const QString& reason) {
    form.archivio.undoSoFar();
    AzzeraPercentuale(form);
    form.messaggio(reason + QStringLiteral("\n\nQuanto è già stato convertito è in archivio, il resto è ancora nei "
                                           "vecchi file: la conversione si può riprendere."),
                   titolo, Icona::Avviso);
}

void convert(Form& form) {
    try {
        Conversione work(form);
        work.mete();
        work.itinerari();
        work.guidaEAdeguamento();
        AzzeraPercentuale(form);
        if (work.tuttoConvertito())
            form.messaggio(work.resoconto());
        else
            form.messaggio(work.resoconto(), titolo, Icona::Avviso);
    } catch (const Interruzione& end) {
        tellBrokenOff(form, end.motivo);
    } catch (const store::StoreError& error) {
        tellBrokenOff(form, error.testo());
    }
}

} // namespace

void findOldFiles(Form& form) {
    form.stato.VecchiFile =
        store::vecchiFileInAttesa(form.archivio.PercorsoProgramma, [&form] { return codiciMemorizzati(form); });
    if (!form.stato.VecchiFile)
        return;
    form.cmdConverte.setCaption(QStringLiteral("C&onverte vecchi file"));
    form.cmdConverte.setTooltip(QStringLiteral("Porta in archivio le mète, gli itinerari e la guida dei vecchi file"));
}

void cmdConverte_Click(Form& form) {
    form.stato.Risposta =
        form.domanda(QStringLiteral("Vuoi convertire i vecchi file nel corrente database?\n\nI dati già presenti nel "
                                    "database saranno integrati e non cancellati.\n\nProcedo?"),
                     titolo, Pulsanti::SiNo);
    if (form.stato.Risposta == rispostaSi && !leaveChanges(form))
        return;
    if (form.stato.Risposta == rispostaSi) {
        AttivaFormMeta(form, true);
        form.txtNazione.setText({});
        convert(form);
        findOldFiles(form);
    }
    RicercaMetaCorrente(form);
    RicaricaItinerario(form);
    AbilitaPulsantiMeta(form, pulsanti::tutti);
}

} // namespace vanzer
