#pragma once
#include "TypedAssociation.h"

namespace QLN {

class QLN_VDDiskDrive;
class QLN_VDTSASSCSIProtocolEndpoint;

class QLN_VDDiskDriveTSASSCSIProtocolEndpoint
    : public TypedAssociation<QLN_VDDiskDriveTSASSCSIProtocolEndpoint, QLN_VDDiskDrive,
                              QLN_VDTSASSCSIProtocolEndpoint> {
public:
    using TypedAssociation::TypedAssociation;
    static constexpr Shape shape{"QLN_VDDiskDriveTSASSCSIProtocolEndpoint", "ManagedElement",
                                 "AvailableSAP", WrittenFirst::SecondEnd};
};

} // namespace QLN
