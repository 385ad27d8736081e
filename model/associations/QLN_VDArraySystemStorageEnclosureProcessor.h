#pragma once
#include "TypedAssociation.h"

namespace QLN {

class QLN_VDArraySystem;
class QLN_VDStorageEnclosureProcessor;

class QLN_VDArraySystemStorageEnclosureProcessor
    : public TypedAssociation<QLN_VDArraySystemStorageEnclosureProcessor, QLN_VDArraySystem,
                              QLN_VDStorageEnclosureProcessor> {
public:
    using TypedAssociation::TypedAssociation;
    static constexpr Shape shape{"QLN_VDArraySystemStorageEnclosureProcessor", "GroupComponent",
                                 "PartComponent", WrittenFirst::FirstEnd};
};

} // namespace QLN
