#include "QLN_VDPrimordialPoolStoragePool.h"

#include <cstdint>
#include <vector>

namespace QLN {

// Summed over every disk of the controller's stored snapshot at the moment of
// the request, so the figure follows the worker's passes without a copy here.
void QLN_VDPrimordialPoolStoragePool::_addExtraProperties(CmpiCpp::CmpiInstance& instance) const {
    std::uint64_t total = 0;
    std::uint64_t remaining = 0;
    for (VeldraPhysicalDisk const& disk : _controller->getLastAllPhysicalDisks()) {
        std::uint64_t const blockSize = static_cast<std::uint32_t>(disk.getBlockSize());
        total += static_cast<std::uint64_t>(disk.getTotalBlocks()) * blockSize;
        remaining += static_cast<std::uint64_t>(disk.getRemainingBlocks()) * blockSize;
    }
    instance.addProperty("SpaceConsumed", static_cast<unsigned long long>(total - remaining));
}

} // namespace QLN
