// The structure of a PDF file: numbered objects, the pages, and the table that tells where each object begins. It goes
// to the device as it comes, so that of a long document a number for each object is all that is kept.
#pragma once

#include <vector>

#include <QByteArray>
#include <QIODevice>

namespace vanzer {

/// Sizes and positions on paper, and in the file.
inline constexpr double pointsPerMm = 72 / 25.4;

/// The data of an object that has some, and the entries that describe it.
struct PdfStream {
    QByteArray entries{};
    QByteArray data{};
};

/// Made smaller, quickly rather than by much.
[[nodiscard]] PdfStream packed(QByteArrayView data, const QByteArray& entries = {});

/// A reference to an object: "7 0 R ".
[[nodiscard]] QByteArray pdfReference(int object);

/// A text of any letters for an entry that is shown to people.
[[nodiscard]] QByteArray pdfText(const QString& text);

/// Whether all of it arrived is asked of the device.
class PdfStructure {
  public:
    /// Begins the file. All pages are A4, upright.
    explicit PdfStructure(QIODevice& device);

    /// Number of an object that is written later.
    [[nodiscard]] int reserve();
    void write(int object, const QByteArray& body);
    void write(int object, const PdfStream& stream);

    void addPage(const PdfStream& content);
    /// `resources` serve every page; `info` describes the document.
    void finish(const QByteArray& resources, const QByteArray& info = {});

  private:
    void put(const QByteArray& bytes);
    void begin(int object);

    QIODevice& device_;
    qint64 written_ = 0;
    std::vector<qint64> starts_; ///< of the objects, from number 1
    std::vector<int> pages_;
};

} // namespace vanzer
