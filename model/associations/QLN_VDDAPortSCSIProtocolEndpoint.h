#pragma once
// The graph code passes the exact end classes: QLN_VDDAPort and
// QLN_VDSCSIProtocolEndpoint.
#include "VeldraAssociation.h"

namespace QLN {

class QLN_VDDAPortSCSIProtocolEndpoint : public VeldraAssociation {
public:
    QLN_VDDAPortSCSIProtocolEndpoint(Logger& logger, std::string const& nameSpace,
                                     CmpiManagedInstance* daPort,
                                     CmpiManagedInstance* scsiProtocolEndpoint);
};

} // namespace QLN
