#include "QLN_VDLumenDrvCarrierAppInstalledFirmwareIdentity.h"

namespace {
char const* const className = "QLN_VDLumenDrvCarrierAppInstalledFirmwareIdentity";
}

namespace QLN {

QLN_VDLumenDrvCarrierAppInstalledFirmwareIdentity::
    QLN_VDLumenDrvCarrierAppInstalledFirmwareIdentity(
        Logger& logger, std::string const& nameSpace, CmpiManagedInstance* diskDrive,
        CmpiManagedInstance* lumenDriveCarrierAppFirmware)
    : VeldraAssociation({className, "System", "InstalledSoftware", WrittenFirst::FirstEnd}, logger,
                        nameSpace, diskDrive, lumenDriveCarrierAppFirmware) {}

} // namespace QLN
