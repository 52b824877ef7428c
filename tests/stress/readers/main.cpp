// Lets libFuzzer loose on a reader, which the environment names: VANZER_FUZZ=READER vanzer_fuzz [OPTION...] FOLDER...
// long.sh runs them all.
#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include "readers.h"

namespace vanzer::fuzz {

std::map<std::string, Function>& readers() {
    static std::map<std::string, Function> all;
    return all;
}

void promise(bool kept, const char* what) {
    if (kept)
        return;
    std::fprintf(stderr, "broken promise: %s\n", what);
    std::abort();
}

} // namespace vanzer::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    static const auto reader = vanzer::fuzz::readers().find(qgetenv("VANZER_FUZZ").toStdString());
    if (reader == vanzer::fuzz::readers().end()) {
        std::fputs("VANZER_FUZZ names none of the readers\n", stderr);
        std::exit(2);
    }
    reader->second(QByteArray(reinterpret_cast<const char*>(bytes), static_cast<qsizetype>(size)));
    return 0;
}
