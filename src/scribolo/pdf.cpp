// SPDX-License-Identifier: MIT
#include "scribolo/pdf.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

#include "core/text_file.h"
#include "paper/pdf.h"
#include "scribolo/logbook.h"

namespace vanzer::scribolo {

namespace {

using namespace Qt::StringLiterals;

/// False if the device did not take all of it.
bool drawLogbook(const Trip& trip, QIODevice& device) {
    paper::Fonts fonts;
    if (fonts.typefaceFor(u"Liberation Sans"_s).family.isEmpty())
        throw Problem(u"Non è installato nessun carattere di stampa."_s);
    paper::Pdf pdf(
        device, fonts,
        {.title = u"Diario di bordo - "_s + trip.name, .creator = u"Scribolo"_s, .made = QDateTime::currentDateTime()});
    const std::vector<Page> pages = plan(trip);
    for (std::size_t i = 0; i < pages.size(); ++i) {
        if (!pdf.add(drawnPage(trip, pages, i, fonts)))
            return false;
    }
    return pdf.finish();
}

} // namespace

QString writePdf(const Trip& trip, const QString& directory) {
    if (!QDir(directory).exists())
        throw Problem(u"La cartella %1 non esiste."_s.arg(QDir::toNativeSeparators(directory)));
    QString path = QDir(directory).absoluteFilePath(fileName(trip.name));
    const QString shown = QDir::toNativeSeparators(path);
    if (QFileInfo(path).isSymLink())
        throw Problem(u"Il file %1 non può essere scritto: è un collegamento a un altro file."_s.arg(shown));
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        throw Problem(u"Il file %1 non può essere scritto: forse la cartella è protetta."_s.arg(shown));
    const QString reason = drawLogbook(trip, file) ? commitFile(file) : motivoNonScritto(path);
    if (!reason.isEmpty())
        throw Problem(u"Il file %1 non può essere scritto: %2"_s.arg(shown, reason));
    return path;
}

} // namespace vanzer::scribolo
