// The draft's file beside the archive: read with care, since anything may lie there, and written so that a whole one is
// there at any time.
#pragma once

#include <optional>

#include <QByteArray>
#include <QString>

namespace vanzer::store {

inline constexpr QLatin1String nomeBozza("Vanzer.bozza");
/// What a draft that was put aside gets behind its name.
inline constexpr QLatin1String bozzaRifiutata(".precedente");
inline constexpr QLatin1String bozzaDanneggiata(".danneggiata");

/// The bytes of the draft; nothing if there is none. Throws Corrupt for what is no plain file or larger than a draft,
/// Io for what can't be read.
[[nodiscard]] std::optional<QByteArray> readDraft(const QString& path);

/// Writes aside, for its owner's eyes only, and puts into place what is safe on the disk. Throws Io; the draft before
/// is still there then.
void writeDraft(const QString& path, const QByteArray& bytes);

void removeDraft(const QString& path) noexcept;

/// Gives the draft, whatever it is, another name: its own with `ending`, in place of what had that name before. Returns
/// the path. Throws Io.
QString setDraftAside(const QString& path, QLatin1String ending);

} // namespace vanzer::store
