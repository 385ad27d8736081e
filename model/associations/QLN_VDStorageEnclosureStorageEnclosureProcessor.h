#pragma once
#include "TypedAssociation.h"

namespace QLN {

class QLN_VDStorageEnclosure;
class QLN_VDStorageEnclosureProcessor;

class QLN_VDStorageEnclosureStorageEnclosureProcessor
    : public TypedAssociation<QLN_VDStorageEnclosureStorageEnclosureProcessor,
                              QLN_VDStorageEnclosure, QLN_VDStorageEnclosureProcessor> {
public:
    using TypedAssociation::TypedAssociation;
    static constexpr Shape shape{"QLN_VDStorageEnclosureStorageEnclosureProcessor", "Antecedent",
                                 "Dependent", WrittenFirst::SecondEnd};
};

} // namespace QLN
