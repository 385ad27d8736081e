#pragma once
// The first end, QLN_PCIDevice, is served by another provider and known by its path.
#include "TypedAssociation.h"

namespace QLN {

class QLN_VDPortController;

class QLN_VDPortControllerPCIDevice
    : public TypedAssociation<QLN_VDPortControllerPCIDevice, CmpiCpp::CmpiObjectPath,
                              QLN_VDPortController> {
public:
    using TypedAssociation::TypedAssociation;
    static constexpr Shape shape{"QLN_VDPortControllerPCIDevice", "SystemElement", "SameElement",
                                 WrittenFirst::FirstEnd};
};

} // namespace QLN
