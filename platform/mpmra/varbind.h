#pragma once
// One variable of a trap as the management-processor channel exchanges it.
// The channel fixes the layout byte for byte, so it is pinned below; fill a
// zeroed record.
#include <cstddef>
#include <cstdint>

struct varbind {
    std::int32_t type;        // varbindNumber or varbindText
    std::int32_t oidLength;   // how many of the sub-identifiers count
    std::int32_t valueLength; // bytes of the number, or of the text without its terminator
    std::uint32_t oid[24];
    char value[48]; // a number in the machine's byte order, or the text with its terminator
};

constexpr std::int32_t varbindNumber = 2;
constexpr std::int32_t varbindText = 4;

static_assert(sizeof(varbind) == 156, "varbind is exchanged with the channel as 156 bytes");
static_assert(offsetof(varbind, type) == 0);
static_assert(offsetof(varbind, oidLength) == 4);
static_assert(offsetof(varbind, valueLength) == 8);
static_assert(offsetof(varbind, oid) == 12);
static_assert(sizeof(varbind::oid) == 96);
static_assert(offsetof(varbind, value) == 108);
static_assert(sizeof(varbind::value) == 48);
