#pragma once
// The graph code passes the exact end classes: QLN_VDArraySystem and
// QLN_VDPrimordialPool.
#include "VeldraAssociation.h"

namespace QLN {

class QLN_VDArraySystemPrimordialPool : public VeldraAssociation {
public:
    QLN_VDArraySystemPrimordialPool(Logger& logger, std::string const& nameSpace,
                                    CmpiManagedInstance* arraySystem,
                                    CmpiManagedInstance* primordialPool);
};

} // namespace QLN
