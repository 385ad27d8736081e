#pragma once
// The boot loader of an authenticated drive carrier.
#include "DiskFirmwareIdentity.h"

namespace QLN {

class QLN_VDLumenDriveCarrierBootldrFirmware : public DiskFirmwareIdentity {
public:
    QLN_VDLumenDriveCarrierBootldrFirmware(Logger& logger, std::string const& nameSpace,
                                           unsigned int controllerIndex,
                                           VeldraPhysicalDisk const& disk,
                                           VeldraController* controller);

protected:
    std::string _version(VeldraPhysicalDisk const& disk) const override;
};

} // namespace QLN
