#pragma once
// The graph code passes the exact end classes: QLN_VDStorageExtent (a spare) and
// QLN_VDStorageRedundancySet.
#include "VeldraAssociation.h"

namespace QLN {

class QLN_VDSpareExtentStorageRedundancySet : public VeldraAssociation {
public:
    QLN_VDSpareExtentStorageRedundancySet(Logger& logger, std::string const& nameSpace,
                                          CmpiManagedInstance* spareExtent,
                                          CmpiManagedInstance* storageRedundancySet);
};

} // namespace QLN
