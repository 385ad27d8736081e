#include "QLN_VDSCSIProtocolControllerStorageVolume.h"

#include <string>

namespace QLN {

void QLN_VDSCSIProtocolControllerStorageVolume::_addExtraProperties(
    CmpiCpp::CmpiInstance& instance) const {
    instance.addProperty("DeviceAccess", static_cast<unsigned short>(2)); // Read Write
    instance.addProperty("DeviceNumber", std::to_string(_deviceNumber));
}

} // namespace QLN
