#pragma once
#include "TypedAssociation.h"

namespace QLN {

class QLN_VDArraySystem;
class QLN_VDISASPort;

class QLN_VDArraySystemISASPort
    : public TypedAssociation<QLN_VDArraySystemISASPort, QLN_VDArraySystem, QLN_VDISASPort> {
public:
    using TypedAssociation::TypedAssociation;
    static constexpr Shape shape{"QLN_VDArraySystemISASPort", "GroupComponent", "PartComponent",
                                 WrittenFirst::FirstEnd};
};

} // namespace QLN
