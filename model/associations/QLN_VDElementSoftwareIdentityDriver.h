#pragma once
#include "TypedAssociation.h"

namespace QLN {

class QLN_VDArraySystem;
class QLN_VDSoftwareIdentityDriver;

class QLN_VDElementSoftwareIdentityDriver
    : public TypedAssociation<QLN_VDElementSoftwareIdentityDriver, QLN_VDSoftwareIdentityDriver,
                              QLN_VDArraySystem> {
public:
    using TypedAssociation::TypedAssociation;
    static constexpr Shape shape{"QLN_VDElementSoftwareIdentityDriver", "Antecedent", "Dependent",
                                 WrittenFirst::SecondEnd};

protected:
    void _addExtraProperties(CmpiCpp::CmpiInstance& instance) const override {
        _addFirmwarePairProperties(instance);
    }
};

} // namespace QLN
