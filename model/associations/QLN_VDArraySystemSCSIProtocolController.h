#pragma once
#include "TypedAssociation.h"

namespace QLN {

class QLN_VDArraySystem;
class QLN_VDSCSIProtocolController;

class QLN_VDArraySystemSCSIProtocolController
    : public TypedAssociation<QLN_VDArraySystemSCSIProtocolController, QLN_VDArraySystem,
                              QLN_VDSCSIProtocolController> {
public:
    using TypedAssociation::TypedAssociation;
    static constexpr Shape shape{"QLN_VDArraySystemSCSIProtocolController", "GroupComponent",
                                 "PartComponent", WrittenFirst::FirstEnd};
};

} // namespace QLN
