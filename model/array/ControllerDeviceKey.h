#pragma once
// The key shape that the controller's port, protocol and initiator classes
// share: the class, the array system as the scoping system, and one last key
// of the class's own. Kept in one place so that the classes cannot drift apart.
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

    // CreationClassName, SystemCreationClassName, SystemName and the last key,
    // in this order, on the host of the moment.
    static CmpiCpp::CmpiObjectPath path(std::string const& nameSpace, std::string const& className,
                                        char const* lastKeyName, std::string const& lastKeyValue,
                                        VeldraControllerData const& data,
                                        unsigned int controllerIndex);

    // The value of SystemName: the array system's Name.
    static std::string systemName(VeldraControllerData const& data, unsigned int controllerIndex);
};

} // namespace QLN
