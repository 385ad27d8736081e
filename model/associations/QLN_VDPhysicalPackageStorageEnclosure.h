#pragma once
// The graph code passes the exact end classes: QLN_VDPhysicalPackage and
// QLN_VDStorageEnclosure.
#include "VeldraAssociation.h"

namespace QLN {

class QLN_VDPhysicalPackageStorageEnclosure : public VeldraAssociation {
public:
    QLN_VDPhysicalPackageStorageEnclosure(Logger& logger, std::string const& nameSpace,
                                          CmpiManagedInstance* physicalPackage,
                                          CmpiManagedInstance* storageEnclosure);
};

} // namespace QLN
