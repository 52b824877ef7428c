// SPDX-License-Identifier: MIT
// Splits command lines.
#pragma once

#include <QString>

namespace vanzer::batch {

/// The first word of a line, and the text after the blank that follows it.
struct Line {
    QString word;
    QString rest;
};

/// Splits a line. Blanks before the first word are skipped.
[[nodiscard]] Line split(const QString& text);

/// True for an empty line or a comment.
[[nodiscard]] bool saysNothing(const QString& line);

/// Replaces "\n", "\t" and "\\" by their characters. Any other backslash stays.
[[nodiscard]] QString unescaped(const QString& text);

} // namespace vanzer::batch
