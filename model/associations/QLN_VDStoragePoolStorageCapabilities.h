#pragma once
#include "TypedAssociation.h"

namespace QLN {

class QLN_VDStorageCapabilities;
class QLN_VDStoragePool;

class QLN_VDStoragePoolStorageCapabilities
    : public TypedAssociation<QLN_VDStoragePoolStorageCapabilities, QLN_VDStoragePool,
                              QLN_VDStorageCapabilities> {
public:
    using TypedAssociation::TypedAssociation;
    static constexpr Shape shape{"QLN_VDStoragePoolStorageCapabilities", "ManagedElement",
                                 "Capabilities", WrittenFirst::FirstEnd};
};

} // namespace QLN
