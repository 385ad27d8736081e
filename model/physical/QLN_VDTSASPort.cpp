#include "QLN_VDTSASPort.h"

#include "CmpiBroker.h"
#include "FixedStateProperties.h"
#include "QLNUtil.h"
#include "VDArrayValues.h"

namespace {
char const* const className = "QLN_VDTSASPort";
unsigned short const sasPortType = 94;
} // namespace

namespace QLN {

QLN_VDTSASPort::QLN_VDTSASPort(Logger& logger, std::string const& nameSpace,
                               unsigned int controllerIndex, VeldraPhysicalDisk const& disk,
                               VeldraPhysicalPath const& path, int pathIndex,
                               VeldraController* controller)
    : DiskPathDevice(logger, nameSpace, className, controllerIndex, disk, path, pathIndex,
                     controller) {}

CmpiCpp::CmpiObjectPath QLN_VDTSASPort::getPath() const {
    return _path("DeviceID");
}

CmpiCpp::CmpiInstance QLN_VDTSASPort::getInstance() const {
    CmpiCpp::CmpiBroker broker(QLNUtil::getBroker());
    CmpiCpp::CmpiInstance instance = CmpiCpp::makeCmpiInstance(broker, getPath());
    _addKeyProperties(instance, "DeviceID");
    instance.addProperty("PortType", sasPortType);
    std::string const name = "Port " + std::to_string(_pathIndex);
    instance.addProperty("ElementName", name);
    instance.addProperty("Caption", name);
    // A broken path shows on the disk's status and the path's State; the
    // port itself is always reported as working.
    FixedStateProperties::healthy(instance, "Target port is operating properly");
    FixedStateProperties::enabled(instance);
    instance.addProperty("UsageRestriction", static_cast<unsigned short>(4));
    return instance;
}

} // namespace QLN
