#pragma once
// The graph code passes the exact end classes: QLN_VDArraySystem and
// QLN_VDSCSIProtocolController.
#include "VeldraAssociation.h"

namespace QLN {

class QLN_VDArraySystemSCSIProtocolController : public VeldraAssociation {
public:
    QLN_VDArraySystemSCSIProtocolController(Logger& logger, std::string const& nameSpace,
                                            CmpiManagedInstance* arraySystem,
                                            CmpiManagedInstance* scsiProtocolController);
};

} // namespace QLN
