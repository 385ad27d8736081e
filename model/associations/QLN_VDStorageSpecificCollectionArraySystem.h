#pragma once
// The graph code passes the exact end classes: QLN_VDStorageSpecificCollection and
// QLN_VDArraySystem.
#include "VeldraAssociation.h"

namespace QLN {

class QLN_VDStorageSpecificCollectionArraySystem : public VeldraAssociation {
public:
    QLN_VDStorageSpecificCollectionArraySystem(Logger& logger, std::string const& nameSpace,
                                               CmpiManagedInstance* storageSpecificCollection,
                                               CmpiManagedInstance* arraySystem);
};

} // namespace QLN
