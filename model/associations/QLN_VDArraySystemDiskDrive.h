#pragma once
// The graph code passes the exact end classes: QLN_VDArraySystem and
// QLN_VDDiskDrive.
#include "VeldraAssociation.h"

namespace QLN {

class QLN_VDArraySystemDiskDrive : public VeldraAssociation {
public:
    QLN_VDArraySystemDiskDrive(Logger& logger, std::string const& nameSpace,
                               CmpiManagedInstance* arraySystem, CmpiManagedInstance* diskDrive);
};

} // namespace QLN
