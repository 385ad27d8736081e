#include "QLN_VDLumenDriveCarrierAppFirmware.h"

#include <cstdio>

namespace {
char const* const className = "QLN_VDLumenDriveCarrierAppFirmware";
} // namespace

namespace QLN {

QLN_VDLumenDriveCarrierAppFirmware::QLN_VDLumenDriveCarrierAppFirmware(
    Logger& logger, std::string const& nameSpace, unsigned int controllerIndex,
    VeldraPhysicalDisk const& disk, VeldraController* controller)
    : DiskFirmwareIdentity(logger, nameSpace, className, "Lumen Drive Carrier Application Firmware",
                           "Lumen Drive Carrier Application Firmware Status: OK", controllerIndex,
                           disk, controller) {}

std::string QLN_VDLumenDriveCarrierAppFirmware::_version(VeldraPhysicalDisk const& disk) const {
    char text[16];
    std::snprintf(text, sizeof text, "%d", disk.getLumenCarrierAppFWRev());
    return text;
}

} // namespace QLN
