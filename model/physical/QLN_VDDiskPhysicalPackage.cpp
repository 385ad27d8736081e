#include "QLN_VDDiskPhysicalPackage.h"

#include "CmpiBroker.h"
#include "QLNUtil.h"
#include "VeldraStorageFunctions.h"

namespace {
char const* const className = "QLN_VDDiskPhysicalPackage";
char const* const notFound =
    "getInstance, findPhysicalDiskInVector could not find drive based on serial #";
// CIM_PhysicalPackage.RemovalConditions values.
unsigned short const removableWhenOn = 4;
unsigned short const removableWhenOff = 3;
} // namespace

namespace QLN {

QLN_VDDiskPhysicalPackage::QLN_VDDiskPhysicalPackage(Logger& logger, std::string const& nameSpace,
                                                     unsigned int controllerIndex,
                                                     VeldraPhysicalDisk const& disk,
                                                     VeldraController* controller)
    : DiskCompanion(logger, nameSpace, className, controllerIndex, disk, controller) {}

std::string QLN_VDDiskPhysicalPackage::_tag() const {
    return std::string(className) + "-" + _identityTail();
}

CmpiCpp::CmpiObjectPath QLN_VDDiskPhysicalPackage::getPath() const {
    return _pathByClassAndKey("Tag", _tag());
}

CmpiCpp::CmpiInstance QLN_VDDiskPhysicalPackage::getInstance() const {
    CmpiCpp::CmpiBroker broker(QLNUtil::getBroker());
    CmpiCpp::CmpiInstance instance = CmpiCpp::makeCmpiInstance(broker, getPath());
    VeldraPhysicalDisk const disk = _findDisk(notFound);
    instance.addProperty("CreationClassName", className);
    instance.addProperty("Tag", _tag());
    if (std::string const serial = disk.getSerialNumber(); !serial.empty())
        instance.addProperty("SerialNumber", serial);
    std::string const name = pathsToUserStr(disk.getPaths(), disk.getBay());
    instance.addProperty("ElementName", name);
    instance.addProperty("Name", name);
    if (std::string const manufacturer = disk.getManufacturer(); !manufacturer.empty())
        instance.addProperty("Manufacturer", manufacturer);
    if (std::string const model = disk.getModel(); !model.empty())
        instance.addProperty("Model", model);
    bool const hotSwappable = disk.getIsHotSwappable();
    instance.addProperty("HotSwappable", hotSwappable);
    instance.addProperty("RemovalConditions", hotSwappable ? removableWhenOn : removableWhenOff);
    // The drives report no part number or hardware version of their own.
    instance.addProperty("PartNumber", "N/A");
    instance.addProperty("Version", "N/A");
    instance.addProperty("Description", "Veldra Disk Drive Physical Package");
    return instance;
}

} // namespace QLN
