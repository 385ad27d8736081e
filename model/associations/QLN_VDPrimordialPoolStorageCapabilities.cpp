#include "QLN_VDPrimordialPoolStorageCapabilities.h"

namespace {
char const* const className = "QLN_VDPrimordialPoolStorageCapabilities";
}

namespace QLN {

QLN_VDPrimordialPoolStorageCapabilities::QLN_VDPrimordialPoolStorageCapabilities(
    Logger& logger, std::string const& nameSpace, CmpiManagedInstance* primordialPool,
    CmpiManagedInstance* storageCapabilities)
    : VeldraAssociation({className, "ManagedElement", "Capabilities", WrittenFirst::FirstEnd},
                        logger, nameSpace, primordialPool, storageCapabilities) {}

} // namespace QLN
