#pragma once
#include "TypedAssociation.h"

namespace QLN {

class QLN_VDArrayController;
class QLN_VDArrayControllerPhysicalPackage;

class QLN_VDArrayControllerPhysicalPackageArrayController
    : public TypedAssociation<QLN_VDArrayControllerPhysicalPackageArrayController,
                              QLN_VDArrayControllerPhysicalPackage, QLN_VDArrayController> {
public:
    using TypedAssociation::TypedAssociation;
    static constexpr Shape shape{"QLN_VDArrayControllerPhysicalPackageArrayController",
                                 "Antecedent", "Dependent", WrittenFirst::SecondEnd};
};

} // namespace QLN
