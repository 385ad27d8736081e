#include "QLN_VDStorageExtent.h"

#include "CmpiBroker.h"
#include "DiskStatusRow.h"
#include "FixedStateProperties.h"
#include "IdentityHelpers.h"
#include "PhysicalDiskKey.h"
#include "QLNUtil.h"
#include "VDArrayValues.h"
#include "VeldraStorageFunctions.h"

namespace {
char const* const className = "QLN_VDStorageExtent";
char const* const arraySystemClass = "QLN_VDArraySystem";
// Note the blank after the comma: this class's line differs from the disk's.
char const* const notFound =
    "getInstance, findPhysicalDiskInVector could not find drive based on serial # or location";
// CIM_StorageExtent.ExtentStatus values.
unsigned short const extentRebuild = 11;
unsigned short const extentNone = 2;
} // namespace

namespace QLN {

QLN_VDStorageExtent::QLN_VDStorageExtent(Logger& logger, std::string const& nameSpace,
                                         unsigned int controllerIndex,
                                         VeldraPhysicalDisk const& disk,
                                         VeldraController* controller)
    : DiskCompanion(logger, nameSpace, className, controllerIndex, disk, controller),
      _paths(disk.getLastAllPhysicalPaths()), _portString(pathsToPortStr(_paths)) {}

std::string QLN_VDStorageExtent::_deviceId() const {
    // Unlike the disk, no controller number: SystemName already scopes it.
    return diskKeyName(_serialNumber, _model, "", _boxNumber, _bay);
}

CmpiCpp::CmpiObjectPath QLN_VDStorageExtent::getPath() const {
    return makeSystemDevicePath(_namespace, className,
                                PhysicalDiskKey::systemName(_controller, _controllerIndex),
                                DeviceKeyOrder::SystemClassFirst, "DeviceID", _deviceId());
}

CmpiCpp::CmpiInstance QLN_VDStorageExtent::getInstance() const {
    CmpiCpp::CmpiBroker broker(QLNUtil::getBroker());
    // The keys are taken from the path rather than made a second time.
    CmpiCpp::CmpiObjectPath const path = getPath();
    CmpiCpp::CmpiInstance instance = CmpiCpp::makeCmpiInstance(broker, path);
    VeldraPhysicalDisk const disk = _findDisk(notFound);

    instance.addProperty("SystemCreationClassName", arraySystemClass);
    instance.addProperty("CreationClassName", className);
    instance.addProperty("SystemName", path.getKey("SystemName"));
    instance.addProperty("DeviceID", path.getKey("DeviceID"));
    instance.addProperty("Name", _serialNumber);
    instance.addProperty("ElementName", pathsToUserStr(disk.getPaths(), disk.getBay()));
    VeldraPhysicalDiskStatusEnum const status = disk.getStatus();
    // The wear and carrier rows are the disk's to explain, not the extent's.
    DiskStatusRow::of(status, false, false).addTo(instance);
    instance.addProperty(
        "ExtentStatus",
        VDArrayValues::uint16s({status == PD_STATUS_REBUILDING ? extentRebuild : extentNone}));
    FixedStateProperties::enabled(instance);
    instance.addProperty("BlockSize", static_cast<unsigned long long>(disk.getBlockSize()));
    auto const blocks = static_cast<unsigned long long>(disk.getTotalBlocks());
    instance.addProperty("ConsumableBlocks", blocks);
    instance.addProperty("NumberOfBlocks", blocks);
    instance.addProperty("Primordial", true);
    if (u64 const hours = disk.getTotalPowerOnHours(); hours != 0)
        instance.addProperty("TotalPowerOnHours", static_cast<unsigned long long>(hours));
    return instance;
}

} // namespace QLN
