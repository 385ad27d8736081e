#include "VeldraController.h"

#include "VeldraStorageFunctions.h"

VeldraController::VeldraController()
    : _lastData(std::make_shared<VeldraControllerData const>()),
      _lastEnclosures(std::make_shared<std::vector<VeldraEnclosure> const>()),
      _lastPhysicalDisks(std::make_shared<std::vector<VeldraPhysicalDisk> const>()),
      _lastDiskBySerial(std::make_shared<std::unordered_map<std::string, std::size_t> const>()),
      _lastLogicalDisks(std::make_shared<std::vector<VeldraLogicalDisk> const>()) {}

VeldraController::~VeldraController() = default;

void VeldraController::getLastVDData(VeldraControllerData& out) {
    out = *shareLastVDData();
}

void VeldraController::setLastVDData(VeldraControllerData const& data) {
    auto stored = std::make_shared<VeldraControllerData const>(data);
    std::lock_guard<std::mutex> lock(_snapshotMutex);
    _lastData.swap(stored);
}

std::vector<VeldraEnclosure> VeldraController::getLastAllEnclosures() {
    return *shareLastAllEnclosures();
}

void VeldraController::setLastAllEnclosures(std::vector<VeldraEnclosure>& enclosures) {
    auto stored = std::make_shared<std::vector<VeldraEnclosure> const>(enclosures);
    std::lock_guard<std::mutex> lock(_snapshotMutex);
    _lastEnclosures.swap(stored);
}

std::vector<VeldraPhysicalDisk> VeldraController::getLastAllPhysicalDisks() {
    return *shareLastAllPhysicalDisks();
}

void VeldraController::setLastAllPhysicalDisks(std::vector<VeldraPhysicalDisk>& disks) {
    auto stored = std::make_shared<std::vector<VeldraPhysicalDisk> const>(disks);
    auto index = std::make_shared<std::unordered_map<std::string, std::size_t>>();
    for (std::size_t i = 0; i < stored->size(); ++i) {
        std::string serial = (*stored)[i].getSerialNumber();
        if (!serial.empty())
            index->emplace(std::move(serial), i);
    }
    std::shared_ptr<std::unordered_map<std::string, std::size_t> const> storedIndex =
        std::move(index);
    std::lock_guard<std::mutex> lock(_snapshotMutex);
    _lastPhysicalDisks.swap(stored);
    _lastDiskBySerial.swap(storedIndex);
}

std::optional<VeldraLogicalDisk> VeldraController::findLastLogicalDisk(std::string const& serial) {
    auto const logicals = shareLastLogicalDisks();
    int const at = findLogicalDiskInVector(serial, *logicals);
    if (at < 0)
        return std::nullopt;
    return (*logicals)[static_cast<std::size_t>(at)];
}

std::optional<VeldraPhysicalDisk>
VeldraController::findLastPhysicalDisk(std::string const& serial, int enclosureBoxNumber, int bay) {
    std::shared_ptr<std::vector<VeldraPhysicalDisk> const> disks;
    std::shared_ptr<std::unordered_map<std::string, std::size_t> const> bySerial;
    {
        std::lock_guard<std::mutex> lock(_snapshotMutex);
        disks = _lastPhysicalDisks;
        bySerial = _lastDiskBySerial;
    }
    if (serial.empty()) {
        // Disks without a serial number are few; they are found by place.
        int const at = findPhysicalDiskInVector(serial, enclosureBoxNumber, bay, *disks);
        if (at < 0)
            return std::nullopt;
        return (*disks)[static_cast<std::size_t>(at)];
    }
    auto found = bySerial->find(serial);
    if (found == bySerial->end())
        return std::nullopt;
    return (*disks)[found->second];
}

void VeldraController::getLastLogicalDisks(std::vector<VeldraLogicalDisk>& out) {
    out = *shareLastLogicalDisks();
}

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

std::shared_ptr<std::vector<VeldraPhysicalDisk> const>
VeldraController::shareLastAllPhysicalDisks() {
    std::lock_guard<std::mutex> lock(_snapshotMutex);
    return _lastPhysicalDisks;
}

std::shared_ptr<std::vector<VeldraLogicalDisk> const> VeldraController::shareLastLogicalDisks() {
    std::lock_guard<std::mutex> lock(_snapshotMutex);
    return _lastLogicalDisks;
}
