#pragma once
// The graph code passes the exact end classes: QLN_VDArraySystem and
// QLN_VDISASSCSIProtocolEndpoint.
#include "VeldraAssociation.h"

namespace QLN {

class QLN_VDArraySystemISASSCSIProtocolEndpoint : public VeldraAssociation {
public:
    QLN_VDArraySystemISASSCSIProtocolEndpoint(Logger& logger, std::string const& nameSpace,
                                              CmpiManagedInstance* arraySystem,
                                              CmpiManagedInstance* isasscsiProtocolEndpoint);
};

} // namespace QLN
