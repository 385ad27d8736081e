#pragma once
#include "TypedAssociation.h"

namespace QLN {

class QLN_VDArraySystem;
class QLN_VDDAPort;

class QLN_VDArraySystemDAPort
    : public TypedAssociation<QLN_VDArraySystemDAPort, QLN_VDArraySystem, QLN_VDDAPort> {
public:
    using TypedAssociation::TypedAssociation;
    static constexpr Shape shape{"QLN_VDArraySystemDAPort", "GroupComponent", "PartComponent",
                                 WrittenFirst::FirstEnd};
};

} // namespace QLN
