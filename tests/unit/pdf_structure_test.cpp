// The numbered objects of a PDF and the table of where they begin.
#include <gtest/gtest.h>

#include <QBuffer>

#include "toolkit/pdf_structure.h"

namespace vanzer {

TEST(PdfStructureTest, TheTableFindsEveryObjectInWhateverOrderTheyWereWritten) {
    QBuffer device;
    device.open(QIODevice::WriteOnly);
    PdfStructure file(device);
    const int first = file.reserve();
    const int second = file.reserve();
    file.addPage({.data = "0 0 m 1 1 l S\n"});
    file.write(second, PdfStream{.entries = "/Type/Test", .data = QByteArray("a\0\r\nb", 5)});
    file.addPage(packed("0 0 m 2 2 l S\n"));
    file.write(first, "<</Ref " + pdfReference(second) + ">>");
    file.finish("/XObject<<>>", "/Title" + pdfText(QStringLiteral("Città €")));

    const QByteArray& bytes = device.data();
    const qsizetype tableAt = bytes.lastIndexOf("startxref\n") + 10;
    const QByteArray table = bytes.mid(bytes.mid(tableAt, bytes.indexOf('\n', tableAt) - tableAt).toLongLong());
    ASSERT_TRUE(table.startsWith("xref\n0 10\n0000000000 65535 f \n")) << table.toStdString();
    constexpr qsizetype head = 10;
    constexpr qsizetype entry = 20;
    for (int object = 1; object < 10; ++object) {
        const QByteArray name = QByteArray::number(object) + " 0 obj\n";
        const QByteArray line = table.mid(head + entry * object, entry);
        EXPECT_TRUE(line.endsWith(" 00000 n \n"));
        EXPECT_EQ(bytes.mid(line.left(10).toLongLong(), name.size()), name);
    }
    EXPECT_TRUE(table.contains("/Size 10/Root 1 0 R /Info 9 0 R "));
    EXPECT_TRUE(bytes.contains("<</Type/Test/Length 5>>\nstream\n" + QByteArray("a\0\r\nb", 5) + "\nendstream"));
    EXPECT_TRUE(bytes.contains("/Kids[6 0 R 8 0 R ]/Count 2>>"));
    EXPECT_TRUE(bytes.contains("/Title<FEFF004300690074007400e0002020ac>"));
}

TEST(PdfStructureTest, PackedDataIsWhatReadersUnpack) {
    const QByteArray data = QByteArray("10 20 m 30 40 l S\n").repeated(1000);
    const PdfStream stream = packed(data, "/Length1 5");
    EXPECT_EQ(stream.entries, "/Length1 5/Filter/FlateDecode");
    EXPECT_LT(stream.data.size(), data.size() / 20);
    const QByteArray sized =
        QByteArray("\0\0", 2) + static_cast<char>(data.size() >> 8) + static_cast<char>(data.size());
    EXPECT_EQ(qUncompress(sized + stream.data), data);
}

} // namespace vanzer
