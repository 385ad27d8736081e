#include "QLN_VDISASSCSIProtocolEndpoint.h"

#include "CmpiBroker.h"
#include "ControllerDeviceKey.h"
#include "QLNUtil.h"
#include "VDArrayValues.h"

namespace {
char const* const className = "QLN_VDISASSCSIProtocolEndpoint";
char const* const arraySystemClass = "QLN_VDArraySystem";
} // namespace

namespace QLN {

QLN_VDISASSCSIProtocolEndpoint::QLN_VDISASSCSIProtocolEndpoint(Logger& logger,
                                                               std::string const& nameSpace,
                                                               unsigned int controllerIndex,
                                                               VeldraController* controller,
                                                               std::string const& port)
    : ControllerManagedInstance(logger, className, nameSpace, controllerIndex, controller),
      _port(port) {}

std::string QLN_VDISASSCSIProtocolEndpoint::_keyValue(VeldraControllerData const& data) const {
    return ControllerDeviceKey::serialOr(data, std::string(className) + ":" +
                                                   std::to_string(_controllerIndex)) +
           ":" + _port;
}

CmpiCpp::CmpiObjectPath QLN_VDISASSCSIProtocolEndpoint::getPath() const {
    VeldraControllerData data;
    _controller->getLastVDData(data);
    return ControllerDeviceKey::path(_namespace, className, "Name", _keyValue(data), data,
                                     _controllerIndex);
}

CmpiCpp::CmpiInstance QLN_VDISASSCSIProtocolEndpoint::getInstance() const {
    VeldraControllerData data;
    _controller->getLastVDData(data);
    CmpiCpp::CmpiBroker broker(QLNUtil::getBroker());
    CmpiCpp::CmpiInstance instance = CmpiCpp::makeCmpiInstance(broker, getPath());
    instance.addProperty("CreationClassName", className);
    instance.addProperty("SystemCreationClassName", arraySystemClass);
    instance.addProperty("SystemName", ControllerDeviceKey::systemName(data, _controllerIndex));
    instance.addProperty("Name", _keyValue(data));
    std::string const name = "Protocol Endpoint for Port:" + _port;
    instance.addProperty("ElementName", name);
    instance.addProperty("Caption", name);
    instance.addProperty("ProtocolIFType", static_cast<unsigned short>(1));
    instance.addProperty("OtherTypeDescription", "SCSI");
    // Initiator: the controller starts the conversations with the disks.
    instance.addProperty("Role", static_cast<unsigned short>(2));
    instance.addProperty("HealthState", static_cast<unsigned short>(5));
    instance.addProperty("OperationalStatus", VDArrayValues::uint16s({2}));
    instance.addProperty("StatusDescriptions",
                         VDArrayValues::strings({"Endpoint is operating properly"}));
    instance.addProperty("EnabledDefault", static_cast<unsigned short>(2));
    instance.addProperty("EnabledState", static_cast<unsigned short>(5));
    instance.addProperty("RequestedState", static_cast<unsigned short>(12));
    return instance;
}

} // namespace QLN
