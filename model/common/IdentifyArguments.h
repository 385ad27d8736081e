#pragma once
#include "CmpiArgs.h"
#include "CmpiName.h"
#include "Logger.h"
#include "VeldraTypes.h"

#include <optional>

namespace QLN {

// The Identify method of the array system, its volumes and its disks: the
// one place that knows the method's name and how its argument is read.
class IdentifyArguments {
public:
    // The locator's time as the controller counts it (tenths of a second),
    // or nothing when the call is not Identify or carries no uint32
    // Duration; a Duration that cannot be read at all is logged. The caller
    // answers nothing with CmpiManagedInstance::methodNotFound.
    static std::optional<u32> duration(CmpiCpp::CmpiName const& method, CmpiCpp::CmpiArgs const& in,
                                       Logger const& logger);

    // What the caller logs when the call fails after its argument was read.
    static char const* const failureText;
};

} // namespace QLN
