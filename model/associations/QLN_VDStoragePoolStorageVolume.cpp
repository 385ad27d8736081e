#include "QLN_VDStoragePoolStorageVolume.h"

#include <cstdint>
#include <vector>

namespace {
char const* const className = "QLN_VDStoragePoolStorageVolume";
}

namespace QLN {

QLN_VDStoragePoolStorageVolume::QLN_VDStoragePoolStorageVolume(Logger& logger,
                                                               std::string const& nameSpace,
                                                               CmpiManagedInstance* storagePool,
                                                               CmpiManagedInstance* storageVolume,
                                                               VeldraController* controller)
    : VeldraAssociation({className, "Antecedent", "Dependent", WrittenFirst::FirstEnd}, logger,
                        nameSpace, storagePool, storageVolume),
      _controller(controller) {}

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
