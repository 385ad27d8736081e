#pragma once
// The graph code passes the exact end classes: QLN_VDProduct and
// QLN_VDPhysicalPackage.
#include "VeldraAssociation.h"

namespace QLN {

class QLN_VDProductPhysicalPackage : public VeldraAssociation {
public:
    QLN_VDProductPhysicalPackage(Logger& logger, std::string const& nameSpace,
                                 CmpiManagedInstance* product,
                                 CmpiManagedInstance* physicalPackage);
};

} // namespace QLN
