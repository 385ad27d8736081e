#pragma once
// The graph code passes the exact end classes: QLN_VDStorageEnclosure and
// QLN_VDDriveCage.
#include "VeldraAssociation.h"

namespace QLN {

class QLN_VDStorageEnclosureDriveCage : public VeldraAssociation {
public:
    QLN_VDStorageEnclosureDriveCage(Logger& logger, std::string const& nameSpace,
                                    CmpiManagedInstance* storageEnclosure,
                                    CmpiManagedInstance* driveCage);
};

} // namespace QLN
