#pragma once
// The graph code passes the exact end classes: QLN_VDPhysicalPackage and
// QLN_VDArraySystem.
#include "VeldraAssociation.h"

namespace QLN {

class QLN_VDPhysicalPackageArraySystem : public VeldraAssociation {
public:
    QLN_VDPhysicalPackageArraySystem(Logger& logger, std::string const& nameSpace,
                                     CmpiManagedInstance* physicalPackage,
                                     CmpiManagedInstance* arraySystem);
};

} // namespace QLN
