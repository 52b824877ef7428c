#include "batch/pdf_file.h"

#include <array>

#include <QBuffer>

#include "core/code_page.h"
#include "core/text_file.h"
#include "toolkit/pdf_structure.h"

namespace vanzer::batch {

namespace {

constexpr double sheetHeight = 297; // mm
constexpr double baseline = 0.32;   // mm below the top of a text, for each point of its size
constexpr double penStep = 0.1;     // mm
constexpr std::array cuts{"Times-Roman", "Times-Bold", "Times-Italic", "Times-BoldItalic"};

QByteArray number(double x) {
    return QByteArray::number(x, 'f', 2) + ' ';
}
QByteArray across(double mm) {
    return number(mm * pointsPerMm);
}
/// The file counts from the bottom of the sheet.
QByteArray up(double mm) {
    return number((sheetHeight - mm) * pointsPerMm);
}

QByteArray quoted(const QString& text) {
    QByteArray bytes = toCodePage(text);
    for (const char* special : {"\\", "(", ")"})
        bytes.replace(special, QByteArray("\\") + special);
    bytes.replace('\r', "\\r").replace('\n', "\\n");
    return '(' + bytes + ')';
}

QByteArray textCode(const Operazione& o) {
    const int cut = (o.font.bold ? 1 : 0) + (o.font.italic ? 2 : 0);
    return "BT /F" + QByteArray::number(cut) + ' ' + number(o.font.size) + "Tf " + across(o.a.x) +
           up(o.a.y + baseline * o.font.size) + "Td " + quoted(o.text) + " Tj ET\n";
}

QByteArray lineCode(const Operazione& o) {
    return across(o.width * penStep) + "w " + across(o.a.x) + up(o.a.y) + "m " + across(o.b.x) + up(o.b.y) + "l S\n";
}

QByteArray fillColour(quint32 rgb) {
    QByteArray code;
    for (const unsigned shift : {16U, 8U, 0U})
        code += number((rgb >> shift & 0xFFU) / 255.0);
    return code + "rg ";
}

QByteArray boxCode(const Operazione& o) {
    const QByteArray outline = across(o.a.x) + up(o.a.y) + across(o.b.x - o.a.x) + across(o.a.y - o.b.y) + "re ";
    const QByteArray paint = o.fill ? "B\n" : "S\n";
    // The colour holds within the brackets alone, so that texts stay black.
    return "q " + (o.fill ? fillColour(*o.fill) : QByteArray()) + across(o.width * penStep) + "w " + outline + paint +
           "Q\n";
}

QByteArray contentOf(const Pagina& page) {
    QByteArray code;
    for (const Operazione& operation : page) {
        switch (operation.kind) {
        case Operazione::Kind::Text: code += textCode(operation); break;
        case Operazione::Kind::Line: code += lineCode(operation); break;
        case Operazione::Kind::Box: code += boxCode(operation); break;
        case Operazione::Kind::Picture: break;
        }
    }
    return code;
}

/// The reader's own fonts, under the names by which contents call them.
QByteArray fonts() {
    QByteArray named;
    for (std::size_t i = 0; i < cuts.size(); ++i)
        named += "/F" + QByteArray::number(i) + "<</Type/Font/Subtype/Type1/Encoding/WinAnsiEncoding/BaseFont/" +
                 cuts[i] + ">>";
    return "/Font<<" + named + ">>";
}

} // namespace

QByteArray pdfOf(const std::vector<Pagina>& pages) {
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    PdfStructure file(bytes);
    for (const Pagina& page : pages)
        file.addPage({.data = contentOf(page)});
    file.finish(fonts());
    return bytes.data();
}

bool writePdf(const QString& path, const std::vector<Pagina>& pages) {
    return scriveFile(path, pdfOf(pages)).isEmpty();
}

} // namespace vanzer::batch
