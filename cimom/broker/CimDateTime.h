#pragma once

#include <cstdint>
#include <string>

namespace Cimom {

// Conversions between the CIM datetime text (yyyymmddhhmmss.mmmmmmsutc, or
// ddddddddhhmmss.mmmmmm:000 for an interval) and the binary form CMPI uses:
// microseconds since 1970-01-01 00:00 UTC, or the interval's length in
// microseconds.
class CimDateTime {
public:
    // Points in time are written in UTC (+000).
    static std::string fromBinary(std::uint64_t microseconds, bool interval);
    // Throws CimError(CMPI_RC_ERR_INVALID_PARAMETER) on malformed text or on
    // a text with unspecified ('*') fields, which has no binary value.
    static std::uint64_t toBinary(std::string const& text, bool& interval);
    static bool isInterval(std::string const& text);
    static std::uint64_t nowMicroseconds();
};

} // namespace Cimom
