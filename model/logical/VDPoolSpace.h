#pragma once
// Space accounting shared by the two pool classes. Both sums run over every
// disk of the controller, whatever its role, so that the concrete pool and
// the primordial pool report the same capacity.
#include "VeldraController.h"

namespace QLN {

class VDPoolSpace {
public:
    // Capacity of the disks the provider last accepted (the stored snapshot).
    static unsigned long long totalManagedSpace(VeldraController* controller);
    // Unused space of the disks as the controller reports them now: it is asked
    // afresh, so that space taken since the last pass shows at once.
    static unsigned long long remainingManagedSpace(VeldraController* controller);
};

} // namespace QLN
