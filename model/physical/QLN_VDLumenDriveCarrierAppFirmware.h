#pragma once
// The application program of an authenticated drive carrier.
#include "DiskFirmwareIdentity.h"

namespace QLN {

class QLN_VDLumenDriveCarrierAppFirmware : public DiskFirmwareIdentity {
public:
    QLN_VDLumenDriveCarrierAppFirmware(Logger& logger, std::string const& nameSpace,
                                       unsigned int controllerIndex, VeldraPhysicalDisk const& disk,
                                       VeldraController* controller);

protected:
    std::string _version(VeldraPhysicalDisk const& disk) const override;
};

} // namespace QLN
