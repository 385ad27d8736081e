#pragma once
// The controller's own hardware: the card, module or board component that
// realizes the array controller. A part of the array system's package.
#include "ControllerPackageInstance.h"

namespace QLN {

class QLN_VDArrayControllerPhysicalPackage : public ControllerPackageInstance {
public:
    QLN_VDArrayControllerPhysicalPackage(Logger& logger, std::string const& nameSpace,
                                         unsigned int controllerIndex,
                                         VeldraController* controller);
};

} // namespace QLN
