#pragma once
// The graph code passes the exact end classes: QLN_VDStorageRedundancySet and
// QLN_VDStorageExtent.
#include "VeldraAssociation.h"

namespace QLN {

class QLN_VDStorageRedundancySetStorageExtent : public VeldraAssociation {
public:
    QLN_VDStorageRedundancySetStorageExtent(Logger& logger, std::string const& nameSpace,
                                            CmpiManagedInstance* storageRedundancySet,
                                            CmpiManagedInstance* storageExtent);
};

} // namespace QLN
