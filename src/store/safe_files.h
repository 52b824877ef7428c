// SPDX-License-Identifier: MIT
// Puts files into place: complete and safe on the disk, or not at all.
#pragma once

#include <QString>

namespace vanzer::store {

/// Removes a file of the engine and its journal. The file must not be open.
void removeFile(const QString& path) noexcept;

/// Removes the journal that a failing disk may have left beside a file of the engine that was closed in order.
void removeRemains(const QString& path) noexcept;

/// Gives the file `to` the permissions of the file `from`, and its owner and group as far as this user may set them. If
/// `to` doesn't exist, it is made empty and never has wider permissions. The engine must not have `to` open. Throws Io
/// if it can't be made. A file system without permissions is not an error.
void copyRights(const QString& from, const QString& to);

/// Makes a folder for copies of a file unless it exists. Users who may not read the file may not list the folder; this
/// also holds for an existing folder. False if the folder can't be made.
[[nodiscard]] bool cartellaPer(const QString& file, const QString& folder);

/// Replaces the file `to` by the complete, closed file `from`, in one step that survives a loss of power. If `to` is a
/// link, the file at its end is replaced, also on another disk. Throws Io. If only the last step failed, making the
/// folder safe, the new file is already in place.
void putInPlace(const QString& from, const QString& to);

} // namespace vanzer::store
