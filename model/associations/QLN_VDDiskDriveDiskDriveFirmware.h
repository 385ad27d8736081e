#pragma once
#include "TypedAssociation.h"

namespace QLN {

class QLN_VDDiskDrive;
class QLN_VDDiskDriveFirmware;

class QLN_VDDiskDriveDiskDriveFirmware
    : public TypedAssociation<QLN_VDDiskDriveDiskDriveFirmware, QLN_VDDiskDrive,
                              QLN_VDDiskDriveFirmware> {
public:
    using TypedAssociation::TypedAssociation;
    static constexpr Shape shape{"QLN_VDDiskDriveDiskDriveFirmware", "Dependent", "Antecedent",
                                 WrittenFirst::FirstEnd};

protected:
    void _addExtraProperties(CmpiCpp::CmpiInstance& instance) const override {
        _addFirmwarePairProperties(instance);
    }
};

} // namespace QLN
