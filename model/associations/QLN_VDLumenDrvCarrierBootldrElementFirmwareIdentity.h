#pragma once
#include "TypedAssociation.h"

namespace QLN {

class QLN_VDDiskDrive;
class QLN_VDLumenDriveCarrierBootldrFirmware;

class QLN_VDLumenDrvCarrierBootldrElementFirmwareIdentity
    : public TypedAssociation<QLN_VDLumenDrvCarrierBootldrElementFirmwareIdentity,
                              QLN_VDLumenDriveCarrierBootldrFirmware, QLN_VDDiskDrive> {
public:
    using TypedAssociation::TypedAssociation;
    static constexpr Shape shape{"QLN_VDLumenDrvCarrierBootldrElementFirmwareIdentity", "Dependent",
                                 "Antecedent", WrittenFirst::FirstEnd};

protected:
    void _addExtraProperties(CmpiCpp::CmpiInstance& instance) const override {
        _addFirmwarePairProperties(instance);
    }
};

} // namespace QLN
