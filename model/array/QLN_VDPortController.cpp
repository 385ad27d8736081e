#include "QLN_VDPortController.h"

#include "ControllerDeviceKey.h"
#include "ControllerLocationText.h"
#include "FixedStateProperties.h"
#include "VDArrayValues.h"

namespace {
char const* const className = "QLN_VDPortController";

struct StatusView {
    unsigned short operational;
    unsigned short health;
    char const* text;
};

// The controller's operational status as a port controller shows it. Value 4
// ("not reported") reads as unknown here, as on the array controller.
StatusView statusOf(VeldraControllerData const& data) {
    controllerOperationalStatusEnum status = CONTROLLER_OP_STATUS_UNKNOWN;
    if (data.getControllerOperationalStatus(status) == 0) {
        if (status == CONTROLLER_OP_STATUS_OK)
            return {2, 5, "Port controller is operating properly"};
        if (status == CONTROLLER_OP_STATUS_DEGRADED)
            return {3, 10, "Port controller Degraded"};
        if (status == CONTROLLER_OP_STATUS_FAILED)
            return {6, 20, "Port controller Failed"};
    }
    return {0, 0, "Port controller Unknown"};
}

char const* controllerTypeText(controllerTypeEnum type) {
    if (type == CONTROLLER_TYPE_EMBEDDED)
        return "SCSI";
    if (type == CONTROLLER_TYPE_PCI_CARD || type == CONTROLLER_TYPE_EXTERNAL)
        return "SAS/SATA";
    return "Unknown";
}
} // namespace

namespace QLN {

QLN_VDPortController::QLN_VDPortController(Logger& logger, std::string const& nameSpace,
                                           unsigned int controllerIndex,
                                           VeldraController* controller)
    : ControllerDeviceInstance(logger, className, nameSpace, controllerIndex, controller,
                               "DeviceID") {}

std::string QLN_VDPortController::_keyValue(VeldraControllerData const& data) const {
    return ControllerDeviceKey::serialOr(data, std::string(className) + "-" +
                                                   std::to_string(_controllerIndex));
}

CmpiCpp::CmpiInstance QLN_VDPortController::getInstance() const {
    VeldraControllerData data = _lastData();
    CmpiCpp::CmpiInstance instance = _newInstance(data);
    instance.addProperty("ElementName", ControllerLocationText::withoutExternal(data));
    instance.addProperty("DeviceID", _keyValue(data));

    StatusView const status = statusOf(data);
    instance.addProperty("HealthState", status.health);
    instance.addProperty("OperationalStatus", VDArrayValues::uint16s({status.operational}));
    instance.addProperty("StatusDescriptions", VDArrayValues::strings({status.text}));
    FixedStateProperties::enabled(instance);
    // Always "Other": the bus family goes into OtherControllerType.
    instance.addProperty("ControllerType", static_cast<unsigned short>(1));
    controllerTypeEnum type = CONTROLLER_TYPE_UNKNOWN;
    if (data.getControllerType(type) == 0)
        instance.addProperty("OtherControllerType", controllerTypeText(type));
    return instance;
}

} // namespace QLN
