#pragma once
#include "TypedAssociation.h"

namespace QLN {

class QLN_VDStorageSetting;
class QLN_VDStorageVolume;

class QLN_VDStorageVolumeStorageSetting
    : public TypedAssociation<QLN_VDStorageVolumeStorageSetting, QLN_VDStorageVolume,
                              QLN_VDStorageSetting> {
public:
    using TypedAssociation::TypedAssociation;
    static constexpr Shape shape{"QLN_VDStorageVolumeStorageSetting", "ManagedElement",
                                 "SettingData", WrittenFirst::FirstEnd};

protected:
    void _addExtraProperties(CmpiCpp::CmpiInstance& instance) const override;
};

} // namespace QLN
