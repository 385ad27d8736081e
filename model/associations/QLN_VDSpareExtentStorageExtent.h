#pragma once
// The first end is the spare, the second the extent it stands by for.
#include "TypedAssociation.h"

namespace QLN {

class QLN_VDStorageExtent;

class QLN_VDSpareExtentStorageExtent
    : public TypedAssociation<QLN_VDSpareExtentStorageExtent, QLN_VDStorageExtent,
                              QLN_VDStorageExtent> {
public:
    using TypedAssociation::TypedAssociation;
    static constexpr Shape shape{"QLN_VDSpareExtentStorageExtent", "Antecedent", "Dependent",
                                 WrittenFirst::FirstEnd};
};

} // namespace QLN
