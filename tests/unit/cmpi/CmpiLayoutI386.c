/* Compiled for i386 only, by the syntax-only check in CMakeLists.txt: the
   provider runs in 32-bit object managers, where CMPIData is 12 bytes. */
#include "CmpiLayoutChecks.h"

#ifndef __i386__
#error "this check must be compiled for i386"
#endif
LAYOUT_ASSERT(sizeof(void*) == 4, "pointers are 4 bytes on i386");
LAYOUT_ASSERT(sizeof(CMPIData) == 12, "CMPIData is 12 bytes on i386");
