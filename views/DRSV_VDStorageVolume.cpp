#include "DRSV_VDStorageVolume.h"

#include "IdentityHelpers.h"

namespace {
char const* const className = "DRSV_VDStorageVolume";
} // namespace

namespace QLN {

DRSV_VDStorageVolume::DRSV_VDStorageVolume(Logger& logger, std::string const& nameSpace,
                                           unsigned int controllerIndex, unsigned int volumeNumber,
                                           VeldraController* controller)
    : ViewInstance(logger, className, nameSpace, controllerIndex, controller),
      _volumeNumber(volumeNumber) {
    _logger.info("DRSV_VDStorageVolume::DRSV_VDStorageVolume");
    std::optional<VeldraLogicalDisk> const disk = _findDisk();
    if (!disk) {
        // No blank before the number: this key has always been written so.
        _deviceId = "Logical Volume" + std::to_string(_volumeNumber + 1) + _drvd(true);
        return;
    }
    _deviceId = std::string(className) + "-" + removeWhitespace(disk->getSerialNumber());
    std::vector<VeldraPhysicalDisk> const physicals = _controller->getAllPhysicalDisks();
    auto addPosition = [&](u32 id) {
        for (std::size_t i = 0; i < physicals.size(); ++i) {
            if (physicals[i].getId() == id) {
                _diskNumbers.push_back(static_cast<unsigned int>(i));
                return;
            }
        }
    };
    for (u32 id : disk->dataDiskIDs) {
        addPosition(id);
    }
    for (u32 id : disk->spareDiskIDs) {
        addPosition(id);
    }
}

std::optional<VeldraLogicalDisk> DRSV_VDStorageVolume::_findDisk() const {
    for (auto const& disk : _controller->getAllLogicalDisks()) {
        if (disk.getLogicalVolumeNumber() == _volumeNumber) {
            return disk;
        }
    }
    return std::nullopt;
}

CmpiCpp::CmpiObjectPath DRSV_VDStorageVolume::getPath() const {
    return _devicePath(_deviceId);
}

unsigned short DRSV_VDStorageVolume::healthOf(u32 status) {
    if (status == 2 || status == 0x8013 || status == 0x8014) {
        return 5;
    }
    if (status == 3 || status == 4 || status == 0x800E || status == 0x8010) {
        return 25;
    }
    if ((status >= 0x8000 && status <= 0x800D) || status == 0x8011 || status == 0x8012 ||
        (status >= 0x8015 && status <= 0x8018)) {
        return 10;
    }
    return 0;
}

CmpiCpp::CmpiInstance DRSV_VDStorageVolume::getInstance() const {
    _logger.info("DRSV_VDStorageVolume::getInstance");
    CmpiCpp::CmpiInstance instance = _deviceInstance(_deviceId);
    std::string text = "Logical Volume " + std::to_string(_volumeNumber + 1) + _drvd(true);
    std::optional<VeldraLogicalDisk> const disk = _findDisk();
    if (disk) {
        _logger.info("DRSV_VDStorageVolume::_getHealthState");
        instance.addProperty("HealthState", healthOf(static_cast<u32>(disk->getStatus())));
        std::uint64_t const blockSize = disk->getBlockSize();
        std::uint64_t const totalBlocks = disk->getTotalBlocks();
        instance.addProperty("BlockSize", blockSize);
        instance.addProperty("NumberOfBlocks", totalBlocks);
        text += std::string(" : ") + disk->toleranceToStr(disk->getTolerance()) + " : " +
                std::to_string(sizeInGB(totalBlocks, blockSize)) + "GB";
        if (!_diskNumbers.empty()) {
            text += " : Disk " + std::to_string(_diskNumbers.front() + 1);
            for (std::size_t i = 1; i < _diskNumbers.size(); ++i) {
                text += "," + std::to_string(_diskNumbers[i] + 1);
            }
        }
        text += std::string(" : ") + disk->statusToStr(disk->getStatus());
    }
    instance.addProperty("ElementName", text);
    return instance;
}

} // namespace QLN
