#pragma once
// The graph code passes the exact end classes: QLN_VDArraySystem and
// QLN_VDSCSIProtocolEndpoint.
#include "VeldraAssociation.h"

namespace QLN {

class QLN_VDArraySystemSCSIProtocolEndpoint : public VeldraAssociation {
public:
    QLN_VDArraySystemSCSIProtocolEndpoint(Logger& logger, std::string const& nameSpace,
                                          CmpiManagedInstance* arraySystem,
                                          CmpiManagedInstance* scsiProtocolEndpoint);
};

} // namespace QLN
