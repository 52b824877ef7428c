#include <cstdio>
#include <cstdlib>

#include "fuzz_target.h"
#include "iei_target.h"
#include "old_files_target.h"
#include "route_target.h"

namespace vanzer::fuzz {

std::span<const Target> targets() {
    static constexpr Target all[] = {
        {"iei", readExchangeFile}, {"pacchetto", readRoutePackage}, {"mete", readStopFile}, {"vecchi", readOldFile}};
    return all;
}

void promise(bool kept, const QString& what) {
    if (kept)
        return;
    std::fprintf(stderr, "broken promise: %s\n", what.toLocal8Bit().constData());
    std::abort();
}

} // namespace vanzer::fuzz
