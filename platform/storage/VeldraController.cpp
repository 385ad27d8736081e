#include "VeldraController.h"

VeldraController::VeldraController() = default;
VeldraController::~VeldraController() = default;

void VeldraController::getLastVDData(VeldraControllerData& out) {
    std::lock_guard<std::mutex> lock(_snapshotMutex);
    out = _lastData;
}

void VeldraController::setLastVDData(VeldraControllerData const& data) {
    std::lock_guard<std::mutex> lock(_snapshotMutex);
    _lastData = data;
}

std::vector<VeldraEnclosure> VeldraController::getLastAllEnclosures() {
    std::lock_guard<std::mutex> lock(_snapshotMutex);
    return _lastEnclosures;
}

void VeldraController::setLastAllEnclosures(std::vector<VeldraEnclosure>& enclosures) {
    std::lock_guard<std::mutex> lock(_snapshotMutex);
    _lastEnclosures = enclosures;
}

std::vector<VeldraPhysicalDisk> VeldraController::getLastAllPhysicalDisks() {
    std::lock_guard<std::mutex> lock(_snapshotMutex);
    return _lastPhysicalDisks;
}

void VeldraController::setLastAllPhysicalDisks(std::vector<VeldraPhysicalDisk>& disks) {
    std::lock_guard<std::mutex> lock(_snapshotMutex);
    _lastPhysicalDisks = disks;
}

void VeldraController::getLastLogicalDisks(std::vector<VeldraLogicalDisk>& out) {
    std::lock_guard<std::mutex> lock(_snapshotMutex);
    out = _lastLogicalDisks;
}

void VeldraController::setLastLogicalDisks(std::vector<VeldraLogicalDisk> disks) {
    std::lock_guard<std::mutex> lock(_snapshotMutex);
    _lastLogicalDisks = std::move(disks);
}
