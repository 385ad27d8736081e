#pragma once
#include "TypedAssociation.h"

namespace QLN {

class QLN_VDDriveCage;
class QLN_VDStorageEnclosure;

class QLN_VDStorageEnclosureDriveCage
    : public TypedAssociation<QLN_VDStorageEnclosureDriveCage, QLN_VDStorageEnclosure,
                              QLN_VDDriveCage> {
public:
    using TypedAssociation::TypedAssociation;
    static constexpr Shape shape{"QLN_VDStorageEnclosureDriveCage", "GroupComponent",
                                 "PartComponent", WrittenFirst::SecondEnd};
};

} // namespace QLN
