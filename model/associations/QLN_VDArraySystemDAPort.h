#pragma once
// The graph code passes the exact end classes: QLN_VDArraySystem and
// QLN_VDDAPort.
#include "VeldraAssociation.h"

namespace QLN {

class QLN_VDArraySystemDAPort : public VeldraAssociation {
public:
    QLN_VDArraySystemDAPort(Logger& logger, std::string const& nameSpace,
                            CmpiManagedInstance* arraySystem, CmpiManagedInstance* daPort);
};

} // namespace QLN
