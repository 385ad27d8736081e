#pragma once
#include "TypedAssociation.h"

namespace QLN {

class QLN_VDDiskDrive;
class QLN_VDMediaAccessStatData;

class QLN_VDDiskDriveMediaAccessStatData
    : public TypedAssociation<QLN_VDDiskDriveMediaAccessStatData, QLN_VDDiskDrive,
                              QLN_VDMediaAccessStatData> {
public:
    using TypedAssociation::TypedAssociation;
    static constexpr Shape shape{"QLN_VDDiskDriveMediaAccessStatData", "ManagedElement", "Stats",
                                 WrittenFirst::FirstEnd};
};

} // namespace QLN
