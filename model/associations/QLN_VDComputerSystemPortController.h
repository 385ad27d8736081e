#pragma once
// The first end is served by another provider: QLN_ComputerSystem, known by its path.
// The second end is a QLN_VDPortController; the graph code passes that exact class.
#include "VeldraAssociation.h"

namespace QLN {

class QLN_VDComputerSystemPortController : public VeldraAssociation {
public:
    QLN_VDComputerSystemPortController(Logger& logger, std::string const& nameSpace,
                                       CmpiCpp::CmpiObjectPath const& computerSystemPath,
                                       CmpiManagedInstance* portController);
};

} // namespace QLN
