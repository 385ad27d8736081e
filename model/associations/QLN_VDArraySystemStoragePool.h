#pragma once
#include "TypedAssociation.h"

namespace QLN {

class QLN_VDArraySystem;
class QLN_VDStoragePool;

class QLN_VDArraySystemStoragePool
    : public TypedAssociation<QLN_VDArraySystemStoragePool, QLN_VDArraySystem, QLN_VDStoragePool> {
public:
    using TypedAssociation::TypedAssociation;
    static constexpr Shape shape{"QLN_VDArraySystemStoragePool", "GroupComponent", "PartComponent",
                                 WrittenFirst::FirstEnd};
};

} // namespace QLN
