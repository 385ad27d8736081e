#include "QLN_VDISASSCSIProtocolEndpoint.h"

#include "ControllerDeviceKey.h"
#include "FixedStateProperties.h"
#include "VDArrayValues.h"

namespace {
char const* const className = "QLN_VDISASSCSIProtocolEndpoint";
} // namespace

namespace QLN {

QLN_VDISASSCSIProtocolEndpoint::QLN_VDISASSCSIProtocolEndpoint(Logger& logger,
                                                               std::string const& nameSpace,
                                                               unsigned int controllerIndex,
                                                               VeldraController* controller,
                                                               std::string const& port)
    : ControllerDeviceInstance(logger, className, nameSpace, controllerIndex, controller, "Name"),
      _port(port) {}

std::string QLN_VDISASSCSIProtocolEndpoint::_keyValue(VeldraControllerData const& data) const {
    return ControllerDeviceKey::serialOr(data, std::string(className) + ":" +
                                                   std::to_string(_controllerIndex)) +
           ":" + _port;
}

CmpiCpp::CmpiInstance QLN_VDISASSCSIProtocolEndpoint::getInstance() const {
    VeldraControllerData data = _lastData();
    CmpiCpp::CmpiInstance instance = _newInstance(data);
    instance.addProperty("Name", _keyValue(data));
    std::string const name = "Protocol Endpoint for Port:" + _port;
    instance.addProperty("ElementName", name);
    instance.addProperty("Caption", name);
    instance.addProperty("ProtocolIFType", static_cast<unsigned short>(1));
    instance.addProperty("OtherTypeDescription", "SCSI");
    // Initiator: the controller starts the conversations with the disks.
    instance.addProperty("Role", static_cast<unsigned short>(2));
    FixedStateProperties::healthy(instance, "Endpoint is operating properly");
    FixedStateProperties::enabled(instance);
    return instance;
}

} // namespace QLN
