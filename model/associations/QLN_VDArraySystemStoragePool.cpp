#include "QLN_VDArraySystemStoragePool.h"

namespace {
char const* const className = "QLN_VDArraySystemStoragePool";
}

namespace QLN {

QLN_VDArraySystemStoragePool::QLN_VDArraySystemStoragePool(Logger& logger,
                                                           std::string const& nameSpace,
                                                           CmpiManagedInstance* arraySystem,
                                                           CmpiManagedInstance* storagePool)
    : VeldraAssociation({className, "GroupComponent", "PartComponent", WrittenFirst::FirstEnd},
                        logger, nameSpace, arraySystem, storagePool) {}

} // namespace QLN
