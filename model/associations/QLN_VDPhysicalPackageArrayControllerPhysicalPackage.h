#pragma once
#include "TypedAssociation.h"

namespace QLN {

class QLN_VDArrayControllerPhysicalPackage;
class QLN_VDPhysicalPackage;

class QLN_VDPhysicalPackageArrayControllerPhysicalPackage
    : public TypedAssociation<QLN_VDPhysicalPackageArrayControllerPhysicalPackage,
                              QLN_VDPhysicalPackage, QLN_VDArrayControllerPhysicalPackage> {
public:
    using TypedAssociation::TypedAssociation;
    static constexpr Shape shape{"QLN_VDPhysicalPackageArrayControllerPhysicalPackage",
                                 "GroupComponent", "PartComponent", WrittenFirst::SecondEnd};
};

} // namespace QLN
