#include "DiskCompanion.h"

#include "IdentityHelpers.h"
#include "PhysicalDiskKey.h"

namespace QLN {

DiskCompanion::DiskCompanion(Logger& logger, std::string const& nameSpace, char const* className,
                             unsigned int controllerIndex, VeldraPhysicalDisk const& disk,
                             VeldraController* controller)
    : ControllerManagedInstance(logger, className, nameSpace, controllerIndex, controller),
      _serialNumber(disk.getSerialNumber()), _model(disk.getModel()),
      _boxNumber(disk.getEnclosureBoxNumber()), _bay(disk.getBay()) {}

std::string DiskCompanion::_identityTail() const {
    // The serial as the disk reports it: one of only blanks names the disk
    // "MODEL-" here, where change detection's makeDiskDrivePath uses the place.
    return diskKeyName(_serialNumber, _model, std::to_string(_controllerIndex) + "-", _boxNumber,
                       _bay);
}

VeldraPhysicalDisk DiskCompanion::_findDisk(char const* failure) const {
    return PhysicalDiskKey::find(_controller, _logger, _serialNumber, _boxNumber, _bay, failure);
}

} // namespace QLN
