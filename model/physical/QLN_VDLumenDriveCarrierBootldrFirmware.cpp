#include "QLN_VDLumenDriveCarrierBootldrFirmware.h"

#include <cstdio>

namespace {
char const* const className = "QLN_VDLumenDriveCarrierBootldrFirmware";
} // namespace

namespace QLN {

QLN_VDLumenDriveCarrierBootldrFirmware::QLN_VDLumenDriveCarrierBootldrFirmware(
    Logger& logger, std::string const& nameSpace, unsigned int controllerIndex,
    VeldraPhysicalDisk const& disk, VeldraController* controller)
    : DiskFirmwareIdentity(logger, nameSpace, className, "Lumen Drive Carrier Bootloader Firmware",
                           "Lumen Drive Carrier Bootloader Firmware Status: OK", controllerIndex,
                           disk, controller) {}

std::string QLN_VDLumenDriveCarrierBootldrFirmware::_version(VeldraPhysicalDisk const& disk) const {
    char text[16];
    std::snprintf(text, sizeof text, "%d", disk.getLumenCarrierBootLoaderFWRev());
    return text;
}

} // namespace QLN
