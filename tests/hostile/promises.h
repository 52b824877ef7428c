// What holds whatever a user does.
#pragma once

#include <map>
#include <string>

#include <QString>

#include "window/form.h"

namespace vanzer::hostile {

/// How often each promise was looked at.
using Looks = std::map<std::string, long>;

/// What is broken in the window as it stands, between two commands; empty if nothing is. With `marksRepeated` a mark
/// may stand in more than one row.
[[nodiscard]] QString brokenInWindow(const Form& window, bool marksRepeated, Looks& looks);

/// What is broken in the open archive.
[[nodiscard]] QString brokenInArchive(store::Archive& archive, Looks& looks);

/// What is broken in a folder whose program has ended; with `deep` the file itself is checked too.
[[nodiscard]] QString brokenInFolder(const QString& folder, bool deep, Looks& looks);

} // namespace vanzer::hostile
