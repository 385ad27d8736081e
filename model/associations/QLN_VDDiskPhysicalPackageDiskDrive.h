#pragma once
// The graph code passes the exact end classes: QLN_VDDiskPhysicalPackage and
// QLN_VDDiskDrive.
#include "VeldraAssociation.h"

namespace QLN {

class QLN_VDDiskPhysicalPackageDiskDrive : public VeldraAssociation {
public:
    QLN_VDDiskPhysicalPackageDiskDrive(Logger& logger, std::string const& nameSpace,
                                       CmpiManagedInstance* diskPhysicalPackage,
                                       CmpiManagedInstance* diskDrive);
};

} // namespace QLN
