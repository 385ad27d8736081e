#include "QLN_VDStoragePoolStorageExtent.h"

namespace {
char const* const className = "QLN_VDStoragePoolStorageExtent";
}

namespace QLN {

QLN_VDStoragePoolStorageExtent::QLN_VDStoragePoolStorageExtent(Logger& logger,
                                                               std::string const& nameSpace,
                                                               CmpiManagedInstance* storagePool,
                                                               CmpiManagedInstance* storageExtent)
    : VeldraAssociation({className, "GroupComponent", "PartComponent", WrittenFirst::FirstEnd},
                        logger, nameSpace, storagePool, storageExtent) {}

} // namespace QLN
