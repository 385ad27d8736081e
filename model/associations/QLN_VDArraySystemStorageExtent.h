#pragma once
#include "TypedAssociation.h"

namespace QLN {

class QLN_VDArraySystem;
class QLN_VDStorageExtent;

class QLN_VDArraySystemStorageExtent
    : public TypedAssociation<QLN_VDArraySystemStorageExtent, QLN_VDArraySystem,
                              QLN_VDStorageExtent> {
public:
    using TypedAssociation::TypedAssociation;
    static constexpr Shape shape{"QLN_VDArraySystemStorageExtent", "GroupComponent",
                                 "PartComponent", WrittenFirst::FirstEnd};
};

} // namespace QLN
