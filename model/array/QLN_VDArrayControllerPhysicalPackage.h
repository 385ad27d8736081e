#pragma once
// The controller's own hardware: the card, module or board component that
// realizes the array controller. A part of the array system's package.
#include "ControllerManagedInstance.h"
#include "Logger.h"
#include "VeldraController.h"

#include <string>

namespace QLN {

class QLN_VDArrayControllerPhysicalPackage : public ControllerManagedInstance {
public:
    QLN_VDArrayControllerPhysicalPackage(Logger& logger, std::string const& nameSpace,
                                         unsigned int controllerIndex,
                                         VeldraController* controller);

    CmpiCpp::CmpiObjectPath getPath() const override;
    CmpiCpp::CmpiInstance getInstance() const override;
};

} // namespace QLN
