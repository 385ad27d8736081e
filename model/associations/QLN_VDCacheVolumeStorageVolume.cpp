#include "QLN_VDCacheVolumeStorageVolume.h"

namespace {
char const* const className = "QLN_VDCacheVolumeStorageVolume";
}

namespace QLN {

QLN_VDCacheVolumeStorageVolume::QLN_VDCacheVolumeStorageVolume(Logger& logger,
                                                               std::string const& nameSpace,
                                                               CmpiManagedInstance* cacheVolume,
                                                               CmpiManagedInstance* cachedVolume)
    : VeldraAssociation({className, "Dependent", "Antecedent", WrittenFirst::FirstEnd}, logger,
                        nameSpace, cacheVolume, cachedVolume) {}

} // namespace QLN
