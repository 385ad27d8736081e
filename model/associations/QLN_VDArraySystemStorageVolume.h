#pragma once
// The graph code passes the exact end classes: QLN_VDArraySystem and
// QLN_VDStorageVolume.
#include "VeldraAssociation.h"

namespace QLN {

class QLN_VDArraySystemStorageVolume : public VeldraAssociation {
public:
    QLN_VDArraySystemStorageVolume(Logger& logger, std::string const& nameSpace,
                                   CmpiManagedInstance* arraySystem,
                                   CmpiManagedInstance* storageVolume);
};

} // namespace QLN
