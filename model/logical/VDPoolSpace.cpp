#include "VDPoolSpace.h"

namespace QLN {

unsigned long long VDPoolSpace::totalManagedSpace(VeldraController* controller) {
    unsigned long long total = 0;
    for (VeldraPhysicalDisk const& disk : controller->getLastAllPhysicalDisks())
        total += static_cast<unsigned long long>(disk.getTotalBlocks()) * disk.getBlockSize();
    return total;
}

unsigned long long VDPoolSpace::remainingManagedSpace(VeldraController* controller) {
    unsigned long long remaining = 0;
    for (VeldraPhysicalDisk const& disk : controller->getAllPhysicalDisks())
        remaining +=
            static_cast<unsigned long long>(disk.getRemainingBlocks()) * disk.getBlockSize();
    return remaining;
}

} // namespace QLN
