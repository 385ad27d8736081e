#pragma once
#include "TypedAssociation.h"

namespace QLN {

class QLN_VDPhysicalPackage;
class QLN_VDStorageEnclosure;

class QLN_VDPhysicalPackageStorageEnclosure
    : public TypedAssociation<QLN_VDPhysicalPackageStorageEnclosure, QLN_VDPhysicalPackage,
                              QLN_VDStorageEnclosure> {
public:
    using TypedAssociation::TypedAssociation;
    static constexpr Shape shape{"QLN_VDPhysicalPackageStorageEnclosure", "GroupComponent",
                                 "PartComponent", WrittenFirst::SecondEnd};
};

} // namespace QLN
