#pragma once
// The graph code passes the exact end classes: QLN_VDDiskPhysicalPackage and
// QLN_VDDiskDriveLocation.
#include "VeldraAssociation.h"

namespace QLN {

class QLN_VDDiskPhysicalPackageDiskDriveLocation : public VeldraAssociation {
public:
    QLN_VDDiskPhysicalPackageDiskDriveLocation(Logger& logger, std::string const& nameSpace,
                                               CmpiManagedInstance* diskPhysicalPackage,
                                               CmpiManagedInstance* diskDriveLocation);
};

} // namespace QLN
