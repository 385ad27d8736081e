#pragma once
#include "TypedAssociation.h"

namespace QLN {

class QLN_VDDiskPhysicalPackage;
class QLN_VDDriveCage;

class QLN_VDDriveCageDiskPhysicalPackage
    : public TypedAssociation<QLN_VDDriveCageDiskPhysicalPackage, QLN_VDDriveCage,
                              QLN_VDDiskPhysicalPackage> {
public:
    using TypedAssociation::TypedAssociation;
    static constexpr Shape shape{"QLN_VDDriveCageDiskPhysicalPackage", "GroupComponent",
                                 "PartComponent", WrittenFirst::SecondEnd};
};

} // namespace QLN
