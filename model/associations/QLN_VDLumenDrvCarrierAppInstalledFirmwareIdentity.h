#pragma once
// The graph code passes the exact end classes: QLN_VDDiskDrive and
// QLN_VDLumenDriveCarrierAppFirmware.
#include "VeldraAssociation.h"

namespace QLN {

class QLN_VDLumenDrvCarrierAppInstalledFirmwareIdentity : public VeldraAssociation {
public:
    QLN_VDLumenDrvCarrierAppInstalledFirmwareIdentity(
        Logger& logger, std::string const& nameSpace, CmpiManagedInstance* diskDrive,
        CmpiManagedInstance* lumenDriveCarrierAppFirmware);
};

} // namespace QLN
