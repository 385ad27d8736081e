#pragma once
// The graph code passes the exact end classes: QLN_VDArraySystem and
// QLN_VDPortController.
#include "VeldraAssociation.h"

namespace QLN {

class QLN_VDArraySystemPortController : public VeldraAssociation {
public:
    QLN_VDArraySystemPortController(Logger& logger, std::string const& nameSpace,
                                    CmpiManagedInstance* arraySystem,
                                    CmpiManagedInstance* portController);
};

} // namespace QLN
