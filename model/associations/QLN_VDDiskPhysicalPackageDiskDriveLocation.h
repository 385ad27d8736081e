#pragma once
#include "TypedAssociation.h"

namespace QLN {

class QLN_VDDiskDriveLocation;
class QLN_VDDiskPhysicalPackage;

class QLN_VDDiskPhysicalPackageDiskDriveLocation
    : public TypedAssociation<QLN_VDDiskPhysicalPackageDiskDriveLocation, QLN_VDDiskPhysicalPackage,
                              QLN_VDDiskDriveLocation> {
public:
    using TypedAssociation::TypedAssociation;
    static constexpr Shape shape{"QLN_VDDiskPhysicalPackageDiskDriveLocation", "Element",
                                 "PhysicalLocation", WrittenFirst::SecondEnd};
};

} // namespace QLN
