#include "QLN_VDStorageVolumeStorageSetting.h"

namespace QLN {

// A volume has exactly one setting, and it is both the one in force and the default.
void QLN_VDStorageVolumeStorageSetting::_addExtraProperties(CmpiCpp::CmpiInstance& instance) const {
    instance.addProperty("IsCurrent", static_cast<unsigned short>(1));
    instance.addProperty("IsDefault", static_cast<unsigned short>(1));
}

} // namespace QLN
