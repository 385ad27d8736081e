#pragma once
// Physical location records as the hardware reports them. Eight bytes; the low
// four bits of the first byte hold the kind of location (see QLNPhysloc.h for
// the scheme). BMC_physloc_NULL is the record of a location that is not known
// to the platform, as an external controller has.
#include <cstdint>

extern "C" {

typedef struct physloc_t {
    uint8_t bytes[8];
} physloc_t;

extern physloc_t const BMC_physloc_NULL;

// Renders a location for people into buf (always terminated); returns buf.
char* BMC_physloc_to_str(physloc_t const* location, char* buf, unsigned int size);
}

static_assert(sizeof(physloc_t) == 8, "a location record is eight bytes");
