#include "QLN_VDSCSIProtocolController.h"

#include "ControllerDeviceKey.h"
#include "ControllerLocationText.h"
#include "FixedStateProperties.h"
#include "VDArrayValues.h"

namespace {
char const* const className = "QLN_VDSCSIProtocolController";
// Logical units one controller presents to the host.
unsigned int const maxUnitsControlled = 32;
} // namespace

namespace QLN {

QLN_VDSCSIProtocolController::QLN_VDSCSIProtocolController(Logger& logger,
                                                           std::string const& nameSpace,
                                                           unsigned int controllerIndex,
                                                           VeldraController* controller)
    : ControllerDeviceInstance(logger, className, nameSpace, controllerIndex, controller,
                               "DeviceID") {}

std::string QLN_VDSCSIProtocolController::_keyValue(VeldraControllerData const& data) const {
    return ControllerDeviceKey::serialOr(data, std::string(className) + "-" +
                                                   std::to_string(_controllerIndex));
}

CmpiCpp::CmpiInstance QLN_VDSCSIProtocolController::getInstance() const {
    VeldraControllerData data = _lastData();
    CmpiCpp::CmpiInstance instance = _newInstance(data);
    instance.addProperty("DeviceID", _keyValue(data));
    instance.addProperty("ElementName", ControllerLocationText::withExternal(data));
    instance.addProperty("MaxUnitsControlled", maxUnitsControlled);
    // The controller's health shows on the array controller; this face of it is healthy by design.
    FixedStateProperties::healthy(instance, "Array protocol controller is operating properly");
    FixedStateProperties::enabled(instance);
    return instance;
}

} // namespace QLN
