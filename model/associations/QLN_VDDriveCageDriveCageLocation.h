#pragma once
#include "TypedAssociation.h"

namespace QLN {

class QLN_VDDriveCage;
class QLN_VDDriveCageLocation;

class QLN_VDDriveCageDriveCageLocation
    : public TypedAssociation<QLN_VDDriveCageDriveCageLocation, QLN_VDDriveCage,
                              QLN_VDDriveCageLocation> {
public:
    using TypedAssociation::TypedAssociation;
    static constexpr Shape shape{"QLN_VDDriveCageDriveCageLocation", "Element", "PhysicalLocation",
                                 WrittenFirst::SecondEnd};
};

} // namespace QLN
