#pragma once
// The graph code passes the exact end classes: QLN_VDArraySystem and
// QLN_VDStorageExtent.
#include "VeldraAssociation.h"

namespace QLN {

class QLN_VDArraySystemStorageExtent : public VeldraAssociation {
public:
    QLN_VDArraySystemStorageExtent(Logger& logger, std::string const& nameSpace,
                                   CmpiManagedInstance* arraySystem,
                                   CmpiManagedInstance* storageExtent);
};

} // namespace QLN
