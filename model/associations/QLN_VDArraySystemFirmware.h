#pragma once
// The graph code passes the exact end classes: QLN_VDArraySystem and
// QLN_VDFirmware.
#include "VeldraAssociation.h"

namespace QLN {

class QLN_VDArraySystemFirmware : public VeldraAssociation {
public:
    QLN_VDArraySystemFirmware(Logger& logger, std::string const& nameSpace,
                              CmpiManagedInstance* arraySystem, CmpiManagedInstance* firmware);
};

} // namespace QLN
