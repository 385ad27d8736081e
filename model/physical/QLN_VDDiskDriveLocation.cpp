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

std::string QLN_VDDiskDriveLocation::_name() const {
    // Name is a location's only key, so it carries the disk's identity;
    // the class name alone would make every disk's location one instance.
    return std::string(className) + "-" + _identityTail();
}

CmpiCpp::CmpiObjectPath QLN_VDDiskDriveLocation::getPath() const {
    return _pathByKey("Name", _name());
}

CmpiCpp::CmpiInstance QLN_VDDiskDriveLocation::getInstance() const {
    CmpiCpp::CmpiBroker broker(QLNUtil::getBroker());
    CmpiCpp::CmpiInstance instance = CmpiCpp::makeCmpiInstance(broker, getPath());
    VeldraPhysicalDisk const disk = _findDisk(notFound);
    instance.addProperty("Name", _name());
    std::string const position = _serialNumber.empty()
                                     ? std::to_string(_controllerIndex) + "-" +
                                           std::to_string(_boxNumber) + ":" + std::to_string(_bay)
                                     : removeWhitespace(_serialNumber);
    instance.addProperty("PhysicalPosition", position);
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
