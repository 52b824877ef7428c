// The words of a command line.
#pragma once

#include <QString>

namespace vanzer::batch {

/// The first word, and all that follows the one blank behind it.
struct Line {
    QString word;
    QString rest;
};

/// Blanks in front of the first word don't count.
[[nodiscard]] Line split(const QString& text);

/// Empty lines and comments.
[[nodiscard]] bool saysNothing(const QString& line);

/// "\n", "\t" and "\\" as the characters that they stand for; any other backslash stays.
[[nodiscard]] QString unescaped(const QString& text);

} // namespace vanzer::batch
