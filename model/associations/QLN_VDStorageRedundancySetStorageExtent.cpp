#include "QLN_VDStorageRedundancySetStorageExtent.h"

namespace {
char const* const className = "QLN_VDStorageRedundancySetStorageExtent";
}

namespace QLN {

QLN_VDStorageRedundancySetStorageExtent::QLN_VDStorageRedundancySetStorageExtent(
    Logger& logger, std::string const& nameSpace, CmpiManagedInstance* storageRedundancySet,
    CmpiManagedInstance* storageExtent)
    : VeldraAssociation({className, "Collection", "Member", WrittenFirst::FirstEnd}, logger,
                        nameSpace, storageRedundancySet, storageExtent) {}

} // namespace QLN
