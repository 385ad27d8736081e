#pragma once
#include "TypedAssociation.h"

namespace QLN {

class QLN_VDArraySystem;
class QLN_VDTSASPort;

class QLN_VDArraySystemTSASPort
    : public TypedAssociation<QLN_VDArraySystemTSASPort, QLN_VDArraySystem, QLN_VDTSASPort> {
public:
    using TypedAssociation::TypedAssociation;
    static constexpr Shape shape{"QLN_VDArraySystemTSASPort", "GroupComponent", "PartComponent",
                                 WrittenFirst::FirstEnd};
};

} // namespace QLN
