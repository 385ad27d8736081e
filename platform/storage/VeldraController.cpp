#include "VeldraController.h"

VeldraController::VeldraController()
    : _lastData(std::make_shared<VeldraControllerData const>()),
      _lastEnclosures(std::make_shared<std::vector<VeldraEnclosure> const>()),
      _lastPhysicalDisks(std::make_shared<std::vector<VeldraPhysicalDisk> const>()),
      _lastLogicalDisks(std::make_shared<std::vector<VeldraLogicalDisk> const>()) {}

VeldraController::~VeldraController() = default;

void VeldraController::getLastVDData(VeldraControllerData& out) { out = *shareLastVDData(); }

void VeldraController::setLastVDData(VeldraControllerData const& data) {
    auto stored = std::make_shared<VeldraControllerData const>(data);
    std::lock_guard<std::mutex> lock(_snapshotMutex);
    _lastData.swap(stored);
}

std::vector<VeldraEnclosure> VeldraController::getLastAllEnclosures() { return *shareLastAllEnclosures(); }

void VeldraController::setLastAllEnclosures(std::vector<VeldraEnclosure>& enclosures) {
    auto stored = std::make_shared<std::vector<VeldraEnclosure> const>(enclosures);
    std::lock_guard<std::mutex> lock(_snapshotMutex);
    _lastEnclosures.swap(stored);
}

std::vector<VeldraPhysicalDisk> VeldraController::getLastAllPhysicalDisks() { return *shareLastAllPhysicalDisks(); }

void VeldraController::setLastAllPhysicalDisks(std::vector<VeldraPhysicalDisk>& disks) {
    auto stored = std::make_shared<std::vector<VeldraPhysicalDisk> const>(disks);
    std::lock_guard<std::mutex> lock(_snapshotMutex);
    _lastPhysicalDisks.swap(stored);
}

void VeldraController::getLastLogicalDisks(std::vector<VeldraLogicalDisk>& out) { out = *shareLastLogicalDisks(); }

void VeldraController::setLastLogicalDisks(std::vector<VeldraLogicalDisk> disks) {
    auto stored = std::make_shared<std::vector<VeldraLogicalDisk> const>(std::move(disks));
    std::lock_guard<std::mutex> lock(_snapshotMutex);
    _lastLogicalDisks.swap(stored);
}

std::shared_ptr<VeldraControllerData const> VeldraController::shareLastVDData() {
    std::lock_guard<std::mutex> lock(_snapshotMutex);
    return _lastData;
}

std::shared_ptr<std::vector<VeldraEnclosure> const> VeldraController::shareLastAllEnclosures() {
    std::lock_guard<std::mutex> lock(_snapshotMutex);
    return _lastEnclosures;
}

std::shared_ptr<std::vector<VeldraPhysicalDisk> const> VeldraController::shareLastAllPhysicalDisks() {
    std::lock_guard<std::mutex> lock(_snapshotMutex);
    return _lastPhysicalDisks;
}

std::shared_ptr<std::vector<VeldraLogicalDisk> const> VeldraController::shareLastLogicalDisks() {
    std::lock_guard<std::mutex> lock(_snapshotMutex);
    return _lastLogicalDisks;
}
