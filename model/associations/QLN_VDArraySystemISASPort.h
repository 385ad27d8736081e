#pragma once
// The graph code passes the exact end classes: QLN_VDArraySystem and
// QLN_VDISASPort.
#include "VeldraAssociation.h"

namespace QLN {

class QLN_VDArraySystemISASPort : public VeldraAssociation {
public:
    QLN_VDArraySystemISASPort(Logger& logger, std::string const& nameSpace,
                              CmpiManagedInstance* arraySystem, CmpiManagedInstance* isasPort);
};

} // namespace QLN
