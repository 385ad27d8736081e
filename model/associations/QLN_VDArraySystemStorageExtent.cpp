#include "QLN_VDArraySystemStorageExtent.h"

namespace {
char const* const className = "QLN_VDArraySystemStorageExtent";
}

namespace QLN {

QLN_VDArraySystemStorageExtent::QLN_VDArraySystemStorageExtent(Logger& logger,
                                                               std::string const& nameSpace,
                                                               CmpiManagedInstance* arraySystem,
                                                               CmpiManagedInstance* storageExtent)
    : VeldraAssociation({className, "GroupComponent", "PartComponent", WrittenFirst::FirstEnd},
                        logger, nameSpace, arraySystem, storageExtent) {}

} // namespace QLN
