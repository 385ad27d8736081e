#pragma once
// The state properties of an element that reports no state of its own and
// cannot be switched on or off: healthy and OK, enabled by default, its
// enabled state and any requested state "not applicable".
#include "CmpiInstance.h"

#include <string>

namespace QLN {

class FixedStateProperties {
public:
    // HealthState 5, OperationalStatus {2} and StatusDescriptions {text}, in this order.
    static void healthy(CmpiCpp::CmpiInstance& instance, std::string const& text);
    // EnabledDefault 2, EnabledState 5 and RequestedState 12, in this order.
    static void enabled(CmpiCpp::CmpiInstance& instance);
};

} // namespace QLN
