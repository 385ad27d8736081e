#include "QLN_VDDiskDriveFirmware.h"

namespace {
char const* const className = "QLN_VDDiskDriveFirmware";
} // namespace

namespace QLN {

QLN_VDDiskDriveFirmware::QLN_VDDiskDriveFirmware(Logger& logger, std::string const& nameSpace,
                                                 unsigned int controllerIndex,
                                                 VeldraPhysicalDisk const& disk,
                                                 VeldraController* controller)
    : DiskFirmwareIdentity(logger, nameSpace, className, "Disk Drive Firmware",
                           "Disk Drive Firmware Status: OK", controllerIndex, disk, controller) {}

std::string QLN_VDDiskDriveFirmware::_version(VeldraPhysicalDisk const& disk) const {
    return disk.getFirmWareRevision();
}

} // namespace QLN
