#pragma once
// The first end, QLN_ComputerSystem, is served by another provider and known by its path.
#include "TypedAssociation.h"

namespace QLN {

class QLN_VDPortController;

class QLN_VDComputerSystemPortController
    : public TypedAssociation<QLN_VDComputerSystemPortController, CmpiCpp::CmpiObjectPath,
                              QLN_VDPortController> {
public:
    using TypedAssociation::TypedAssociation;
    static constexpr Shape shape{"QLN_VDComputerSystemPortController", "GroupComponent",
                                 "PartComponent", WrittenFirst::FirstEnd};
};

} // namespace QLN
