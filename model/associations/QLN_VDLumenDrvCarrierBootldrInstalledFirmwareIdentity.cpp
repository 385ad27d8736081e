#include "QLN_VDLumenDrvCarrierBootldrInstalledFirmwareIdentity.h"

namespace {
char const* const className = "QLN_VDLumenDrvCarrierBootldrInstalledFirmwareIdentity";
}

namespace QLN {

QLN_VDLumenDrvCarrierBootldrInstalledFirmwareIdentity::
    QLN_VDLumenDrvCarrierBootldrInstalledFirmwareIdentity(
        Logger& logger, std::string const& nameSpace, CmpiManagedInstance* diskDrive,
        CmpiManagedInstance* lumenDriveCarrierBootldrFirmware)
    : VeldraAssociation({className, "System", "InstalledSoftware", WrittenFirst::FirstEnd}, logger,
                        nameSpace, diskDrive, lumenDriveCarrierBootldrFirmware) {}

} // namespace QLN
