// Files that are put into place: whole and safe on the disk, or not at all.
#pragma once

#include <QString>

namespace vanzer::store {

/// Takes away a file of the engine that isn't open, with its journal.
void toglieFile(const QString& path) noexcept;

/// Takes away what a failing disk may have left beside a file of the engine that was closed in order.
void toglieResti(const QString& path) noexcept;

/// A file takes another's name, in one step that outlives a loss of power. Throws Io.
void metteAlPosto(const QString& from, const QString& to);

} // namespace vanzer::store
