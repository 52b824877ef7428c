// Files that are put into place: whole and safe on the disk, or not at all.
#pragma once

#include <QString>

namespace vanzer::store {

/// Takes away a file of the engine that isn't open, with its journal.
void removeFile(const QString& path) noexcept;

/// Takes away what a failing disk may have left beside a file of the engine that was closed in order.
void removeRemains(const QString& path) noexcept;

/// The file `to` gets the rights of the file `from`: who may read and write it, and whose it is as far as this user may
/// decide that. If it isn't there it is made, empty, and nobody ever had more rights to it; before that the engine must
/// not have it open. Throws Io if it can't be made; a disk that keeps no rights is no failure.
void copyRights(const QString& from, const QString& to);

/// Makes a folder for copies of a file, if it isn't there. Whoever may not read the file may not look into the folder,
/// be it an older one. False if there is no such folder after all.
[[nodiscard]] bool cartellaPer(const QString& file, const QString& folder);

/// A whole file that is closed takes the place of another, in one step that outlives a loss of power. Where the name
/// is a link the file behind it is replaced, on whatever disk that is. Throws Io; if it was the last step, making the
/// folder safe, that failed, the new file is in its place.
void putInPlace(const QString& from, const QString& to);

} // namespace vanzer::store
