#pragma once
// The graph code passes the exact end classes: QLN_VDArraySystem and
// QLN_VDArrayController.
#include "VeldraAssociation.h"

namespace QLN {

class QLN_VDArraySystemArrayController : public VeldraAssociation {
public:
    QLN_VDArraySystemArrayController(Logger& logger, std::string const& nameSpace,
                                     CmpiManagedInstance* arraySystem,
                                     CmpiManagedInstance* arrayController);
};

} // namespace QLN
