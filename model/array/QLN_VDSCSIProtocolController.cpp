#include "QLN_VDSCSIProtocolController.h"

#include "ControllerDeviceKey.h"
#include "ControllerLocationText.h"
#include "EnabledProperties.h"
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
    instance.addProperty("HealthState", static_cast<unsigned short>(5));
    instance.addProperty("OperationalStatus", VDArrayValues::uint16s({2}));
    instance.addProperty(
        "StatusDescriptions",
        VDArrayValues::strings({"Array protocol controller is operating properly"}));
    EnabledProperties::add(instance);
    return instance;
}

} // namespace QLN
