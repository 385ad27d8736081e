#pragma once
#include "TypedAssociation.h"

namespace QLN {

class QLN_VDArraySystem;
class QLN_VDFirmware;

class QLN_VDFirmwareArraySystem
    : public TypedAssociation<QLN_VDFirmwareArraySystem, QLN_VDFirmware, QLN_VDArraySystem> {
public:
    using TypedAssociation::TypedAssociation;
    static constexpr Shape shape{"QLN_VDFirmwareArraySystem", "Antecedent", "Dependent",
                                 WrittenFirst::SecondEnd};

protected:
    void _addExtraProperties(CmpiCpp::CmpiInstance& instance) const override {
        _addFirmwarePairProperties(instance);
    }
};

} // namespace QLN
