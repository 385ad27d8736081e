#pragma once
// The SCSI initiator endpoint on one SAS port of the controller; the disks'
// paths start here.
#include "ControllerDeviceInstance.h"
#include "Logger.h"
#include "VeldraController.h"

#include <string>

namespace QLN {

class QLN_VDISASSCSIProtocolEndpoint : public ControllerDeviceInstance {
public:
    QLN_VDISASSCSIProtocolEndpoint(Logger& logger, std::string const& nameSpace,
                                   unsigned int controllerIndex, VeldraController* controller,
                                   std::string const& port);

    CmpiCpp::CmpiInstance getInstance() const override;

    // The graph matches disks' paths to initiators by port and controller number.
    std::string const& getPort() const { return _port; }

private:
    std::string _keyValue(VeldraControllerData const& data) const override;

    std::string _port;
};

} // namespace QLN
