#pragma once
#include "TypedAssociation.h"

namespace QLN {

class QLN_VDDiskDrive;
class QLN_VDDiskPhysicalPackage;

class QLN_VDDiskPhysicalPackageDiskDrive
    : public TypedAssociation<QLN_VDDiskPhysicalPackageDiskDrive, QLN_VDDiskPhysicalPackage,
                              QLN_VDDiskDrive> {
public:
    using TypedAssociation::TypedAssociation;
    static constexpr Shape shape{"QLN_VDDiskPhysicalPackageDiskDrive", "Antecedent", "Dependent",
                                 WrittenFirst::SecondEnd};
};

} // namespace QLN
