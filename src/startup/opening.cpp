// SPDX-License-Identifier: MIT
#include "startup/opening.h"

#include <optional>

#include <QDir>
#include <QFileInfo>

#include "core/text.h"
#include "exchange/conversion_screen.h"
#include "guide/categories_screen.h"
#include "store/daily_copy.h"
#include "store/kept_archive.h"
#include "trip/destination_screen.h"
#include "trip/parameter_fields_screen.h"
#include "window/button_codes.h"
#include "window/changes.h"
#include "window/command.h"
#include "window/grid_layouts.h"
#include "window/modes.h"
#include "window/progress.h"

namespace vanzer {

namespace {

/// Tells where the copies of earlier days are. Empty if there are none.
QString copiesAre(const Form& form) {
    const QFileInfo newest(store::ultimaCopia(form.archivio.PercorsoDatabase));
    if (newest.fileName().isEmpty())
        return {};
    return QStringLiteral("Le copie dei giorni scorsi sono in %1, la più recente è \"%2\".")
        .arg(QDir::toNativeSeparators(newest.path()), newest.fileName());
}

QString withCopies(const Form& form, const QString& text) {
    const QString where = copiesAre(form);
    return where.isEmpty() ? text : text + QStringLiteral("\n\n") + where;
}

QString isDamaged(const Form& form) {
    return withCopies(form, QStringLiteral("L'archivio %1 si apre, ma al suo interno è danneggiato. Nessuna copia ne è "
                                           "stata fatta e nessuna di quelle che ci sono è stata tolta.")
                                .arg(QDir::toNativeSeparators(form.archivio.PercorsoDatabase)));
}

/// Makes the day's copy of the archive, as the day before left it. A copy that takes long shows its progress and can be
/// stopped. Returns messages for the user, none if all went well.
QStringList copyOfTheDay(Form& form, store::Database& archive) {
    std::optional<LavoroInCorso> shown;
    const auto progress = [&form, &shown](qint64 done, qint64 total) {
        if (!shown) {
            shown.emplace(form);
            form.lblElaborazione.setCaption(QStringLiteral("Copia dell'archivio"));
            form.stato.PercentualeTotale = static_cast<double>(total);
            AbilitaPulsantiMeta(form, pulsanti::soloStop);
        }
        return shown->advance(static_cast<double>(done));
    };
    QStringList failure;
    try {
        store::makeDailyCopy(archive, form.ports.clock.now().date(), progress);
    } catch (const store::StoreError& error) {
        failure += error.kind() == store::StoreError::Kind::Corrupt
                       ? isDamaged(form)
                       : withCopies(form, QStringLiteral("La copia di oggi dell'archivio non è stata fatta.\n\n") +
                                              error.testo());
    }
    if (shown) {
        AzzeraPercentuale(form);
        AbilitaPulsantiMeta(form, pulsanti::nessunoMaiuscolo);
    }
    return failure;
}

/// Checks the archive and copies it. This happens once a day, and also if the archive wasn't closed properly or another
/// program wrote it. Returns messages for the user.
QStringList checkAndCopy(Form& form, store::Database& archive) {
    using enum store::Database::Salute;
    const bool due = store::copyDue(archive.percorso(), form.ports.clock.now().date());
    if (archive.chiusoInOrdine() && !due)
        return {};
    const auto health = archive.check();
    if (health == Danneggiato)
        return {isDamaged(form)};
    QStringList told;
    if (health == IndiciRifatti)
        told +=
            QStringLiteral("Gli indici dell'archivio %1 non corrispondevano ai dati: sono stati rifatti. I dati sono "
                           "rimasti com'erano.")
                .arg(QDir::toNativeSeparators(archive.percorso()));
    return told + copyOfTheDay(form, archive);
}

store::Archive::SenzaArchivio askForCopy(Form& form, const store::CopiaTrovata& copy) {
    using enum store::Archive::SenzaArchivio;
    const QFileInfo file(copy.path);
    const QString trips = copy.mete == 1 ? QStringLiteral("1 meta") : QStringLiteral("%1 mete").arg(copy.mete);
    const int answer = form.ask(
        {.text =
             QStringLiteral("L'archivio %1 non c'è, ma in %2 ci sono le sue copie. Riprendere la copia \"%3\" (%4)?")
                 .arg(QDir::toNativeSeparators(form.archivio.PercorsoDatabase), QDir::toNativeSeparators(file.path()),
                      file.fileName(), copy.mete < 0 ? QStringLiteral("non si legge") : trips),
         .title = QStringLiteral("Archivio"),
         .buttons = Pulsanti::RiprendeCominciaAnnulla,
         .icon = Icona::Avviso,
         .detail = QStringLiteral("Con un archivio nuovo le copie restano dove sono. Annulla lascia tutto com'è.")});
    return answer == rispostaSi ? Riprende : answer == rispostaNo ? Comincia : Rinuncia;
}

QStringList told(const Form& form, const store::Archive::Apertura& opening) {
    QStringList texts;
    if (!opening.giornaleEstraneo.isEmpty())
        texts +=
            QStringLiteral("Accanto all'archivio c'era il giornale di un altro archivio, o di un altro suo stato: non "
                           "è stato usato. È messo da parte come %1.")
                .arg(QDir::toNativeSeparators(opening.giornaleEstraneo));
    if (opening.valoriTagliati > 0)
        texts +=
            QStringLiteral("Le tabelle dell'archivio %1 sono state aggiornate. Testi troppo lunghi, accorciati: %2. "
                           "Interi stanno ancora, per %3 avvii, in %4.")
                .arg(QDir::toNativeSeparators(form.archivio.PercorsoDatabase))
                .arg(opening.valoriTagliati)
                .arg(store::avviiTenuti)
                .arg(QDir::toNativeSeparators(opening.archivioDiPrima));
    return texts;
}

/// Opens the archive. Returns messages for the user, to be shown once the window is ready.
QStringList openArchive(Form& form) {
    QStringList warnings;
    const store::Archive::Apertura opening = form.archivio.openArchive(
        [&form, &warnings](store::Database& archive) { warnings = checkAndCopy(form, archive); },
        [&form](const store::CopiaTrovata& copy) { return askForCopy(form, copy); });
    form.lblPath.setCaption(form.archivio.PercorsoDatabase);
    if (opening.archivioDiPrima.isEmpty())
        store::countStart(form.archivio.PercorsoDatabase);
    return told(form, opening) + warnings;
}

void showCurrentTrip(Form& form) {
    RicercaMetaCorrente(form);
    if (!form.stato.CodiceMeta.isEmpty())
        RicaricaItinerario(form);
    form.stato.RigaCorrente = Maggiore(form.mfgTab.row(), 1);
    SelezionaRiga(form, form.stato.RigaCorrente);
}

void Form_Load(Form& form) {
    StatoFinestra& s = form.stato;
    form.comandoInCorso = true; // until all is loaded
    s.PulsantiItinerario = pulsanti::nessunoMaiuscolo;
    AbilitaPulsantiMeta(form, pulsanti::nessunoMaiuscolo);
    PulisciFinestre(form);
    CaricaRange(form);
    QStringList warnings = openArchive(form);
    bool loaded = false;
    const auto load = [&form, &s, &loaded] {
        CaricaComboBox(form);
        form.mfgTab.setCurrent(1, 1);
        ImpostaGriglia(form, Disposizione::Tappe);
        s.RigheMinime = 17;
        form.cmdItinerario.setVisible(true);
        AzzeraPercentuale(form);
        showCurrentTrip(form);
        CaricaTipiGuida(form);
        form.archivio.RecordSetImpostaDefault();
        form.txtGDescr.setMaxLength(form.archivio.Rs(store::GuidaCitta).size(3));
        form.mfgCopia.setVisible(false);
        form.yield();
        findOldFiles(form);
        AbilitaPulsantiMeta(form, pulsantiDiBase(form));
        ImpostaGiorniMeseInizio(form);
        RipulisceLuoghiGuida(form);
        loaded = true;
    };
    try {
        storeTogether(form, load);
    } catch (const store::StoreError& error) {
        if (!loaded)
            throw;
        warnings += error.testo();
    }
    rememberFields(form);
    for (const QString& warning : warnings)
        form.messaggio(warning, QStringLiteral("Archivio"), Icona::Avviso);
}

/// The message for a failed opening. It has the reason, unless the file is damaged. It names the copies, unless the
/// archive is only in use.
QString openingFailed(const Form& form, const store::StoreError& error) {
    QStringList text{QStringLiteral("Errore apertura database ") + form.archivio.PercorsoDatabase};
    if (error.kind() != store::StoreError::Kind::Corrupt)
        text += error.testo();
    if (const QString copies = copiesAre(form); error.kind() != store::StoreError::Kind::Busy && !copies.isEmpty())
        text +=
            copies + QStringLiteral(" Per ripartire da una copia la si mette al posto dell'archivio, con il suo nome.");
    return text.join(QStringLiteral("\n\n"));
}

} // namespace

void loadWindow(Form& form) {
    try {
        Form_Load(form);
    } catch (const store::StoreError& error) {
        form.refuse(openingFailed(form, error));
        form.archivio.close();
        form.chiusa = true;
    }
}

} // namespace vanzer
