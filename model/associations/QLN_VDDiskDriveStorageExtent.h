#pragma once
#include "TypedAssociation.h"

namespace QLN {

class QLN_VDDiskDrive;
class QLN_VDStorageExtent;

class QLN_VDDiskDriveStorageExtent
    : public TypedAssociation<QLN_VDDiskDriveStorageExtent, QLN_VDDiskDrive, QLN_VDStorageExtent> {
public:
    using TypedAssociation::TypedAssociation;
    static constexpr Shape shape{"QLN_VDDiskDriveStorageExtent", "Antecedent", "Dependent",
                                 WrittenFirst::FirstEnd};
};

} // namespace QLN
