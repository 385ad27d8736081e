#pragma once
// The graph code passes the exact end classes: QLN_VDTSASPort and
// QLN_VDTSASSCSIProtocolEndpoint.
#include "VeldraAssociation.h"

namespace QLN {

class QLN_VDTSASPortTSASSCSIProtocolEndpoint : public VeldraAssociation {
public:
    QLN_VDTSASPortTSASSCSIProtocolEndpoint(Logger& logger, std::string const& nameSpace,
                                           CmpiManagedInstance* tsasPort,
                                           CmpiManagedInstance* tsasscsiProtocolEndpoint);
};

} // namespace QLN
