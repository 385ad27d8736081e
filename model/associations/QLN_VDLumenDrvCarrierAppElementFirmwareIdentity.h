#pragma once
#include "TypedAssociation.h"

namespace QLN {

class QLN_VDDiskDrive;
class QLN_VDLumenDriveCarrierAppFirmware;

class QLN_VDLumenDrvCarrierAppElementFirmwareIdentity
    : public TypedAssociation<QLN_VDLumenDrvCarrierAppElementFirmwareIdentity,
                              QLN_VDLumenDriveCarrierAppFirmware, QLN_VDDiskDrive> {
public:
    using TypedAssociation::TypedAssociation;
    static constexpr Shape shape{"QLN_VDLumenDrvCarrierAppElementFirmwareIdentity", "Dependent",
                                 "Antecedent", WrittenFirst::FirstEnd};

protected:
    void _addExtraProperties(CmpiCpp::CmpiInstance& instance) const override {
        _addFirmwarePairProperties(instance);
    }
};

} // namespace QLN
