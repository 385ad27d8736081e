#pragma once
// The graph code passes the exact end classes: QLN_VDDiskDrive and
// QLN_VDStorageExtent.
#include "VeldraAssociation.h"

namespace QLN {

class QLN_VDDiskDriveStorageExtent : public VeldraAssociation {
public:
    QLN_VDDiskDriveStorageExtent(Logger& logger, std::string const& nameSpace,
                                 CmpiManagedInstance* diskDrive,
                                 CmpiManagedInstance* storageExtent);
};

} // namespace QLN
