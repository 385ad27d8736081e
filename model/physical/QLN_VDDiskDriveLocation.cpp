#include "QLN_VDDiskDriveLocation.h"

#include "CmpiBroker.h"
#include "IdentityHelpers.h"
#include "QLNUtil.h"
#include "VeldraStorageFunctions.h"

namespace {
char const* const className = "QLN_VDDiskDriveLocation";
char const* const notFound =
    "getInstance, findPhysicalDiskInVector could not find drive based on serial #";
// CIM_Location.ElementLocationTagDesc: the tag is a bay number.
unsigned short const bayTag = 20;
} // namespace

namespace QLN {

QLN_VDDiskDriveLocation::QLN_VDDiskDriveLocation(Logger& logger, std::string const& nameSpace,
                                                 unsigned int controllerIndex,
                                                 VeldraPhysicalDisk const& disk,
                                                 VeldraController* controller)
    : DiskCompanion(logger, nameSpace, className, controllerIndex, disk, controller) {}

std::string QLN_VDDiskDriveLocation::_position() const {
    return _serialNumber.empty() ? std::to_string(_controllerIndex) + "-" +
                                       std::to_string(_boxNumber) + ":" + std::to_string(_bay)
                                 : removeWhitespace(_serialNumber);
}

CmpiCpp::CmpiObjectPath QLN_VDDiskDriveLocation::getPath() const {
    return _locationPath(_position());
}

CmpiCpp::CmpiInstance QLN_VDDiskDriveLocation::getInstance() const {
    CmpiCpp::CmpiBroker broker(QLNUtil::getBroker());
    CmpiCpp::CmpiInstance instance = CmpiCpp::makeCmpiInstance(broker, getPath());
    VeldraPhysicalDisk const disk = _findDisk(notFound);
    // Name and PhysicalPosition are the path's keys, set with it.
    VeldraControllerData data;
    _controller->getLastVDData(data);
    std::string model;
    if (data.getModel(model) != 0)
        model = "UNKNOWN";
    std::string const caption =
        model + " Physical Drive - " + pathsToUserStr(disk.getPaths(), disk.getBay());
    instance.addProperty("Caption", caption);
    instance.addProperty("Description", caption);
    instance.addProperty("ElementName", caption);
    instance.addProperty("ElementLocationTag", std::to_string(disk.getBay()));
    instance.addProperty("ElementLocationTagDesc", bayTag);
    return instance;
}

} // namespace QLN
