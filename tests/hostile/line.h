// The words of a command line, thought of in the order in which they stand.
#pragma once

#include <QStringList>

namespace vanzer::hostile {

/// A list in braces is put together from its first word to its last; operands of a sum may be in any order.
[[nodiscard]] inline QString line(const QStringList& words) {
    return words.join(u' ');
}

} // namespace vanzer::hostile
