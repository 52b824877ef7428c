#pragma once

#include <QByteArray>

namespace vanzer::fuzz {

/// Imports every destination of the file into an archive with some of the like, and writes what came in again.
void readExchangeFile(const QByteArray& input);

} // namespace vanzer::fuzz
