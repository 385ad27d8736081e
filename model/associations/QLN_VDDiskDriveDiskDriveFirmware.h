#pragma once
// The graph code passes the exact end classes: QLN_VDDiskDrive and
// QLN_VDDiskDriveFirmware.
#include "VeldraAssociation.h"

namespace QLN {

class QLN_VDDiskDriveDiskDriveFirmware : public VeldraAssociation {
public:
    QLN_VDDiskDriveDiskDriveFirmware(Logger& logger, std::string const& nameSpace,
                                     CmpiManagedInstance* diskDrive,
                                     CmpiManagedInstance* diskDriveFirmware);

protected:
    void _addExtraProperties(CmpiCpp::CmpiInstance& instance) const override;
};

} // namespace QLN
