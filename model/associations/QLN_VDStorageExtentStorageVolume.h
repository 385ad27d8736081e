#pragma once
#include "TypedAssociation.h"

namespace QLN {

class QLN_VDStorageExtent;
class QLN_VDStorageVolume;

class QLN_VDStorageExtentStorageVolume
    : public TypedAssociation<QLN_VDStorageExtentStorageVolume, QLN_VDStorageExtent,
                              QLN_VDStorageVolume> {
public:
    using TypedAssociation::TypedAssociation;
    static constexpr Shape shape{"QLN_VDStorageExtentStorageVolume", "Antecedent", "Dependent",
                                 WrittenFirst::SecondEnd};
};

} // namespace QLN
