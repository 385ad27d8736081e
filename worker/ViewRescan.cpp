// The view's rebuild after a pass: which controllers report a possibly
// significant change of their disks, and their new volumes and extents.
#include "DRSV_VDController.h"
#include "ProviderLock.h"
#include "QLNVeldraProvider.h"
#include "WorkerPass.h"

namespace QLN {

// The whole rebuild holds the provider's mutex, which every CMPI read takes
// too. Hiding the old volumes and extents, adding the new ones and deleting
// the hidden ones are three steps; a client between them would see a
// controller with no extents, or twice as many. Under the mutex a read sees
// the view before or after, never between, and cleanup() cannot free an
// instance a read is still building an answer from. The caller has released
// the mutex before (a pass never holds it here), so nothing nests. The cost
// is that reads wait for the fresh disk reads of a rebuild, which happens
// only when a controller's disks changed.
void QLNVeldraProvider::_updateViewClassInstances() {
    _logger.info("::_updateViewClassInstances");
    ProviderLock lock(_providerMutex);

    std::vector<DRSV_VDController*> rescan;
    for (DRSV_VDController* controller : _rosterOf().viewControllers) {
        if (controller->needsRescan()) {
            rescan.push_back(controller);
        }
    }
    if (!rescan.empty()) {
        _graph.rebuildViews(rescan);
    }
}

} // namespace QLN
