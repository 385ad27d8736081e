#include "CimDateTime.h"

#include <chrono>
#include <cstdio>
#include <ctime>

#include "CimError.h"
#include "CimValue.h"

namespace Cimom {

namespace {
constexpr std::uint64_t usPerSecond = 1000000ULL;
constexpr std::uint64_t secondsPerDay = 86400ULL;

[[noreturn]] void bad(std::string const& text, char const* why) {
    throw CimError(CMPI_RC_ERR_INVALID_PARAMETER,
                   "datetime \"" + text + "\" has no binary value: " + why);
}

std::uint64_t digits(std::string const& s, std::size_t from, std::size_t count) {
    std::uint64_t v = 0;
    for (std::size_t i = from; i < from + count; ++i) {
        if (s[i] < '0' || s[i] > '9') {
            bad(s, "unspecified or non-digit field");
        }
        v = v * 10 + static_cast<std::uint64_t>(s[i] - '0');
    }
    return v;
}
} // namespace

std::string CimDateTime::fromBinary(std::uint64_t microseconds, bool interval) {
    char buf[96];
    std::uint64_t const us = microseconds % usPerSecond;
    std::uint64_t secs = microseconds / usPerSecond;
    if (interval) {
        std::uint64_t const days = secs / secondsPerDay;
        secs %= secondsPerDay;
        std::snprintf(buf, sizeof buf, "%08llu%02llu%02llu%02llu.%06llu:000",
                      static_cast<unsigned long long>(days % 100000000ULL),
                      static_cast<unsigned long long>(secs / 3600),
                      static_cast<unsigned long long>((secs / 60) % 60),
                      static_cast<unsigned long long>(secs % 60),
                      static_cast<unsigned long long>(us));
        return buf;
    }
    std::time_t const t = static_cast<std::time_t>(secs);
    std::tm tm{};
    gmtime_r(&t, &tm);
    std::snprintf(buf, sizeof buf, "%04d%02d%02d%02d%02d%02d.%06llu+000", tm.tm_year + 1900,
                  tm.tm_mon + 1, tm.tm_mday, tm.tm_hour, tm.tm_min, tm.tm_sec,
                  static_cast<unsigned long long>(us));
    return buf;
}

bool CimDateTime::isInterval(std::string const& text) {
    return text.size() == 25 && text[21] == ':';
}

std::uint64_t CimDateTime::toBinary(std::string const& text, bool& interval) {
    // Validates the shape (and throws on bad text) before reading digits.
    CimValue::dateTime(text);
    interval = isInterval(text);
    std::uint64_t const us = digits(text, 15, 6);
    if (interval) {
        std::uint64_t const secs = digits(text, 0, 8) * secondsPerDay + digits(text, 8, 2) * 3600 +
                                   digits(text, 10, 2) * 60 + digits(text, 12, 2);
        return secs * usPerSecond + us;
    }
    std::tm tm{};
    tm.tm_year = static_cast<int>(digits(text, 0, 4)) - 1900;
    tm.tm_mon = static_cast<int>(digits(text, 4, 2)) - 1;
    tm.tm_mday = static_cast<int>(digits(text, 6, 2));
    tm.tm_hour = static_cast<int>(digits(text, 8, 2));
    tm.tm_min = static_cast<int>(digits(text, 10, 2));
    tm.tm_sec = static_cast<int>(digits(text, 12, 2));
    if (tm.tm_mon < 0 || tm.tm_mon > 11 || tm.tm_mday < 1 || tm.tm_mday > 31 || tm.tm_hour > 23 ||
        tm.tm_min > 59 || tm.tm_sec > 60) {
        bad(text, "field out of range");
    }
    std::int64_t secs = static_cast<std::int64_t>(timegm(&tm));
    // The text gives local time and its offset from UTC in minutes.
    std::int64_t const offset = static_cast<std::int64_t>(digits(text, 22, 3)) * 60;
    secs += text[21] == '+' ? -offset : offset;
    if (secs < 0) {
        bad(text, "before 1970");
    }
    return static_cast<std::uint64_t>(secs) * usPerSecond + us;
}

std::uint64_t CimDateTime::nowMicroseconds() {
    auto const now = std::chrono::system_clock::now().time_since_epoch();
    return static_cast<std::uint64_t>(
        std::chrono::duration_cast<std::chrono::microseconds>(now).count());
}

} // namespace Cimom
