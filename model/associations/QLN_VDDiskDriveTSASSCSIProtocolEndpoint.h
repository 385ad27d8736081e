#pragma once
// The graph code passes the exact end classes: QLN_VDDiskDrive and
// QLN_VDTSASSCSIProtocolEndpoint.
#include "VeldraAssociation.h"

namespace QLN {

class QLN_VDDiskDriveTSASSCSIProtocolEndpoint : public VeldraAssociation {
public:
    QLN_VDDiskDriveTSASSCSIProtocolEndpoint(Logger& logger, std::string const& nameSpace,
                                            CmpiManagedInstance* diskDrive,
                                            CmpiManagedInstance* tsasscsiProtocolEndpoint);
};

} // namespace QLN
