#include "EnabledProperties.h"

namespace QLN {

void EnabledProperties::add(CmpiCpp::CmpiInstance& instance) {
    instance.addProperty("EnabledDefault", static_cast<unsigned short>(2));
    instance.addProperty("EnabledState", static_cast<unsigned short>(5));
    instance.addProperty("RequestedState", static_cast<unsigned short>(12));
}

} // namespace QLN
