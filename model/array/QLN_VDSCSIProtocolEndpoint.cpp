#include "QLN_VDSCSIProtocolEndpoint.h"

#include "ControllerDeviceKey.h"
#include "ControllerLocationText.h"
#include "FixedStateProperties.h"
#include "VDArrayValues.h"

namespace {
char const* const className = "QLN_VDSCSIProtocolEndpoint";
} // namespace

namespace QLN {

QLN_VDSCSIProtocolEndpoint::QLN_VDSCSIProtocolEndpoint(Logger& logger, std::string const& nameSpace,
                                                       unsigned int controllerIndex,
                                                       VeldraController* controller)
    : ControllerDeviceInstance(logger, className, nameSpace, controllerIndex, controller, "Name") {}

std::string QLN_VDSCSIProtocolEndpoint::_keyValue(VeldraControllerData const& data) const {
    return ControllerDeviceKey::serialOr(data, std::string(className) + "-" +
                                                   std::to_string(_controllerIndex));
}

CmpiCpp::CmpiInstance QLN_VDSCSIProtocolEndpoint::getInstance() const {
    VeldraControllerData data = _lastData();
    CmpiCpp::CmpiInstance instance = _newInstance(data);
    instance.addProperty("Name", _keyValue(data));
    instance.addProperty("ElementName", ControllerLocationText::withoutExternal(data));
    instance.addProperty("ProtocolIFType", static_cast<unsigned short>(1));
    instance.addProperty("OtherTypeDescription", "SCSI");
    instance.addProperty("ConnectionType", static_cast<unsigned short>(1));
    instance.addProperty("OtherConnectionType", "PCI");
    instance.addProperty("Role", static_cast<unsigned short>(3));
    // The endpoint has no state of its own to report; it is healthy by design.
    FixedStateProperties::healthy(instance, "Endpoint is operating properly");
    FixedStateProperties::enabled(instance);
    return instance;
}

} // namespace QLN
