#pragma once
// The physical package of the array system: the assembly that holds the
// controller and its storage (the card for a controller in a slot, the system
// board's storage for an embedded one, the chassis for an external array).
// Enclosures, the controller's own package and the product hang from it.
#include "CmpiManagedInstance.h"
#include "Logger.h"
#include "VeldraController.h"

#include <string>

namespace QLN {

class QLN_VDPhysicalPackage : public CmpiManagedInstance {
public:
    QLN_VDPhysicalPackage(Logger& logger, std::string const& nameSpace,
                          unsigned int controllerIndex, VeldraController* controller);
    ~QLN_VDPhysicalPackage() override;

    CmpiCpp::CmpiObjectPath getPath() const override;
    CmpiCpp::CmpiInstance getInstance() const override;
    CmpiCpp::CmpiName getClassName() const override;

    unsigned int getControllerIndex() const { return _controllerIndex; }
    VeldraController* getController() const { return _controller; }

private:
    std::string _namespace;
    Logger _logger;
    unsigned int _controllerIndex;
    VeldraController* _controller;
};

} // namespace QLN
