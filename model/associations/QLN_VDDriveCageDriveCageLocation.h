#pragma once
// The graph code passes the exact end classes: QLN_VDDriveCage and
// QLN_VDDriveCageLocation.
#include "VeldraAssociation.h"

namespace QLN {

class QLN_VDDriveCageDriveCageLocation : public VeldraAssociation {
public:
    QLN_VDDriveCageDriveCageLocation(Logger& logger, std::string const& nameSpace,
                                     CmpiManagedInstance* driveCage,
                                     CmpiManagedInstance* driveCageLocation);
};

} // namespace QLN
