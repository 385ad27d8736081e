#pragma once
// The graph code passes the exact end classes: QLN_VDArraySystem and
// QLN_VDTSASSCSIProtocolEndpoint.
#include "VeldraAssociation.h"

namespace QLN {

class QLN_VDArraySystemTSASSCSIProtocolEndpoint : public VeldraAssociation {
public:
    QLN_VDArraySystemTSASSCSIProtocolEndpoint(Logger& logger, std::string const& nameSpace,
                                              CmpiManagedInstance* arraySystem,
                                              CmpiManagedInstance* tsasscsiProtocolEndpoint);
};

} // namespace QLN
