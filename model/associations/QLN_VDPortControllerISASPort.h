#pragma once
// The graph code passes the exact end classes: QLN_VDPortController and
// QLN_VDISASPort.
#include "VeldraAssociation.h"

namespace QLN {

class QLN_VDPortControllerISASPort : public VeldraAssociation {
public:
    QLN_VDPortControllerISASPort(Logger& logger, std::string const& nameSpace,
                                 CmpiManagedInstance* portController,
                                 CmpiManagedInstance* isasPort);
};

} // namespace QLN
