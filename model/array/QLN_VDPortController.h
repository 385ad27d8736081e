#pragma once
// The controller seen as a port controller on the host's PCI bus: one per
// controller, tied to the PCI device of the platform and to the initiator ports.
#include "CmpiManagedInstance.h"
#include "Logger.h"
#include "VeldraController.h"

#include <string>

namespace QLN {

class QLN_VDPortController : public CmpiManagedInstance {
public:
    QLN_VDPortController(Logger& logger, std::string const& nameSpace, unsigned int controllerIndex,
                         VeldraController* controller);
    ~QLN_VDPortController() override;

    CmpiCpp::CmpiObjectPath getPath() const override;
    CmpiCpp::CmpiInstance getInstance() const override;
    CmpiCpp::CmpiName getClassName() const override;

    unsigned int getControllerIndex() const { return _controllerIndex; }
    VeldraController* getController() const { return _controller; }

private:
    std::string _deviceId(VeldraControllerData const& data) const;

    std::string _namespace;
    Logger _logger;
    unsigned int _controllerIndex;
    VeldraController* _controller;
};

} // namespace QLN
