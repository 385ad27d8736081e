#include "QLN_VDComputerSystemArraySystem.h"

namespace {
char const* const className = "QLN_VDComputerSystemArraySystem";
}

namespace QLN {

QLN_VDComputerSystemArraySystem::QLN_VDComputerSystemArraySystem(
    Logger& logger, std::string const& nameSpace, CmpiCpp::CmpiObjectPath const& computerSystemPath,
    CmpiManagedInstance* arraySystem)
    : VeldraAssociation({className, "GroupComponent", "PartComponent", WrittenFirst::FirstEnd},
                        logger, nameSpace, computerSystemPath, arraySystem) {}

} // namespace QLN
