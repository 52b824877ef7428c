#include "batch/pdf_file.h"

#include <array>

#include <QSaveFile>

#include "core/code_page.h"

namespace vanzer::batch {

namespace {

constexpr double pointsPerMm = 72 / 25.4;
constexpr double sheetWidth = 210; // mm
constexpr double sheetHeight = 297;
constexpr double baseline = 0.32; // mm below the top of a text, for each point of its size
constexpr double penStep = 0.1;   // mm
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

/// The file's numbered objects, and where each begins.
class Objects {
  public:
    void add(const QByteArray& body) {
        starts_.push_back(bytes_.size());
        bytes_ += QByteArray::number(starts_.size()) + " 0 obj\n" + body + "\nendobj\n";
    }

    /// Object 1 is the catalogue.
    [[nodiscard]] QByteArray finished() && {
        const QByteArray count = QByteArray::number(starts_.size() + 1);
        const QByteArray tableStart = QByteArray::number(bytes_.size());
        bytes_ += "xref\n0 " + count + "\n0000000000 65535 f \n";
        for (const qsizetype start : starts_)
            bytes_ += QByteArray::number(start).rightJustified(10, '0') + " 00000 n \n";
        bytes_ += "trailer\n<</Size " + count + "/Root 1 0 R>>\nstartxref\n" + tableStart + "\n%%EOF\n";
        return std::move(bytes_);
    }

  private:
    QByteArray bytes_ = "%PDF-1.4\n";
    QList<qsizetype> starts_;
};

/// Catalogue, list of pages and the fonts come first, then each page and its content.
constexpr int firstFont = 3;
constexpr int firstPage = firstFont + static_cast<int>(cuts.size());

QByteArray reference(qsizetype object) {
    return QByteArray::number(object) + " 0 R ";
}

QByteArray pageList(qsizetype count) {
    QByteArray kids;
    for (qsizetype i = 0; i < count; ++i)
        kids += reference(firstPage + 2 * i);
    return "<</Type/Pages/Kids[" + kids + "]/Count " + QByteArray::number(count) + ">>";
}

QByteArray pageHead(qsizetype content) {
    QByteArray fonts;
    for (int i = 0; i < static_cast<int>(cuts.size()); ++i)
        fonts += "/F" + QByteArray::number(i) + ' ' + reference(firstFont + i);
    return "<</Type/Page/Parent 2 0 R/MediaBox[0 0 " + across(sheetWidth) + across(sheetHeight) +
           "]/Resources<</Font<<" + fonts + ">>>>/Contents " + reference(content) + ">>";
}

} // namespace

QByteArray pdfOf(const std::vector<Pagina>& pages) {
    Objects objects;
    const auto count = static_cast<qsizetype>(pages.size());
    objects.add("<</Type/Catalog/Pages 2 0 R>>");
    objects.add(pageList(count));
    for (const char* cut : cuts)
        objects.add(QByteArray("<</Type/Font/Subtype/Type1/Encoding/WinAnsiEncoding/BaseFont/") + cut + ">>");
    for (qsizetype i = 0; i < count; ++i) {
        const QByteArray content = contentOf(pages[static_cast<std::size_t>(i)]);
        objects.add(pageHead(firstPage + 2 * i + 1));
        objects.add("<</Length " + QByteArray::number(content.size()) + ">>\nstream\n" + content + "endstream");
    }
    return std::move(objects).finished();
}

bool writePdf(const QString& path, const std::vector<Pagina>& pages) {
    QSaveFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(pdfOf(pages)) >= 0 && file.flush() && file.commit();
}

} // namespace vanzer::batch
