#pragma once
// The graph code passes the exact end classes: QLN_VDStoragePool and
// QLN_VDStorageCapabilities.
#include "VeldraAssociation.h"

namespace QLN {

class QLN_VDStoragePoolStorageCapabilities : public VeldraAssociation {
public:
    QLN_VDStoragePoolStorageCapabilities(Logger& logger, std::string const& nameSpace,
                                         CmpiManagedInstance* storagePool,
                                         CmpiManagedInstance* storageCapabilities);
};

} // namespace QLN
