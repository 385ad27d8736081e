#include "QLN_VDLumenDrvCarrierBootldrElementFirmwareIdentity.h"

namespace {
char const* const className = "QLN_VDLumenDrvCarrierBootldrElementFirmwareIdentity";
}

namespace QLN {

QLN_VDLumenDrvCarrierBootldrElementFirmwareIdentity::
    QLN_VDLumenDrvCarrierBootldrElementFirmwareIdentity(
        Logger& logger, std::string const& nameSpace,
        CmpiManagedInstance* lumenDriveCarrierBootldrFirmware, CmpiManagedInstance* diskDrive)
    : VeldraAssociation({className, "Dependent", "Antecedent", WrittenFirst::FirstEnd}, logger,
                        nameSpace, lumenDriveCarrierBootldrFirmware, diskDrive) {}

void QLN_VDLumenDrvCarrierBootldrElementFirmwareIdentity::_addExtraProperties(
    CmpiCpp::CmpiInstance& instance) const {
    _addFirmwarePairProperties(instance);
}

} // namespace QLN
