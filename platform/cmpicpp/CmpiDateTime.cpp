#include "CmpiDateTime.h"

#include <cstdio>
#include <ctime>

namespace CmpiCpp {

CmpiDateTime::CmpiDateTime(std::uint64_t microseconds, bool interval)
    : _microseconds(microseconds), _interval(interval) {}

std::string CmpiDateTime::str() const {
    std::uint64_t const usec = _microseconds % 1000000ULL;
    std::uint64_t const seconds = _microseconds / 1000000ULL;
    char text[64];
    if (_interval) {
        std::uint64_t const days = seconds / 86400ULL;
        std::uint64_t const rest = seconds % 86400ULL;
        std::snprintf(text, sizeof text, "%08llu%02llu%02llu%02llu.%06llu:000",
                      static_cast<unsigned long long>(days % 100000000ULL),
                      static_cast<unsigned long long>(rest / 3600),
                      static_cast<unsigned long long>((rest / 60) % 60),
                      static_cast<unsigned long long>(rest % 60),
                      static_cast<unsigned long long>(usec));
        return text;
    }
    std::time_t const t = static_cast<std::time_t>(seconds);
    std::tm tm{};
    ::gmtime_r(&t, &tm);
    std::snprintf(text, sizeof text, "%04d%02d%02d%02d%02d%02d.%06llu+000", tm.tm_year + 1900,
                  tm.tm_mon + 1, tm.tm_mday, tm.tm_hour, tm.tm_min, tm.tm_sec,
                  static_cast<unsigned long long>(usec));
    return text;
}

CmpiDateTime makeCmpiDateTime(CmpiBroker const&, long seconds) {
    // Times before the epoch have no meaning for hardware time stamps.
    std::uint64_t const s = seconds < 0 ? 0 : static_cast<std::uint64_t>(seconds);
    return CmpiDateTime(s * 1000000ULL, false);
}

CmpiDateTime makeCmpiDateTime(CmpiBroker const&, unsigned long long microseconds, bool interval) {
    return CmpiDateTime(microseconds, interval);
}

} // namespace CmpiCpp
