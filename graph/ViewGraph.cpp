// The host-side view in root/cimv2: made once per controller with the rest of
// the graph, and its volumes and extents rebuilt when a controller reports a
// possibly significant change of its disks.
#include "GraphBuilder.h"

#include "DRSV_VDBattery.h"
#include "DRSV_VDController.h"
#include "DRSV_VDControllerFirmware.h"
#include "DRSV_VDStorageExtent.h"
#include "DRSV_VDStorageVolume.h"

#include <algorithm>

namespace {
char const* const viewNameSpace = "root/cimv2";
} // namespace

namespace QLN {

void GraphBuilder::addViews(int number, VeldraController* controller) {
    _logger.info("_createViewClassInstances");
    if (controller == nullptr) {
        return;
    }
    auto const index = static_cast<unsigned int>(number);
    VeldraControllerData const data = controller->getVDData();
    _collection.createInstance(new DRSV_VDController(_logger, viewNameSpace, index, controller));
    _collection.createInstance(
        new DRSV_VDControllerFirmware(_logger, viewNameSpace, index, controller));
    cacheHasBatteryEnum hasBattery = CACHE_BATTERY_ABSENT;
    if (data.getCacheHasBattery(hasBattery) == 0 && hasBattery == CACHE_BATTERY_PRESENT) {
        _collection.createInstance(new DRSV_VDBattery(_logger, viewNameSpace, index, controller));
    }
    std::vector<VeldraLogicalDisk> logicals;
    controller->getLastLogicalDisks(logicals);
    for (std::size_t i = 0; i < logicals.size(); ++i) {
        _collection.createInstance(new DRSV_VDStorageVolume(
            _logger, viewNameSpace, index, static_cast<unsigned int>(i), controller));
    }
    std::vector<VeldraPhysicalDisk> const physicals = controller->getAllPhysicalDisks();
    for (std::size_t i = 0; i < physicals.size(); ++i) {
        _collection.createInstance(new DRSV_VDStorageExtent(
            _logger, viewNameSpace, index, static_cast<unsigned int>(i), controller));
    }
}

void GraphBuilder::rebuildViews(std::vector<DRSV_VDController*> const& rescan) {
    auto rescanned = [&rescan](ViewInstance const* instance) {
        return std::any_of(
            rescan.begin(), rescan.end(), [instance](DRSV_VDController const* controller) {
                return instance->isMyControllerIndex(controller->getControllerIndex());
            });
    };

    // Extents first, then volumes. A new instance whose DeviceID an old one
    // still holds takes the old one's place in the collection; the rest of
    // the old ones go with cleanup().
    for (unsigned int i = 0; i < _collection.size(); ++i) {
        auto* extent = dynamic_cast<DRSV_VDStorageExtent*>(_collection.getManagedInstance(i));
        if (extent != nullptr && extent->visible() && rescanned(extent)) {
            extent->setVisible(false);
        }
    }
    for (DRSV_VDController const* controller : rescan) {
        std::vector<VeldraPhysicalDisk> const physicals =
            controller->getController()->getAllPhysicalDisks();
        for (std::size_t i = 0; i < physicals.size(); ++i) {
            _collection.createInstance(new DRSV_VDStorageExtent(
                _logger, viewNameSpace, controller->getControllerIndex(),
                static_cast<unsigned int>(i), controller->getController()));
        }
    }

    for (unsigned int i = 0; i < _collection.size(); ++i) {
        auto* volume = dynamic_cast<DRSV_VDStorageVolume*>(_collection.getManagedInstance(i));
        if (volume != nullptr && volume->visible() && rescanned(volume)) {
            volume->setVisible(false);
        }
    }
    for (DRSV_VDController const* controller : rescan) {
        for (auto const& logical : controller->getController()->getAllLogicalDisks()) {
            _collection.createInstance(new DRSV_VDStorageVolume(
                _logger, viewNameSpace, controller->getControllerIndex(),
                logical.getLogicalVolumeNumber(), controller->getController()));
        }
    }

    _collection.cleanup();
}

} // namespace QLN
