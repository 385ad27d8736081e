#include "QLN_VDDiskDriveDiskDriveFirmware.h"

namespace {
char const* const className = "QLN_VDDiskDriveDiskDriveFirmware";
}

namespace QLN {

QLN_VDDiskDriveDiskDriveFirmware::QLN_VDDiskDriveDiskDriveFirmware(
    Logger& logger, std::string const& nameSpace, CmpiManagedInstance* diskDrive,
    CmpiManagedInstance* diskDriveFirmware)
    : VeldraAssociation({className, "Dependent", "Antecedent", WrittenFirst::FirstEnd}, logger,
                        nameSpace, diskDrive, diskDriveFirmware) {}

void QLN_VDDiskDriveDiskDriveFirmware::_addExtraProperties(CmpiCpp::CmpiInstance& instance) const {
    _addFirmwarePairProperties(instance);
}

} // namespace QLN
