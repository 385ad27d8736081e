#pragma once
#include "TypedAssociation.h"

namespace QLN {

class QLN_VDArraySystem;
class QLN_VDPhysicalPackage;

class QLN_VDPhysicalPackageArraySystem
    : public TypedAssociation<QLN_VDPhysicalPackageArraySystem, QLN_VDPhysicalPackage,
                              QLN_VDArraySystem> {
public:
    using TypedAssociation::TypedAssociation;
    static constexpr Shape shape{"QLN_VDPhysicalPackageArraySystem", "Antecedent", "Dependent",
                                 WrittenFirst::SecondEnd};
};

} // namespace QLN
