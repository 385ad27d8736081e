#pragma once
// The firmware of one disk drive, made only for a disk with a serial number.
#include "DiskFirmwareIdentity.h"

namespace QLN {

class QLN_VDDiskDriveFirmware : public DiskFirmwareIdentity {
public:
    QLN_VDDiskDriveFirmware(Logger& logger, std::string const& nameSpace,
                            unsigned int controllerIndex, VeldraPhysicalDisk const& disk,
                            VeldraController* controller);

protected:
    std::string _version(VeldraPhysicalDisk const& disk) const override;
};

} // namespace QLN
