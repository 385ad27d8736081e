#include "QLN_VDISASPort.h"

#include "ControllerDeviceKey.h"
#include "FixedStateProperties.h"
#include "VDArrayValues.h"

namespace {
char const* const className = "QLN_VDISASPort";
unsigned short const sasPortType = 94;
} // namespace

namespace QLN {

QLN_VDISASPort::QLN_VDISASPort(Logger& logger, std::string const& nameSpace,
                               unsigned int controllerIndex, VeldraController* controller,
                               std::string const& port)
    : ControllerDeviceInstance(logger, className, nameSpace, controllerIndex, controller,
                               "DeviceID"),
      _port(port) {}

std::string QLN_VDISASPort::_keyValue(VeldraControllerData const& data) const {
    return ControllerDeviceKey::serialOr(data, std::string(className) + ":" +
                                                   std::to_string(_controllerIndex)) +
           ":" + _port;
}

CmpiCpp::CmpiInstance QLN_VDISASPort::getInstance() const {
    VeldraControllerData data = _lastData();
    CmpiCpp::CmpiInstance instance = _newInstance(data);
    instance.addProperty("DeviceID", _keyValue(data));
    instance.addProperty("PortType", sasPortType);
    std::string const name = "Port:" + _port;
    instance.addProperty("ElementName", name);
    instance.addProperty("Caption", name);
    // The hardware reports no state per port; a listed port is a working one.
    instance.addProperty("OperationalStatus", VDArrayValues::uint16s({2}));
    instance.addProperty("HealthState", static_cast<unsigned short>(5));
    instance.addProperty("StatusDescriptions",
                         VDArrayValues::strings({"Controller port is operating properly"}));
    FixedStateProperties::enabled(instance);
    // Back-end port: it reaches the disks, not the host.
    instance.addProperty("UsageRestriction", static_cast<unsigned short>(4));
    return instance;
}

} // namespace QLN
