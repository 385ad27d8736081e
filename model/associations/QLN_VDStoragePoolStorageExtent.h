#pragma once
#include "TypedAssociation.h"

namespace QLN {

class QLN_VDStorageExtent;
class QLN_VDStoragePool;

class QLN_VDStoragePoolStorageExtent
    : public TypedAssociation<QLN_VDStoragePoolStorageExtent, QLN_VDStoragePool,
                              QLN_VDStorageExtent> {
public:
    using TypedAssociation::TypedAssociation;
    static constexpr Shape shape{"QLN_VDStoragePoolStorageExtent", "GroupComponent",
                                 "PartComponent", WrittenFirst::FirstEnd};
};

} // namespace QLN
