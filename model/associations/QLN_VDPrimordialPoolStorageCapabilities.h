#pragma once
// The graph code passes the exact end classes: QLN_VDPrimordialPool and
// QLN_VDStorageCapabilities.
#include "VeldraAssociation.h"

namespace QLN {

class QLN_VDPrimordialPoolStorageCapabilities : public VeldraAssociation {
public:
    QLN_VDPrimordialPoolStorageCapabilities(Logger& logger, std::string const& nameSpace,
                                            CmpiManagedInstance* primordialPool,
                                            CmpiManagedInstance* storageCapabilities);
};

} // namespace QLN
