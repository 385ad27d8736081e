#pragma once
#include "TypedAssociation.h"

namespace QLN {

class QLN_VDArraySystem;
class QLN_VDFirmware;

class QLN_VDArraySystemFirmware
    : public TypedAssociation<QLN_VDArraySystemFirmware, QLN_VDArraySystem, QLN_VDFirmware> {
public:
    using TypedAssociation::TypedAssociation;
    static constexpr Shape shape{"QLN_VDArraySystemFirmware", "System", "InstalledSoftware",
                                 WrittenFirst::FirstEnd};
};

} // namespace QLN
