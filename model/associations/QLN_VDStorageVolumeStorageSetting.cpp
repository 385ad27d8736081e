#include "QLN_VDStorageVolumeStorageSetting.h"

namespace {
char const* const className = "QLN_VDStorageVolumeStorageSetting";
}

namespace QLN {

QLN_VDStorageVolumeStorageSetting::QLN_VDStorageVolumeStorageSetting(
    Logger& logger, std::string const& nameSpace, CmpiManagedInstance* storageVolume,
    CmpiManagedInstance* storageSetting)
    : VeldraAssociation({className, "ManagedElement", "SettingData", WrittenFirst::FirstEnd},
                        logger, nameSpace, storageVolume, storageSetting) {}

// A volume has exactly one setting, and it is both the one in force and the default.
void QLN_VDStorageVolumeStorageSetting::_addExtraProperties(CmpiCpp::CmpiInstance& instance) const {
    instance.addProperty("IsCurrent", static_cast<unsigned short>(1));
    instance.addProperty("IsDefault", static_cast<unsigned short>(1));
}

} // namespace QLN
