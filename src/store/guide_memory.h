// What was read of the guide, as it is asked for: a trip goes through its places in the same order again and again. So
// places, their letters and their entries lie one behind the other, where the processor fetches them ahead of use.
#pragma once

#include <span>
#include <string>
#include <vector>

#include <QHash>
#include <QString>

namespace vanzer::store {

struct VoceGuida {
    qint64 rowid = 0;
    QString tempoSosta;
    int codice = 0; ///< category
    QString gruppo;
    QString descrizione;
};

using VociGuida = std::span<const VoceGuida>;

class MemoriaGuida {
  public:
    /// The entries kept for a place or pattern; null if it wasn't read. They stay where they are until all is
    /// forgotten.
    [[nodiscard]] const VociGuida* trova(const QString& key);
    const VociGuida& tiene(const QString& key, std::vector<VoceGuida> entries);
    void dimentica() noexcept;

  private:
    struct Lettura {
        std::size_t lettere = 0; ///< where the key begins in `letters_`
        std::size_t lunghezza = 0;
        std::size_t dopo = 0; ///< what was asked for next, the last time
        VociGuida voci;
    };
    [[nodiscard]] bool follows(QStringView key) const;
    void goesOn(std::size_t to);

    std::vector<Lettura> read_;
    std::u16string letters_;
    std::vector<std::vector<VoceGuida>> blocks_; ///< none grows beyond what it has reserved
    QHash<QString, std::size_t> places_;
    std::size_t last_ = 0; ///< the one asked for last
};

} // namespace vanzer::store
