// SPDX-License-Identifier: MIT
#include "reports/schedule_files_screen.h"

#include <QDir>

#include "reports/calendar_file.h"
#include "reports/csv_file.h"
#include "schedule/time_line_screen.h"
#include "store/outside_files.h"

namespace vanzer {

namespace {

/// The columns that the user sees.
constexpr int shownColumns = 13;

struct Formato {
    const char16_t* filtro;
    const char16_t* titolo;
};

Formato described(FormatoViandoria format) {
    return format == FormatoViandoria::Calendario ? Formato{u"Calendario (*.ics)|*.ics", u"Calendario"}
                                                  : Formato{u"Tabella (*.csv)|*.csv", u"Tabella"};
}

QByteArray contents(const Form& form, FormatoViandoria format) {
    if (format == FormatoViandoria::Calendario)
        return calendario(form.txtLocalita.text(), lineaMostrata(form), form.ports.clock.now());
    return valoriSeparati(form.mfgTab.rows(), shownColumns,
                          [&form](int row, int column) -> const QString& { return form.mfgTab.cell(row, column); });
}

QString fileAt(const Form& form, const QString& path) {
    return QDir(form.archivio.PercorsoProgramma).filePath(path);
}

void askAndWrite(Form& form, FormatoViandoria format) {
    const Formato f = described(format);
    const QString title = QString::fromUtf16(f.titolo);
    const QString path = form.ports.files.save(QString::fromUtf16(f.filtro), Ricopertura::ChiedeIlDialogo);
    if (path.isEmpty())
        return;
    const QString shown = QDir::toNativeSeparators(path);
    if (const QString reason = writeSchedule(form, format, path); reason.isEmpty())
        form.messaggioFile(QStringLiteral("La viandoria è nel file:\n\n") + shown, {fileAt(form, path)}, title,
                           Icona::Informazione);
    else
        form.messaggio(QStringLiteral("Il file %1 non è stato scritto: %2").arg(shown, reason), title, Icona::Avviso);
}

} // namespace

QString writeSchedule(const Form& form, FormatoViandoria format, const QString& path) {
    return store::writeForOthers(fileAt(form, path), contents(form, format), form.archivio.PercorsoDatabase);
}

void cmdCalendario_Click(Form& form) {
    askAndWrite(form, FormatoViandoria::Calendario);
}

void cmdFoglio_Click(Form& form) {
    askAndWrite(form, FormatoViandoria::Tabella);
}

} // namespace vanzer
