#pragma once
// The physical package of the array system: the assembly that holds the
// controller and its storage (the card for a controller in a slot, the system
// board's storage for an embedded one, the chassis for an external array).
// Enclosures, the controller's own package and the product hang from it.
#include "ControllerPackageInstance.h"

namespace QLN {

class QLN_VDPhysicalPackage : public ControllerPackageInstance {
public:
    QLN_VDPhysicalPackage(Logger& logger, std::string const& nameSpace,
                          unsigned int controllerIndex, VeldraController* controller);
};

} // namespace QLN
