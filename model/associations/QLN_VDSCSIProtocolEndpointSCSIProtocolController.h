#pragma once
#include "TypedAssociation.h"

namespace QLN {

class QLN_VDSCSIProtocolController;
class QLN_VDSCSIProtocolEndpoint;

class QLN_VDSCSIProtocolEndpointSCSIProtocolController
    : public TypedAssociation<QLN_VDSCSIProtocolEndpointSCSIProtocolController,
                              QLN_VDSCSIProtocolEndpoint, QLN_VDSCSIProtocolController> {
public:
    using TypedAssociation::TypedAssociation;
    static constexpr Shape shape{"QLN_VDSCSIProtocolEndpointSCSIProtocolController", "AvailableSAP",
                                 "ManagedElement", WrittenFirst::FirstEnd};
};

} // namespace QLN
