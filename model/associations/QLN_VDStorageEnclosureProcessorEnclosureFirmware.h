#pragma once
#include "TypedAssociation.h"

namespace QLN {

class QLN_VDEnclosureFirmware;
class QLN_VDStorageEnclosureProcessor;

class QLN_VDStorageEnclosureProcessorEnclosureFirmware
    : public TypedAssociation<QLN_VDStorageEnclosureProcessorEnclosureFirmware,
                              QLN_VDStorageEnclosureProcessor, QLN_VDEnclosureFirmware> {
public:
    using TypedAssociation::TypedAssociation;
    static constexpr Shape shape{"QLN_VDStorageEnclosureProcessorEnclosureFirmware", "Dependent",
                                 "Antecedent", WrittenFirst::FirstEnd};

protected:
    void _addExtraProperties(CmpiCpp::CmpiInstance& instance) const override {
        _addFirmwarePairProperties(instance);
    }
};

} // namespace QLN
