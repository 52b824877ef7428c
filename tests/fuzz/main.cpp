// Lets libFuzzer loose on a reader, which the environment names: VANZER_FUZZ=READER vanzer_fuzz [OPTION...] FOLDER...
// long.sh runs them all.
#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <utility>

#include "fuzz_target.h"

namespace vanzer::fuzz {

namespace {

using Reader = void (*)(const QByteArray&);

/// A new one gets its line here, its name in long.sh and its corpus in a folder of that name.
Reader chosenReader() {
    static constexpr std::array<std::pair<const char*, Reader>, 8> all{{{"iei", readExchangeFile},
                                                                        {"pacchetto", readRoutePackage},
                                                                        {"mete", readStopFile},
                                                                        {"vecchi", readOldFile},
                                                                        {"archivio", openArchive},
                                                                        {"comando", readCommandFile},
                                                                        {"bozza", readDraft},
                                                                        {"impostazioni", readSettings}}};
    const QByteArray name = qgetenv("VANZER_FUZZ");
    const auto* const found = std::ranges::find_if(all, [&name](const auto& reader) { return name == reader.first; });
    if (found != all.end())
        return found->second;
    std::fputs("VANZER_FUZZ names none of the readers:", stderr);
    for (const auto& reader : all)
        std::fprintf(stderr, " %s", reader.first);
    std::fputs("\n", stderr);
    std::exit(2);
}

} // namespace

void promise(bool kept, const char* what) {
    if (kept)
        return;
    std::fprintf(stderr, "broken promise: %s\n", what);
    std::abort();
}

} // namespace vanzer::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    static const auto reader = vanzer::fuzz::chosenReader();
    reader(QByteArray(reinterpret_cast<const char*>(bytes), static_cast<qsizetype>(size)));
    return 0;
}
