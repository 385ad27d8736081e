#include "IdentifyArguments.h"

#include "CmpiData.h"

namespace QLN {

namespace {
// The controller counts the locator's time in tenths of a second.
u32 const durationScale = 10;
} // namespace

char const* const IdentifyArguments::failureText =
    ":invokeMethod Identify, failed to extract Duration arg";

std::optional<u32> IdentifyArguments::duration(CmpiCpp::CmpiName const& method,
                                               CmpiCpp::CmpiArgs const& in, Logger const& logger) {
    if (!(method == CmpiCpp::CmpiName("Identify")))
        return std::nullopt;
    try {
        CmpiCpp::CmpiData const& argument = in.getArg("Duration");
        // The declared type is uint32; anything else is not this method's call.
        if (argument.getType() != CMPI_uint32)
            return std::nullopt;
        return argument.getUint32() * durationScale;
    } catch (...) {
        logger.warn("%s", failureText);
        return std::nullopt;
    }
}

} // namespace QLN
