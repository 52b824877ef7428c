// The 8-bit code page 1252 of the text files.
#pragma once

#include <QByteArray>
#include <QString>

namespace vanzer::batch {

/// Every byte has a character: the five that the code page leaves free are the controls of that number.
[[nodiscard]] QString fromCodePage(QByteArrayView bytes);
/// What has no place in the code page becomes "?".
[[nodiscard]] QByteArray toCodePage(const QString& text);

} // namespace vanzer::batch
