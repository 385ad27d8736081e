#pragma once
#include "TypedAssociation.h"

namespace QLN {

class QLN_VDStorageEnclosure;
class QLN_VDStorageEnclosureLocation;

class QLN_VDStorageEnclosureEnclosureLocation
    : public TypedAssociation<QLN_VDStorageEnclosureEnclosureLocation, QLN_VDStorageEnclosure,
                              QLN_VDStorageEnclosureLocation> {
public:
    using TypedAssociation::TypedAssociation;
    static constexpr Shape shape{"QLN_VDStorageEnclosureEnclosureLocation", "Element",
                                 "PhysicalLocation", WrittenFirst::SecondEnd};
};

} // namespace QLN
