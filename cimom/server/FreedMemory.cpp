#include "FreedMemory.h"

#include <cstddef>
#include <malloc.h>

// Present only when jemalloc is linked in.
extern "C" int mallctl(char const* name, void* oldp, std::size_t* oldlenp, void* newp,
                       std::size_t newlen) __attribute__((weak));

namespace Cimom {

void giveBackFreedMemory() {
    // 4096 is MALLCTL_ARENAS_ALL: every arena, without jemalloc's header.
    if (mallctl != nullptr && mallctl("arena.4096.purge", nullptr, nullptr, nullptr, 0) == 0)
        return;
    malloc_trim(0);
}

} // namespace Cimom
