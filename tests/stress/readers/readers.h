// Readers under fire: each takes any bytes and must neither crash nor hang nor break its promises.
#pragma once

#include <map>
#include <string>

#include <QByteArray>

namespace vanzer::fuzz {

using Function = void (*)(const QByteArray& input);

[[nodiscard]] std::map<std::string, Function>& readers();

/// A new one gets its name in long.sh and its corpus in a folder of that name.
struct Reader {
    Reader(const char* name, Function reads) { readers()[name] = reads; }
};

/// Ends the program with what was promised, if it isn't so.
void promise(bool kept, const char* what);

} // namespace vanzer::fuzz
