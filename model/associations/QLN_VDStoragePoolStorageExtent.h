#pragma once
// The graph code passes the exact end classes: QLN_VDStoragePool and
// QLN_VDStorageExtent.
#include "VeldraAssociation.h"

namespace QLN {

class QLN_VDStoragePoolStorageExtent : public VeldraAssociation {
public:
    QLN_VDStoragePoolStorageExtent(Logger& logger, std::string const& nameSpace,
                                   CmpiManagedInstance* storagePool,
                                   CmpiManagedInstance* storageExtent);
};

} // namespace QLN
