#pragma once
// The graph code passes the exact end classes: QLN_VDArrayControllerPhysicalPackage and
// QLN_VDArrayControllerLocation.
#include "VeldraAssociation.h"

namespace QLN {

class QLN_VDArrayControllerPhysicalPackageArrayControllerLocation : public VeldraAssociation {
public:
    QLN_VDArrayControllerPhysicalPackageArrayControllerLocation(
        Logger& logger, std::string const& nameSpace,
        CmpiManagedInstance* arrayControllerPhysicalPackage,
        CmpiManagedInstance* arrayControllerLocation);
};

} // namespace QLN
