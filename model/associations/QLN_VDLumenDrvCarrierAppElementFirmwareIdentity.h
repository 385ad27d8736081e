#pragma once
// The graph code passes the exact end classes: QLN_VDLumenDriveCarrierAppFirmware and
// QLN_VDDiskDrive.
#include "VeldraAssociation.h"

namespace QLN {

class QLN_VDLumenDrvCarrierAppElementFirmwareIdentity : public VeldraAssociation {
public:
    QLN_VDLumenDrvCarrierAppElementFirmwareIdentity(
        Logger& logger, std::string const& nameSpace,
        CmpiManagedInstance* lumenDriveCarrierAppFirmware, CmpiManagedInstance* diskDrive);

protected:
    void _addExtraProperties(CmpiCpp::CmpiInstance& instance) const override;
};

} // namespace QLN
