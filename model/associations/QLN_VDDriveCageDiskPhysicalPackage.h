#pragma once
// The graph code passes the exact end classes: QLN_VDDriveCage and
// QLN_VDDiskPhysicalPackage.
#include "VeldraAssociation.h"

namespace QLN {

class QLN_VDDriveCageDiskPhysicalPackage : public VeldraAssociation {
public:
    QLN_VDDriveCageDiskPhysicalPackage(Logger& logger, std::string const& nameSpace,
                                       CmpiManagedInstance* driveCage,
                                       CmpiManagedInstance* diskPhysicalPackage);
};

} // namespace QLN
