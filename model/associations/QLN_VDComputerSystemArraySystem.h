#pragma once
// The first end, QLN_ComputerSystem, is served by another provider and known by its path.
#include "TypedAssociation.h"

namespace QLN {

class QLN_VDArraySystem;

class QLN_VDComputerSystemArraySystem
    : public TypedAssociation<QLN_VDComputerSystemArraySystem, CmpiCpp::CmpiObjectPath,
                              QLN_VDArraySystem> {
public:
    using TypedAssociation::TypedAssociation;
    static constexpr Shape shape{"QLN_VDComputerSystemArraySystem", "GroupComponent",
                                 "PartComponent", WrittenFirst::FirstEnd};
};

} // namespace QLN
