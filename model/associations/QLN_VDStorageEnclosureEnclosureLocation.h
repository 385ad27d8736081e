#pragma once
// The graph code passes the exact end classes: QLN_VDStorageEnclosure and
// QLN_VDStorageEnclosureLocation.
#include "VeldraAssociation.h"

namespace QLN {

class QLN_VDStorageEnclosureEnclosureLocation : public VeldraAssociation {
public:
    QLN_VDStorageEnclosureEnclosureLocation(Logger& logger, std::string const& nameSpace,
                                            CmpiManagedInstance* storageEnclosure,
                                            CmpiManagedInstance* storageEnclosureLocation);
};

} // namespace QLN
