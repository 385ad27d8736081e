#pragma once
// The first end, QLN_ComputerSystem, is served by another provider and known by its path.
#include "TypedAssociation.h"

namespace QLN {

class QLN_VDStorageSpecificCollection;

class QLN_VDStorageGroupHostedCollection
    : public TypedAssociation<QLN_VDStorageGroupHostedCollection, CmpiCpp::CmpiObjectPath,
                              QLN_VDStorageSpecificCollection> {
public:
    using TypedAssociation::TypedAssociation;
    static constexpr Shape shape{"QLN_VDStorageGroupHostedCollection", "Antecedent", "Dependent",
                                 WrittenFirst::FirstEnd};
};

} // namespace QLN
