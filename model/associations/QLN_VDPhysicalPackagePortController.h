#pragma once
// The graph code passes the exact end classes: QLN_VDPhysicalPackage and
// QLN_VDPortController.
#include "VeldraAssociation.h"

namespace QLN {

class QLN_VDPhysicalPackagePortController : public VeldraAssociation {
public:
    QLN_VDPhysicalPackagePortController(Logger& logger, std::string const& nameSpace,
                                        CmpiManagedInstance* physicalPackage,
                                        CmpiManagedInstance* portController);
};

} // namespace QLN
