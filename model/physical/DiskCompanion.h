#pragma once
// Common ground of the disk and the instances that stand for it or beside it
// (extent, package, location, firmware, statistics): the disk's identity
// frozen at construction, and the look-up of the disk in the last snapshot
// each time an instance is asked for.
#include "ControllerManagedInstance.h"
#include "Logger.h"
#include "VeldraController.h"
#include "VeldraPhysicalDisk.h"

#include <string>

namespace QLN {

class DiskCompanion : public ControllerManagedInstance {
public:
    // Identity as frozen at construction, for the worker's matching.
    std::string const& getSerialNumber() const { return _serialNumber; }
    int getBoxNumber() const { return _boxNumber; }
    int getBay() const { return _bay; }

protected:
    DiskCompanion(Logger& logger, std::string const& nameSpace, char const* className,
                  unsigned int controllerIndex, VeldraPhysicalDisk const& disk,
                  VeldraController* controller);

    // "<model>-<serial>", or "<controller>-<box>:<bay>" for a disk without a serial.
    std::string _identityTail() const;
    // The disk in the last snapshot; logs and throws status 100 when it is gone.
    VeldraPhysicalDisk _findDisk(char const* failure) const;

    std::string _serialNumber;
    std::string _model;
    int _boxNumber;
    int _bay;
};

} // namespace QLN
