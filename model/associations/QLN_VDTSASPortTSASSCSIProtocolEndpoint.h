#pragma once
#include "TypedAssociation.h"

namespace QLN {

class QLN_VDTSASPort;
class QLN_VDTSASSCSIProtocolEndpoint;

class QLN_VDTSASPortTSASSCSIProtocolEndpoint
    : public TypedAssociation<QLN_VDTSASPortTSASSCSIProtocolEndpoint, QLN_VDTSASPort,
                              QLN_VDTSASSCSIProtocolEndpoint> {
public:
    using TypedAssociation::TypedAssociation;
    static constexpr Shape shape{"QLN_VDTSASPortTSASSCSIProtocolEndpoint", "Antecedent",
                                 "Dependent", WrittenFirst::SecondEnd};
};

} // namespace QLN
