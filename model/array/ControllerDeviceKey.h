#pragma once
// The last key of the controller's port, protocol and initiator classes is the
// controller's serial number; the path around it is the identity helpers'.
#include "CmpiObjectPath.h"
#include "VeldraControllerData.h"

#include <string>

namespace QLN {

class ControllerDeviceKey {
public:
    // The controller's serial number when it can be read, even an empty one;
    // otherwise `fallback`. An empty serial is a valid answer of the hardware,
    // so it is not replaced.
    static std::string serialOr(VeldraControllerData const& data, std::string const& fallback);
};

} // namespace QLN
