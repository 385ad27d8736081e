#include "QLN_VDDAPort.h"

#include "ControllerDeviceKey.h"
#include "ControllerLocationText.h"
#include "FixedStateProperties.h"
#include "VDArrayValues.h"

namespace {
char const* const className = "QLN_VDDAPort";

struct StatusView {
    unsigned short operational;
    unsigned short health;
    char const* text;
};

// Only the controller's own status counts for the port; anything that is
// neither OK nor failed, and a failed read, is unknown.
StatusView statusOf(VeldraControllerData const& data) {
    controllerStatusEnum status = CONTROLLER_STATUS_UNKNOWN;
    if (data.getControllerStatus(status) == 0) {
        if (status == CONTROLLER_STATUS_OK)
            return {2, 5, "Array port is operating properly"};
        if (status == CONTROLLER_STATUS_FAILED)
            return {6, 20, "Array port Failed"};
    }
    return {0, 0, "Array port Unknown"};
}

// A card in a numbered slot (82) and a controller on the board (81) are told
// apart; without a usable slot number the type is "Other".
unsigned short portTypeOf(VeldraControllerData const& data) {
    int slot = 0;
    if (data.getPCISlotNumber(slot) != 0)
        return 1;
    if (slot > 0)
        return 82;
    if (slot == 0)
        return 81;
    return 1;
}
} // namespace

namespace QLN {

QLN_VDDAPort::QLN_VDDAPort(Logger& logger, std::string const& nameSpace,
                           unsigned int controllerIndex, VeldraController* controller)
    : ControllerDeviceInstance(logger, className, nameSpace, controllerIndex, controller,
                               "DeviceID") {}

std::string QLN_VDDAPort::_keyValue(VeldraControllerData const& data) const {
    return ControllerDeviceKey::serialOr(data, std::string(className) + "-" +
                                                   std::to_string(_controllerIndex));
}

CmpiCpp::CmpiInstance QLN_VDDAPort::getInstance() const {
    VeldraControllerData data = _lastData();
    CmpiCpp::CmpiInstance instance = _newInstance(data);
    instance.addProperty("DeviceID", _keyValue(data));
    instance.addProperty("ElementName", ControllerLocationText::withExternal(data));
    instance.addProperty("PortType", portTypeOf(data));

    StatusView const status = statusOf(data);
    instance.addProperty("HealthState", status.health);
    instance.addProperty("OperationalStatus", VDArrayValues::uint16s({status.operational}));
    instance.addProperty("StatusDescriptions", VDArrayValues::strings({status.text}));
    FixedStateProperties::enabled(instance);
    // Front-end port: it faces the host, not the disks.
    instance.addProperty("UsageRestriction", static_cast<unsigned short>(2));
    return instance;
}

} // namespace QLN
