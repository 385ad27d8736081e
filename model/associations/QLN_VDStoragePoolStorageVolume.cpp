#include "QLN_VDStoragePoolStorageVolume.h"

#include <cstdint>
#include <vector>

namespace QLN {

// Summed over the controller's stored volume snapshot at the moment of the request.
void QLN_VDStoragePoolStorageVolume::_addExtraProperties(CmpiCpp::CmpiInstance& instance) const {
    std::vector<VeldraLogicalDisk> volumes;
    _controller->getLastLogicalDisks(volumes);
    std::uint64_t consumed = 0;
    for (VeldraLogicalDisk const& volume : volumes) {
        consumed += static_cast<std::uint64_t>(volume.getConsumedPhysicalBytes());
    }
    instance.addProperty("SpaceConsumed", static_cast<unsigned long long>(consumed));
}

} // namespace QLN
