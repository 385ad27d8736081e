#pragma once
// The graph code passes the exact end classes: QLN_VDStorageVolume and
// QLN_VDStorageSetting.
#include "VeldraAssociation.h"

namespace QLN {

class QLN_VDStorageVolumeStorageSetting : public VeldraAssociation {
public:
    QLN_VDStorageVolumeStorageSetting(Logger& logger, std::string const& nameSpace,
                                      CmpiManagedInstance* storageVolume,
                                      CmpiManagedInstance* storageSetting);

protected:
    void _addExtraProperties(CmpiCpp::CmpiInstance& instance) const override;
};

} // namespace QLN
