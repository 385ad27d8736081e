#pragma once
// The graph code passes the exact end classes: QLN_VDPhysicalPackage and
// QLN_VDArraySystemLocation.
#include "VeldraAssociation.h"

namespace QLN {

class QLN_VDPhysicalPackageArraySystemLocation : public VeldraAssociation {
public:
    QLN_VDPhysicalPackageArraySystemLocation(Logger& logger, std::string const& nameSpace,
                                             CmpiManagedInstance* physicalPackage,
                                             CmpiManagedInstance* arraySystemLocation);
};

} // namespace QLN
