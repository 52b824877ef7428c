#include "core/memory.h"

#if __has_include(<malloc.h>)
#include <malloc.h>
#endif

namespace vanzer {

void tieneLaMemoria() {
#ifdef M_TRIM_THRESHOLD
    constexpr int most = 64 << 20;
    mallopt(M_TRIM_THRESHOLD, most);
    mallopt(M_MMAP_THRESHOLD, most);
#endif
}

} // namespace vanzer
