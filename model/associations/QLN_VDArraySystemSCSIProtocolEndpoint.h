#pragma once
#include "TypedAssociation.h"

namespace QLN {

class QLN_VDArraySystem;
class QLN_VDSCSIProtocolEndpoint;

class QLN_VDArraySystemSCSIProtocolEndpoint
    : public TypedAssociation<QLN_VDArraySystemSCSIProtocolEndpoint, QLN_VDArraySystem,
                              QLN_VDSCSIProtocolEndpoint> {
public:
    using TypedAssociation::TypedAssociation;
    static constexpr Shape shape{"QLN_VDArraySystemSCSIProtocolEndpoint", "Antecedent", "Dependent",
                                 WrittenFirst::FirstEnd};
};

} // namespace QLN
