#pragma once
// The graph code passes the exact end classes: QLN_VDArraySystem and
// QLN_VDTSASPort.
#include "VeldraAssociation.h"

namespace QLN {

class QLN_VDArraySystemTSASPort : public VeldraAssociation {
public:
    QLN_VDArraySystemTSASPort(Logger& logger, std::string const& nameSpace,
                              CmpiManagedInstance* arraySystem, CmpiManagedInstance* tsasPort);
};

} // namespace QLN
