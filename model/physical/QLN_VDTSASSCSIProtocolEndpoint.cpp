#include "QLN_VDTSASSCSIProtocolEndpoint.h"

#include "CmpiBroker.h"
#include "FixedStateProperties.h"
#include "QLNUtil.h"
#include "VDArrayValues.h"

namespace {
char const* const className = "QLN_VDTSASSCSIProtocolEndpoint";
// CIM_ProtocolEndpoint.ProtocolIFType 1: "Other", told by OtherTypeDescription.
unsigned short const protocolOther = 1;
// CIM_SCSIProtocolEndpoint.Role 3: target.
unsigned short const roleTarget = 3;
} // namespace

namespace QLN {

QLN_VDTSASSCSIProtocolEndpoint::QLN_VDTSASSCSIProtocolEndpoint(
    Logger& logger, std::string const& nameSpace, unsigned int controllerIndex,
    VeldraPhysicalDisk const& disk, VeldraPhysicalPath const& path, int pathIndex,
    VeldraController* controller)
    : DiskPathDevice(logger, nameSpace, className, controllerIndex, disk, path, pathIndex,
                     controller),
      _pathStatus(path.getStatus()) {}

CmpiCpp::CmpiObjectPath QLN_VDTSASSCSIProtocolEndpoint::getPath() const {
    return _path("Name");
}

CmpiCpp::CmpiInstance QLN_VDTSASSCSIProtocolEndpoint::getInstance() const {
    CmpiCpp::CmpiBroker broker(QLNUtil::getBroker());
    CmpiCpp::CmpiInstance instance = CmpiCpp::makeCmpiInstance(broker, getPath());
    _addKeyProperties(instance, "Name");
    std::string const name = "Protocol Endpoint for " + std::to_string(_pathIndex);
    instance.addProperty("ElementName", name);
    instance.addProperty("Caption", name);
    instance.addProperty("ProtocolIFType", protocolOther);
    instance.addProperty("OtherTypeDescription", "SCSI");
    instance.addProperty("Role", roleTarget);
    FixedStateProperties::healthy(instance, "Endpoint is operating properly");
    FixedStateProperties::enabled(instance);
    instance.addProperty("Path", static_cast<unsigned short>(_pathStatus & 0xFFFF));
    return instance;
}

} // namespace QLN
