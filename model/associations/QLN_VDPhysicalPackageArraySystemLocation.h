#pragma once
#include "TypedAssociation.h"

namespace QLN {

class QLN_VDArraySystemLocation;
class QLN_VDPhysicalPackage;

class QLN_VDPhysicalPackageArraySystemLocation
    : public TypedAssociation<QLN_VDPhysicalPackageArraySystemLocation, QLN_VDPhysicalPackage,
                              QLN_VDArraySystemLocation> {
public:
    using TypedAssociation::TypedAssociation;
    static constexpr Shape shape{"QLN_VDPhysicalPackageArraySystemLocation", "Element",
                                 "PhysicalLocation", WrittenFirst::SecondEnd};
};

} // namespace QLN
