#pragma once

namespace Cimom {

// Hands memory the allocator keeps after large answers back to the system:
// jemalloc's freed pages when veldra-cimd runs on it, glibc's otherwise
// (tests link the server without jemalloc).
void giveBackFreedMemory();

} // namespace Cimom
