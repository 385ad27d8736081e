#pragma once
// The enabled-state triple of an element that cannot be switched on or off:
// enabled by default, its state and any requested state "not applicable".
#include "CmpiInstance.h"

namespace QLN {

class EnabledProperties {
public:
    // EnabledDefault 2, EnabledState 5 and RequestedState 12, in this order.
    static void add(CmpiCpp::CmpiInstance& instance);
};

} // namespace QLN
