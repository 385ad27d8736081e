#pragma once
#include "TypedAssociation.h"

namespace QLN {

class QLN_VDDiskDrive;
class QLN_VDLumenDriveCarrierBootldrFirmware;

class QLN_VDLumenDrvCarrierBootldrInstalledFirmwareIdentity
    : public TypedAssociation<QLN_VDLumenDrvCarrierBootldrInstalledFirmwareIdentity,
                              QLN_VDDiskDrive, QLN_VDLumenDriveCarrierBootldrFirmware> {
public:
    using TypedAssociation::TypedAssociation;
    static constexpr Shape shape{"QLN_VDLumenDrvCarrierBootldrInstalledFirmwareIdentity", "System",
                                 "InstalledSoftware", WrittenFirst::FirstEnd};
};

} // namespace QLN
