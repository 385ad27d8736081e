#pragma once
// The graph code passes the exact end classes: QLN_VDStorageExtent (a spare) and
// QLN_VDStorageExtent.
#include "VeldraAssociation.h"

namespace QLN {

class QLN_VDSpareExtentStorageExtent : public VeldraAssociation {
public:
    QLN_VDSpareExtentStorageExtent(Logger& logger, std::string const& nameSpace,
                                   CmpiManagedInstance* spareExtent,
                                   CmpiManagedInstance* storageExtent);
};

} // namespace QLN
