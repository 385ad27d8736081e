#pragma once
#include "TypedAssociation.h"

namespace QLN {

class QLN_VDISASPort;
class QLN_VDISASSCSIProtocolEndpoint;

class QLN_VDISASPortISASSCSIProtocolEndpoint
    : public TypedAssociation<QLN_VDISASPortISASSCSIProtocolEndpoint, QLN_VDISASPort,
                              QLN_VDISASSCSIProtocolEndpoint> {
public:
    using TypedAssociation::TypedAssociation;
    static constexpr Shape shape{"QLN_VDISASPortISASSCSIProtocolEndpoint", "Antecedent",
                                 "Dependent", WrittenFirst::SecondEnd};
};

} // namespace QLN
