#pragma once
// The graph code passes the exact end classes: QLN_VDArraySystem and
// QLN_VDStoragePool.
#include "VeldraAssociation.h"

namespace QLN {

class QLN_VDArraySystemStoragePool : public VeldraAssociation {
public:
    QLN_VDArraySystemStoragePool(Logger& logger, std::string const& nameSpace,
                                 CmpiManagedInstance* arraySystem,
                                 CmpiManagedInstance* storagePool);
};

} // namespace QLN
