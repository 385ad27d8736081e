#include "QLN_VDLumenDrvCarrierAppElementFirmwareIdentity.h"

namespace {
char const* const className = "QLN_VDLumenDrvCarrierAppElementFirmwareIdentity";
}

namespace QLN {

QLN_VDLumenDrvCarrierAppElementFirmwareIdentity::QLN_VDLumenDrvCarrierAppElementFirmwareIdentity(
    Logger& logger, std::string const& nameSpace, CmpiManagedInstance* lumenDriveCarrierAppFirmware,
    CmpiManagedInstance* diskDrive)
    : VeldraAssociation({className, "Dependent", "Antecedent", WrittenFirst::FirstEnd}, logger,
                        nameSpace, lumenDriveCarrierAppFirmware, diskDrive) {}

void QLN_VDLumenDrvCarrierAppElementFirmwareIdentity::_addExtraProperties(
    CmpiCpp::CmpiInstance& instance) const {
    _addFirmwarePairProperties(instance);
}

} // namespace QLN
