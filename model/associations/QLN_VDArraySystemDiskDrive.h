#pragma once
#include "TypedAssociation.h"

namespace QLN {

class QLN_VDArraySystem;
class QLN_VDDiskDrive;

class QLN_VDArraySystemDiskDrive
    : public TypedAssociation<QLN_VDArraySystemDiskDrive, QLN_VDArraySystem, QLN_VDDiskDrive> {
public:
    using TypedAssociation::TypedAssociation;
    static constexpr Shape shape{"QLN_VDArraySystemDiskDrive", "GroupComponent", "PartComponent",
                                 WrittenFirst::FirstEnd};
};

} // namespace QLN
