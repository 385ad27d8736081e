#pragma once
// The SCSI endpoint by which the host reaches the controller: one per
// controller, always reported healthy since it has no state of its own.
#include "ControllerDeviceInstance.h"
#include "Logger.h"
#include "VeldraController.h"

#include <string>

namespace QLN {

class QLN_VDSCSIProtocolEndpoint : public ControllerDeviceInstance {
public:
    QLN_VDSCSIProtocolEndpoint(Logger& logger, std::string const& nameSpace,
                               unsigned int controllerIndex, VeldraController* controller);

    CmpiCpp::CmpiInstance getInstance() const override;

private:
    std::string _keyValue(VeldraControllerData const& data) const override;
};

} // namespace QLN
