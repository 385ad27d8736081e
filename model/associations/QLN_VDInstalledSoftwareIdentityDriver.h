#pragma once
#include "TypedAssociation.h"

namespace QLN {

class QLN_VDArraySystem;
class QLN_VDSoftwareIdentityDriver;

class QLN_VDInstalledSoftwareIdentityDriver
    : public TypedAssociation<QLN_VDInstalledSoftwareIdentityDriver, QLN_VDArraySystem,
                              QLN_VDSoftwareIdentityDriver> {
public:
    using TypedAssociation::TypedAssociation;
    static constexpr Shape shape{"QLN_VDInstalledSoftwareIdentityDriver", "System",
                                 "InstalledSoftware", WrittenFirst::FirstEnd};
};

} // namespace QLN
