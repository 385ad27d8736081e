#pragma once
// One SAS port of the controller, the initiator side of the paths to the
// disks: one instance for each port the controller reports.
#include "ControllerDeviceInstance.h"
#include "Logger.h"
#include "VeldraController.h"

#include <string>

namespace QLN {

class QLN_VDISASPort : public ControllerDeviceInstance {
public:
    QLN_VDISASPort(Logger& logger, std::string const& nameSpace, unsigned int controllerIndex,
                   VeldraController* controller, std::string const& port);

    CmpiCpp::CmpiInstance getInstance() const override;

    // The graph matches disks' paths to initiators by port and controller number.
    std::string const& getPort() const { return _port; }

private:
    std::string _keyValue(VeldraControllerData const& data) const override;

    std::string _port;
};

} // namespace QLN
