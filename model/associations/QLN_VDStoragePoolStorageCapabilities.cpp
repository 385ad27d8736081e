#include "QLN_VDStoragePoolStorageCapabilities.h"

namespace {
char const* const className = "QLN_VDStoragePoolStorageCapabilities";
}

namespace QLN {

QLN_VDStoragePoolStorageCapabilities::QLN_VDStoragePoolStorageCapabilities(
    Logger& logger, std::string const& nameSpace, CmpiManagedInstance* storagePool,
    CmpiManagedInstance* storageCapabilities)
    : VeldraAssociation({className, "ManagedElement", "Capabilities", WrittenFirst::FirstEnd},
                        logger, nameSpace, storagePool, storageCapabilities) {}

} // namespace QLN
