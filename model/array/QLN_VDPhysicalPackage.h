#pragma once
// The physical package of the array system: the assembly that holds the
// controller and its storage (the card for a controller in a slot, the system
// board's storage for an embedded one, the chassis for an external array).
// Enclosures, the controller's own package and the product hang from it.
#include "ControllerManagedInstance.h"
#include "Logger.h"
#include "VeldraController.h"

#include <string>

namespace QLN {

class QLN_VDPhysicalPackage : public ControllerManagedInstance {
public:
    QLN_VDPhysicalPackage(Logger& logger, std::string const& nameSpace,
                          unsigned int controllerIndex, VeldraController* controller);

    CmpiCpp::CmpiObjectPath getPath() const override;
    CmpiCpp::CmpiInstance getInstance() const override;
};

} // namespace QLN
