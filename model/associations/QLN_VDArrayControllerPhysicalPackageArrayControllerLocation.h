#pragma once
#include "TypedAssociation.h"

namespace QLN {

class QLN_VDArrayControllerLocation;
class QLN_VDArrayControllerPhysicalPackage;

class QLN_VDArrayControllerPhysicalPackageArrayControllerLocation
    : public TypedAssociation<QLN_VDArrayControllerPhysicalPackageArrayControllerLocation,
                              QLN_VDArrayControllerPhysicalPackage, QLN_VDArrayControllerLocation> {
public:
    using TypedAssociation::TypedAssociation;
    static constexpr Shape shape{"QLN_VDArrayControllerPhysicalPackageArrayControllerLocation",
                                 "Element", "PhysicalLocation", WrittenFirst::SecondEnd};
};

} // namespace QLN
