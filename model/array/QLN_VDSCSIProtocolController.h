#pragma once
// The controller as the SCSI protocol controller that exposes the volumes
// to the host: one per controller, always reported healthy.
#include "ControllerDeviceInstance.h"
#include "Logger.h"
#include "VeldraController.h"

#include <string>

namespace QLN {

class QLN_VDSCSIProtocolController : public ControllerDeviceInstance {
public:
    QLN_VDSCSIProtocolController(Logger& logger, std::string const& nameSpace,
                                 unsigned int controllerIndex, VeldraController* controller);

    CmpiCpp::CmpiInstance getInstance() const override;

private:
    std::string _keyValue(VeldraControllerData const& data) const override;
};

} // namespace QLN
