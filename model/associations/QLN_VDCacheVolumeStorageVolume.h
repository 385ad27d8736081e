#pragma once
// The first end is the cache volume, the second the volume it caches.
#include "TypedAssociation.h"

namespace QLN {

class QLN_VDStorageVolume;

class QLN_VDCacheVolumeStorageVolume
    : public TypedAssociation<QLN_VDCacheVolumeStorageVolume, QLN_VDStorageVolume,
                              QLN_VDStorageVolume> {
public:
    using TypedAssociation::TypedAssociation;
    static constexpr Shape shape{"QLN_VDCacheVolumeStorageVolume", "Dependent", "Antecedent",
                                 WrittenFirst::FirstEnd};
};

} // namespace QLN
