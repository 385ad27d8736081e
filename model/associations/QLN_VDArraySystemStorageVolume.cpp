#include "QLN_VDArraySystemStorageVolume.h"

namespace {
char const* const className = "QLN_VDArraySystemStorageVolume";
}

namespace QLN {

QLN_VDArraySystemStorageVolume::QLN_VDArraySystemStorageVolume(Logger& logger,
                                                               std::string const& nameSpace,
                                                               CmpiManagedInstance* arraySystem,
                                                               CmpiManagedInstance* storageVolume)
    : VeldraAssociation({className, "GroupComponent", "PartComponent", WrittenFirst::FirstEnd},
                        logger, nameSpace, arraySystem, storageVolume) {}

} // namespace QLN
