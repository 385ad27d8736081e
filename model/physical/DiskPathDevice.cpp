#include "DiskPathDevice.h"

#include "CmpiBroker.h"
#include "IdentityHelpers.h"
#include "PhysicalDiskKey.h"
#include "QLNUtil.h"

namespace {
char const* const arraySystemClass = "QLN_VDArraySystem";
} // namespace

namespace QLN {

DiskPathDevice::DiskPathDevice(Logger& logger, std::string const& nameSpace, char const* className,
                               unsigned int controllerIndex, VeldraPhysicalDisk const& disk,
                               VeldraPhysicalPath const& path, int pathIndex,
                               VeldraController* controller)
    : ControllerManagedInstance(logger, className, nameSpace, controllerIndex, controller),
      _pathIndex(pathIndex), _serialNumber(disk.getSerialNumber()), _port(path.getPort()),
      _model(disk.getModel()), _boxNumber(disk.getEnclosureBoxNumber()), _bay(disk.getBay()) {}

std::string DiskPathDevice::_keyValue() const {
    return diskKeyName(_serialNumber, _model, _port + ":", _boxNumber, _bay) + ":" +
           std::to_string(_pathIndex);
}

CmpiCpp::CmpiObjectPath DiskPathDevice::_path(char const* lastKeyName) const {
    return makeSystemDevicePath(_namespace, _cimClassName(),
                                PhysicalDiskKey::systemName(_controller, _controllerIndex),
                                DeviceKeyOrder::ClassFirst, lastKeyName, _keyValue());
}

void DiskPathDevice::_addKeyProperties(CmpiCpp::CmpiInstance& instance,
                                       char const* lastKeyName) const {
    instance.addProperty("CreationClassName", _cimClassName());
    instance.addProperty("SystemCreationClassName", arraySystemClass);
    // The instance was made from the path; its keys are not made again.
    instance.addProperty("SystemName", instance.getPath().getKey("SystemName"));
    instance.addProperty(lastKeyName, instance.getPath().getKey(lastKeyName));
}

} // namespace QLN
