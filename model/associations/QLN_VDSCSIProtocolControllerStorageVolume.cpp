#include "QLN_VDSCSIProtocolControllerStorageVolume.h"

#include <string>

namespace {
char const* const className = "QLN_VDSCSIProtocolControllerStorageVolume";
}

namespace QLN {

QLN_VDSCSIProtocolControllerStorageVolume::QLN_VDSCSIProtocolControllerStorageVolume(
    Logger& logger, std::string const& nameSpace, CmpiManagedInstance* scsiProtocolController,
    CmpiManagedInstance* storageVolume, unsigned int deviceNumber)
    : VeldraAssociation({className, "Antecedent", "Dependent", WrittenFirst::SecondEnd}, logger,
                        nameSpace, scsiProtocolController, storageVolume),
      _deviceNumber(deviceNumber) {}

void QLN_VDSCSIProtocolControllerStorageVolume::_addExtraProperties(
    CmpiCpp::CmpiInstance& instance) const {
    instance.addProperty("DeviceAccess", static_cast<unsigned short>(2)); // Read Write
    instance.addProperty("DeviceNumber", std::to_string(_deviceNumber));
}

} // namespace QLN
