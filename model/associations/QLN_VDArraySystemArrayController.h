#pragma once
#include "TypedAssociation.h"

namespace QLN {

class QLN_VDArrayController;
class QLN_VDArraySystem;

class QLN_VDArraySystemArrayController
    : public TypedAssociation<QLN_VDArraySystemArrayController, QLN_VDArraySystem,
                              QLN_VDArrayController> {
public:
    using TypedAssociation::TypedAssociation;
    static constexpr Shape shape{"QLN_VDArraySystemArrayController", "GroupComponent",
                                 "PartComponent", WrittenFirst::FirstEnd};
};

} // namespace QLN
