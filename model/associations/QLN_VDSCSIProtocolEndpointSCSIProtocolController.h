#pragma once
// The graph code passes the exact end classes: QLN_VDSCSIProtocolEndpoint and
// QLN_VDSCSIProtocolController.
#include "VeldraAssociation.h"

namespace QLN {

class QLN_VDSCSIProtocolEndpointSCSIProtocolController : public VeldraAssociation {
public:
    QLN_VDSCSIProtocolEndpointSCSIProtocolController(Logger& logger, std::string const& nameSpace,
                                                     CmpiManagedInstance* scsiProtocolEndpoint,
                                                     CmpiManagedInstance* scsiProtocolController);
};

} // namespace QLN
