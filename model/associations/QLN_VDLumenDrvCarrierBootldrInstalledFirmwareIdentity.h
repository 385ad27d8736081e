#pragma once
// The graph code passes the exact end classes: QLN_VDDiskDrive and
// QLN_VDLumenDriveCarrierBootldrFirmware.
#include "VeldraAssociation.h"

namespace QLN {

class QLN_VDLumenDrvCarrierBootldrInstalledFirmwareIdentity : public VeldraAssociation {
public:
    QLN_VDLumenDrvCarrierBootldrInstalledFirmwareIdentity(
        Logger& logger, std::string const& nameSpace, CmpiManagedInstance* diskDrive,
        CmpiManagedInstance* lumenDriveCarrierBootldrFirmware);
};

} // namespace QLN
