#pragma once
#include "TypedAssociation.h"

namespace QLN {

class QLN_VDArraySystem;
class QLN_VDStorageSpecificCollection;

class QLN_VDStorageSpecificCollectionArraySystem
    : public TypedAssociation<QLN_VDStorageSpecificCollectionArraySystem,
                              QLN_VDStorageSpecificCollection, QLN_VDArraySystem> {
public:
    using TypedAssociation::TypedAssociation;
    static constexpr Shape shape{"QLN_VDStorageSpecificCollectionArraySystem", "Collection",
                                 "Member", WrittenFirst::SecondEnd};
};

} // namespace QLN
