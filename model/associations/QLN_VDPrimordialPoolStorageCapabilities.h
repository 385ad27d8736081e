#pragma once
#include "TypedAssociation.h"

namespace QLN {

class QLN_VDPrimordialPool;
class QLN_VDStorageCapabilities;

class QLN_VDPrimordialPoolStorageCapabilities
    : public TypedAssociation<QLN_VDPrimordialPoolStorageCapabilities, QLN_VDPrimordialPool,
                              QLN_VDStorageCapabilities> {
public:
    using TypedAssociation::TypedAssociation;
    static constexpr Shape shape{"QLN_VDPrimordialPoolStorageCapabilities", "ManagedElement",
                                 "Capabilities", WrittenFirst::FirstEnd};
};

} // namespace QLN
