#pragma once
// The graph code passes the exact end classes: QLN_VDArraySystem and
// QLN_VDSoftwareIdentityDriver.
#include "VeldraAssociation.h"

namespace QLN {

class QLN_VDInstalledSoftwareIdentityDriver : public VeldraAssociation {
public:
    QLN_VDInstalledSoftwareIdentityDriver(Logger& logger, std::string const& nameSpace,
                                          CmpiManagedInstance* arraySystem,
                                          CmpiManagedInstance* softwareIdentityDriver);
};

} // namespace QLN
