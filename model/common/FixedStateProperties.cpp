#include "FixedStateProperties.h"

#include "VDArrayValues.h"

namespace QLN {

void FixedStateProperties::healthy(CmpiCpp::CmpiInstance& instance, std::string const& text) {
    instance.addProperty("HealthState", static_cast<unsigned short>(5));
    instance.addProperty("OperationalStatus", VDArrayValues::uint16s({2}));
    instance.addProperty("StatusDescriptions", VDArrayValues::strings({text}));
}

void FixedStateProperties::enabled(CmpiCpp::CmpiInstance& instance) {
    instance.addProperty("EnabledDefault", static_cast<unsigned short>(2));
    instance.addProperty("EnabledState", static_cast<unsigned short>(5));
    instance.addProperty("RequestedState", static_cast<unsigned short>(12));
}

} // namespace QLN
