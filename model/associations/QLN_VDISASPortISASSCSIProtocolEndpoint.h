#pragma once
// The graph code passes the exact end classes: QLN_VDISASPort and
// QLN_VDISASSCSIProtocolEndpoint.
#include "VeldraAssociation.h"

namespace QLN {

class QLN_VDISASPortISASSCSIProtocolEndpoint : public VeldraAssociation {
public:
    QLN_VDISASPortISASSCSIProtocolEndpoint(Logger& logger, std::string const& nameSpace,
                                           CmpiManagedInstance* isasPort,
                                           CmpiManagedInstance* isasscsiProtocolEndpoint);
};

} // namespace QLN
