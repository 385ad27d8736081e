#pragma once
// The controller seen as a port controller on the host's PCI bus: one per
// controller, tied to the PCI device of the platform and to the initiator ports.
#include "ControllerDeviceInstance.h"
#include "Logger.h"
#include "VeldraController.h"

#include <string>

namespace QLN {

class QLN_VDPortController : public ControllerDeviceInstance {
public:
    QLN_VDPortController(Logger& logger, std::string const& nameSpace, unsigned int controllerIndex,
                         VeldraController* controller);

    CmpiCpp::CmpiInstance getInstance() const override;

private:
    std::string _keyValue(VeldraControllerData const& data) const override;
};

} // namespace QLN
