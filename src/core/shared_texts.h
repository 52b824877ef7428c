// Texts that come again and again in a long table (roads, times, groups): one copy of each is kept in memory.
#pragma once

#include <vector>

#include <QHash>
#include <QString>

namespace vanzer {

class TestiComuni {
  public:
    /// The same letters, from the copy that is kept if there is one. A text may push another one out: nothing but
    /// memory depends on it.
    [[nodiscard]] const QString& comune(const QString& text) {
        QString& kept = kept_[qHash(text) % places];
        if (kept != text)
            kept = text;
        return kept;
    }

  private:
    static constexpr std::size_t places = 1024;

    std::vector<QString> kept_ = std::vector<QString>(places);
};

} // namespace vanzer
