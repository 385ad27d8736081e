#pragma once
#include "TypedAssociation.h"

namespace QLN {

class QLN_VDPhysicalPackage;
class QLN_VDPortController;

class QLN_VDPhysicalPackagePortController
    : public TypedAssociation<QLN_VDPhysicalPackagePortController, QLN_VDPhysicalPackage,
                              QLN_VDPortController> {
public:
    using TypedAssociation::TypedAssociation;
    static constexpr Shape shape{"QLN_VDPhysicalPackagePortController", "Antecedent", "Dependent",
                                 WrittenFirst::SecondEnd};
};

} // namespace QLN
