#pragma once
#include "TypedAssociation.h"

namespace QLN {

class QLN_VDDAPort;
class QLN_VDSCSIProtocolEndpoint;

class QLN_VDDAPortSCSIProtocolEndpoint
    : public TypedAssociation<QLN_VDDAPortSCSIProtocolEndpoint, QLN_VDDAPort,
                              QLN_VDSCSIProtocolEndpoint> {
public:
    using TypedAssociation::TypedAssociation;
    static constexpr Shape shape{"QLN_VDDAPortSCSIProtocolEndpoint", "Antecedent", "Dependent",
                                 WrittenFirst::SecondEnd};
};

} // namespace QLN
