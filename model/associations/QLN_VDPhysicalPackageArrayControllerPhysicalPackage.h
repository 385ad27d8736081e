#pragma once
// The graph code passes the exact end classes: QLN_VDPhysicalPackage and
// QLN_VDArrayControllerPhysicalPackage.
#include "VeldraAssociation.h"

namespace QLN {

class QLN_VDPhysicalPackageArrayControllerPhysicalPackage : public VeldraAssociation {
public:
    QLN_VDPhysicalPackageArrayControllerPhysicalPackage(
        Logger& logger, std::string const& nameSpace, CmpiManagedInstance* physicalPackage,
        CmpiManagedInstance* arrayControllerPhysicalPackage);
};

} // namespace QLN
