#pragma once
// The first end is a spare extent.
#include "TypedAssociation.h"

namespace QLN {

class QLN_VDStorageExtent;
class QLN_VDStorageRedundancySet;

class QLN_VDSpareExtentStorageRedundancySet
    : public TypedAssociation<QLN_VDSpareExtentStorageRedundancySet, QLN_VDStorageExtent,
                              QLN_VDStorageRedundancySet> {
public:
    using TypedAssociation::TypedAssociation;
    static constexpr Shape shape{"QLN_VDSpareExtentStorageRedundancySet", "Antecedent", "Dependent",
                                 WrittenFirst::SecondEnd};
};

} // namespace QLN
