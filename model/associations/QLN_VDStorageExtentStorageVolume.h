#pragma once
// The graph code passes the exact end classes: QLN_VDStorageExtent and
// QLN_VDStorageVolume.
#include "VeldraAssociation.h"

namespace QLN {

class QLN_VDStorageExtentStorageVolume : public VeldraAssociation {
public:
    QLN_VDStorageExtentStorageVolume(Logger& logger, std::string const& nameSpace,
                                     CmpiManagedInstance* storageExtent,
                                     CmpiManagedInstance* storageVolume);
};

} // namespace QLN
