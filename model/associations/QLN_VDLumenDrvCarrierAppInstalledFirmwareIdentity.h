#pragma once
#include "TypedAssociation.h"

namespace QLN {

class QLN_VDDiskDrive;
class QLN_VDLumenDriveCarrierAppFirmware;

class QLN_VDLumenDrvCarrierAppInstalledFirmwareIdentity
    : public TypedAssociation<QLN_VDLumenDrvCarrierAppInstalledFirmwareIdentity, QLN_VDDiskDrive,
                              QLN_VDLumenDriveCarrierAppFirmware> {
public:
    using TypedAssociation::TypedAssociation;
    static constexpr Shape shape{"QLN_VDLumenDrvCarrierAppInstalledFirmwareIdentity", "System",
                                 "InstalledSoftware", WrittenFirst::FirstEnd};
};

} // namespace QLN
