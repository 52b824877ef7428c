// SPDX-License-Identifier: MIT
// Runs libFuzzer on the reader that the environment names: VANZER_FUZZ=READER vanzer_fuzz [OPTION...] FOLDER... long.sh
// runs all readers.
#include <cstdint>

#include "readers.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    static const auto reader = vanzer::fuzz::Reader::all()[qgetenv("VANZER_FUZZ").toStdString()];
    vanzer::fuzz::promise(reader != nullptr, "VANZER_FUZZ names a reader");
    reader(QByteArray(reinterpret_cast<const char*>(bytes), static_cast<qsizetype>(size)));
    return 0;
}
