#pragma once

#include <QByteArray>

namespace vanzer::fuzz {

/// Reads the bytes as each kind of old file.
void readOldFile(const QByteArray& input);

} // namespace vanzer::fuzz
