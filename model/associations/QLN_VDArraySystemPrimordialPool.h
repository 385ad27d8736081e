#pragma once
#include "TypedAssociation.h"

namespace QLN {

class QLN_VDArraySystem;
class QLN_VDPrimordialPool;

class QLN_VDArraySystemPrimordialPool
    : public TypedAssociation<QLN_VDArraySystemPrimordialPool, QLN_VDArraySystem,
                              QLN_VDPrimordialPool> {
public:
    using TypedAssociation::TypedAssociation;
    static constexpr Shape shape{"QLN_VDArraySystemPrimordialPool", "GroupComponent",
                                 "PartComponent", WrittenFirst::FirstEnd};
};

} // namespace QLN
