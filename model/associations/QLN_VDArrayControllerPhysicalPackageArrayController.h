#pragma once
// The graph code passes the exact end classes: QLN_VDArrayControllerPhysicalPackage and
// QLN_VDArrayController.
#include "VeldraAssociation.h"

namespace QLN {

class QLN_VDArrayControllerPhysicalPackageArrayController : public VeldraAssociation {
public:
    QLN_VDArrayControllerPhysicalPackageArrayController(
        Logger& logger, std::string const& nameSpace,
        CmpiManagedInstance* arrayControllerPhysicalPackage, CmpiManagedInstance* arrayController);
};

} // namespace QLN
