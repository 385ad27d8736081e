#pragma once
#include "TypedAssociation.h"

namespace QLN {

class QLN_VDArraySystem;
class QLN_VDStorageVolume;

class QLN_VDArraySystemStorageVolume
    : public TypedAssociation<QLN_VDArraySystemStorageVolume, QLN_VDArraySystem,
                              QLN_VDStorageVolume> {
public:
    using TypedAssociation::TypedAssociation;
    static constexpr Shape shape{"QLN_VDArraySystemStorageVolume", "GroupComponent",
                                 "PartComponent", WrittenFirst::FirstEnd};
};

} // namespace QLN
