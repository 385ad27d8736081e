#pragma once
#include "TypedAssociation.h"

namespace QLN {

class QLN_VDArraySystem;
class QLN_VDTSASSCSIProtocolEndpoint;

class QLN_VDArraySystemTSASSCSIProtocolEndpoint
    : public TypedAssociation<QLN_VDArraySystemTSASSCSIProtocolEndpoint, QLN_VDArraySystem,
                              QLN_VDTSASSCSIProtocolEndpoint> {
public:
    using TypedAssociation::TypedAssociation;
    static constexpr Shape shape{"QLN_VDArraySystemTSASSCSIProtocolEndpoint", "Antecedent",
                                 "Dependent", WrittenFirst::FirstEnd};
};

} // namespace QLN
