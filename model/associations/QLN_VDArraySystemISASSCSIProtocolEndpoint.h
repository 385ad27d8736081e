#pragma once
#include "TypedAssociation.h"

namespace QLN {

class QLN_VDArraySystem;
class QLN_VDISASSCSIProtocolEndpoint;

class QLN_VDArraySystemISASSCSIProtocolEndpoint
    : public TypedAssociation<QLN_VDArraySystemISASSCSIProtocolEndpoint, QLN_VDArraySystem,
                              QLN_VDISASSCSIProtocolEndpoint> {
public:
    using TypedAssociation::TypedAssociation;
    static constexpr Shape shape{"QLN_VDArraySystemISASSCSIProtocolEndpoint", "Antecedent",
                                 "Dependent", WrittenFirst::FirstEnd};
};

} // namespace QLN
