#pragma once
// The graph code passes the exact end classes: QLN_VDLumenDriveCarrierBootldrFirmware and
// QLN_VDDiskDrive.
#include "VeldraAssociation.h"

namespace QLN {

class QLN_VDLumenDrvCarrierBootldrElementFirmwareIdentity : public VeldraAssociation {
public:
    QLN_VDLumenDrvCarrierBootldrElementFirmwareIdentity(
        Logger& logger, std::string const& nameSpace,
        CmpiManagedInstance* lumenDriveCarrierBootldrFirmware, CmpiManagedInstance* diskDrive);

protected:
    void _addExtraProperties(CmpiCpp::CmpiInstance& instance) const override;
};

} // namespace QLN
