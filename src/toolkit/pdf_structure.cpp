#include "toolkit/pdf_structure.h"

#include <QString>

namespace vanzer {

namespace {

// Known before anything is written.
constexpr int catalogue = 1;
constexpr int pageList = 2;

const QByteArray a4 = "[0 0 595.28 841.89]"; // points

} // namespace

PdfStream packed(QByteArrayView data, const QByteArray& entries) {
    constexpr int fastest = 1;
    constexpr qsizetype lengthInFront = 4;
    QByteArray smaller = qCompress(reinterpret_cast<const uchar*>(data.data()), data.size(), fastest);
    smaller.remove(0, lengthInFront);
    return {entries + "/Filter/FlateDecode", std::move(smaller)};
}

QByteArray pdfReference(int object) {
    return QByteArray::number(object) + " 0 R ";
}

QByteArray pdfText(const QString& text) {
    QByteArray hex = "<FEFF";
    for (const QChar c : text)
        hex += QByteArray::number(c.unicode(), 16).rightJustified(4, '0');
    return hex + '>';
}

PdfStructure::PdfStructure(QIODevice& device) : device_(device), starts_(pageList) {
    // The bytes behind the mark tell programs that carry files that this one is no text.
    put("%PDF-1.4\n%\xE2\xE3\xCF\xD3\n");
}

void PdfStructure::put(const QByteArray& bytes) {
    device_.write(bytes);
    written_ += bytes.size();
}

int PdfStructure::reserve() {
    starts_.push_back(0);
    return static_cast<int>(starts_.size());
}

void PdfStructure::begin(int object) {
    starts_[static_cast<std::size_t>(object) - 1] = written_;
    put(QByteArray::number(object) + " 0 obj\n");
}

void PdfStructure::write(int object, const QByteArray& body) {
    begin(object);
    put(body + "\nendobj\n");
}

void PdfStructure::write(int object, const PdfStream& stream) {
    begin(object);
    put("<<" + stream.entries + "/Length " + QByteArray::number(stream.data.size()) + ">>\nstream\n");
    put(stream.data);
    put("\nendstream\nendobj\n");
}

void PdfStructure::addPage(const PdfStream& content) {
    const int stream = reserve();
    write(stream, content);
    pages_.push_back(reserve());
    write(pages_.back(), "<</Type/Page/Parent " + pdfReference(pageList) + "/Contents " + pdfReference(stream) + ">>");
}

void PdfStructure::finish(const QByteArray& resources, const QByteArray& info) {
    QByteArray kids;
    for (const int page : pages_)
        kids += pdfReference(page);
    write(pageList, "<</Type/Pages/MediaBox" + a4 + "/Resources<<" + resources + ">>/Kids[" + kids + "]/Count " +
                        QByteArray::number(pages_.size()) + ">>");
    write(catalogue, "<</Type/Catalog/Pages " + pdfReference(pageList) + ">>");
    const int about = reserve();
    write(about, "<<" + info + ">>");

    const qint64 table = written_;
    const QByteArray count = QByteArray::number(starts_.size() + 1);
    put("xref\n0 " + count + "\n0000000000 65535 f \n");
    for (const qint64 start : starts_)
        put(QByteArray::number(start).rightJustified(10, '0') + " 00000 n \n");
    put("trailer\n<</Size " + count + "/Root " + pdfReference(catalogue) + "/Info " + pdfReference(about) +
        ">>\nstartxref\n" + QByteArray::number(table) + "\n%%EOF\n");
}

} // namespace vanzer
