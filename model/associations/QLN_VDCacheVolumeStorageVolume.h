#pragma once
// The graph code passes the exact end classes: QLN_VDStorageVolume (the cache volume) and
// QLN_VDStorageVolume (the cached volume).
#include "VeldraAssociation.h"

namespace QLN {

class QLN_VDCacheVolumeStorageVolume : public VeldraAssociation {
public:
    QLN_VDCacheVolumeStorageVolume(Logger& logger, std::string const& nameSpace,
                                   CmpiManagedInstance* cacheVolume,
                                   CmpiManagedInstance* cachedVolume);
};

} // namespace QLN
