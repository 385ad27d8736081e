#pragma once
// The graph code passes the exact end classes: QLN_VDDiskDrive and
// QLN_VDMediaAccessStatData.
#include "VeldraAssociation.h"

namespace QLN {

class QLN_VDDiskDriveMediaAccessStatData : public VeldraAssociation {
public:
    QLN_VDDiskDriveMediaAccessStatData(Logger& logger, std::string const& nameSpace,
                                       CmpiManagedInstance* diskDrive,
                                       CmpiManagedInstance* mediaAccessStatData);
};

} // namespace QLN
