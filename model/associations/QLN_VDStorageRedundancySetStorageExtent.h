#pragma once
#include "TypedAssociation.h"

namespace QLN {

class QLN_VDStorageExtent;
class QLN_VDStorageRedundancySet;

class QLN_VDStorageRedundancySetStorageExtent
    : public TypedAssociation<QLN_VDStorageRedundancySetStorageExtent, QLN_VDStorageRedundancySet,
                              QLN_VDStorageExtent> {
public:
    using TypedAssociation::TypedAssociation;
    static constexpr Shape shape{"QLN_VDStorageRedundancySetStorageExtent", "Collection", "Member",
                                 WrittenFirst::FirstEnd};
};

} // namespace QLN
