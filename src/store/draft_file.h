// SPDX-License-Identifier: MIT
// The draft's file beside the archive. Reading doesn't trust what is there. Writing replaces the file in one step, so
// that a complete draft is there at any time.
#pragma once

#include <optional>

#include <QByteArray>
#include <QString>

namespace vanzer::store {

inline constexpr QLatin1String nomeBozza("Vanzer.bozza");
/// Endings for the name of a draft that was set aside.
inline constexpr QLatin1String bozzaRifiutata(".precedente");
inline constexpr QLatin1String bozzaDanneggiata(".danneggiata");

/// The bytes of the draft; nothing if there is none. Throws Corrupt if it isn't a plain file or is larger than
/// `massimaBozza`, Io if it can't be read.
[[nodiscard]] std::optional<QByteArray> readDraft(const QString& path);

/// Writes a temporary file that only its owner may read, and renames it once it is safe on the disk. Throws Io; the
/// previous draft is still there then.
void writeDraft(const QString& path, const QByteArray& bytes);

void removeDraft(const QString& path) noexcept;

/// Renames the draft, whatever kind of file it is: `ending` is added to its name. Replaces an older file of that name.
/// Returns the new path. Throws Io.
QString setDraftAside(const QString& path, QLatin1String ending);

} // namespace vanzer::store
