// SPDX-License-Identifier: MIT
// Readers under attack. Each takes any bytes, and must not crash, hang or break its promises.
#pragma once

#include <cstdio>
#include <cstdlib>
#include <map>
#include <string>

#include <QByteArray>

namespace vanzer::fuzz {

/// Add the name of a new reader to long.sh, and its corpus in a folder of that name.
struct Reader {
    using Function = void (*)(const QByteArray& input);

    Reader(const char* name, Function reads) { all()[name] = reads; }
    [[nodiscard]] static std::map<std::string, Function>& all() {
        static std::map<std::string, Function> readers;
        return readers;
    }
};

/// Ends the program with the text of a broken promise.
inline void promise(bool kept, const char* what) {
    if (kept)
        return;
    std::fprintf(stderr, "broken promise: %s\n", what);
    std::abort();
}

} // namespace vanzer::fuzz
