#include "scribolo/pdf.h"

#include <QDir>
#include <QFileInfo>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>

#include "core/text_file.h"
#include "scribolo/logbook.h"

namespace vanzer::scribolo {

namespace {

using namespace Qt::StringLiterals;

void drawLogbook(const Trip& trip, QIODevice& device) {
    QPdfWriter pdf(&device);
    pdf.setPageSize(QPageSize(QPageSize::A4));
    pdf.setPageMargins({});
    pdf.setTitle(u"Diario di bordo - "_s + trip.name);
    pdf.setCreator(u"Scribolo"_s);
    QPainter painter(&pdf);
    const std::vector<Page> pages = plan(trip);
    for (std::size_t i = 0; i < pages.size(); ++i) {
        if (i > 0)
            pdf.newPage();
        drawPage(painter, trip, pages, i);
    }
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
    drawLogbook(trip, file);
    if (const QString reason = mettePosto(file); !reason.isEmpty())
        throw Problem(u"Il file %1 non può essere scritto: %2"_s.arg(shown, reason));
    return path;
}

} // namespace vanzer::scribolo
