#pragma once
// A CIM datetime as a plain value: microseconds since the epoch (UTC) for a
// point in time, or a length of time for an interval.
#include <cstdint>
#include <string>

namespace CmpiCpp {

class CmpiBroker;

class CmpiDateTime {
public:
    CmpiDateTime() = default;
    CmpiDateTime(std::uint64_t microseconds, bool interval);

    std::uint64_t microseconds() const { return _microseconds; }
    bool isInterval() const { return _interval; }
    // The CIM text form: "yyyymmddhhmmss.mmmmmm+000" for a time stamp (UTC),
    // "ddddddddhhmmss.mmmmmm:000" for an interval.
    std::string str() const;

    bool operator==(CmpiDateTime const& other) const = default;

private:
    std::uint64_t _microseconds = 0;
    bool _interval = false;
};

// A time stamp from seconds since the epoch.
CmpiDateTime makeCmpiDateTime(CmpiBroker const& broker, long seconds);
// From a count of microseconds: a time stamp, or an interval if the flag is set.
CmpiDateTime makeCmpiDateTime(CmpiBroker const& broker, unsigned long long microseconds,
                              bool interval);

} // namespace CmpiCpp
