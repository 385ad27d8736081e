#pragma once
// The controller's port towards the host bus: one per controller, carrying
// the controller's own status and how the card is attached.
#include "ControllerDeviceInstance.h"
#include "Logger.h"
#include "VeldraController.h"

#include <string>

namespace QLN {

class QLN_VDDAPort : public ControllerDeviceInstance {
public:
    QLN_VDDAPort(Logger& logger, std::string const& nameSpace, unsigned int controllerIndex,
                 VeldraController* controller);

    CmpiCpp::CmpiInstance getInstance() const override;

private:
    std::string _keyValue(VeldraControllerData const& data) const override;
};

} // namespace QLN
