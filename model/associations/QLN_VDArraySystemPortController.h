#pragma once
#include "TypedAssociation.h"

namespace QLN {

class QLN_VDArraySystem;
class QLN_VDPortController;

class QLN_VDArraySystemPortController
    : public TypedAssociation<QLN_VDArraySystemPortController, QLN_VDArraySystem,
                              QLN_VDPortController> {
public:
    using TypedAssociation::TypedAssociation;
    static constexpr Shape shape{"QLN_VDArraySystemPortController", "SameElement", "SystemElement",
                                 WrittenFirst::FirstEnd};
};

} // namespace QLN
