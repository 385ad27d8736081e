#pragma once
#include "TypedAssociation.h"

namespace QLN {

class QLN_VDPhysicalPackage;
class QLN_VDProduct;

class QLN_VDProductPhysicalPackage
    : public TypedAssociation<QLN_VDProductPhysicalPackage, QLN_VDProduct, QLN_VDPhysicalPackage> {
public:
    using TypedAssociation::TypedAssociation;
    static constexpr Shape shape{"QLN_VDProductPhysicalPackage", "GroupComponent", "PartComponent",
                                 WrittenFirst::FirstEnd};
};

} // namespace QLN
