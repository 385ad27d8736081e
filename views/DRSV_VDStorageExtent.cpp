#include "DRSV_VDStorageExtent.h"

#include "IdentityHelpers.h"

namespace {
char const* const className = "DRSV_VDStorageExtent";
} // namespace

namespace QLN {

DRSV_VDStorageExtent::DRSV_VDStorageExtent(Logger& logger, std::string const& nameSpace,
                                           unsigned int controllerIndex, unsigned int diskPosition,
                                           VeldraController* controller)
    : ViewInstance(logger, className, nameSpace, controllerIndex, controller),
      _diskPosition(diskPosition) {
    _logger.info("DRSV_VDStorageExtent::DRSV_VDStorageExtent");
    std::optional<VeldraPhysicalDisk> const disk = _findDisk();
    if (disk) {
        _deviceId = std::string(className) + "-" + removeWhitespace(disk->getModel()) + "-" +
                    removeWhitespace(disk->getSerialNumber());
    } else {
        // No blank before "on": this key has always been written so.
        _deviceId = "Disk " + std::to_string(_diskPosition + 1) + "on " + _drvd(false);
    }
}

std::optional<VeldraPhysicalDisk> DRSV_VDStorageExtent::_findDisk() const {
    std::vector<VeldraPhysicalDisk> disks = _controller->getAllPhysicalDisks();
    if (_diskPosition >= disks.size()) {
        return std::nullopt;
    }
    return std::move(disks[_diskPosition]);
}

CmpiCpp::CmpiObjectPath DRSV_VDStorageExtent::getPath() const {
    return _devicePath(_deviceId);
}

unsigned short DRSV_VDStorageExtent::healthOf(u32 status) {
    if (status == 1 || status == 0x8005) {
        return 5;
    }
    if (status == 3 || status == 4) {
        return 25;
    }
    if (status == 2 || (status >= 0x8000 && status <= 0x8004) || status == 0x8006 ||
        status == 0x8007) {
        return 10;
    }
    return 0;
}

CmpiCpp::CmpiInstance DRSV_VDStorageExtent::getInstance() const {
    _logger.info("DRSV_VDStorageExtent::getInstance");
    CmpiCpp::CmpiInstance instance = _deviceInstance(_deviceId);
    std::string const caption = "Disk " + std::to_string(_diskPosition + 1) + _drvd(true);
    instance.addProperty("Caption", caption);
    std::string text = caption;
    std::optional<VeldraPhysicalDisk> const disk = _findDisk();
    if (disk) {
        _logger.info("DRSV_VDStorageExtent::_getHealthState");
        instance.addProperty("HealthState", healthOf(static_cast<u32>(disk->getStatus())));
        std::uint64_t const blockSize = disk->getBlockSize();
        std::uint64_t const totalBlocks = disk->getTotalBlocks();
        instance.addProperty("BlockSize", blockSize);
        instance.addProperty("NumberOfBlocks", totalBlocks);
        text += " : Port " + disk->getPort() + " Box " + std::to_string(disk->getBox()) + " Bay " +
                std::to_string(disk->getBay()) + " : " +
                std::to_string(sizeInGB(totalBlocks, blockSize)) + "GB";
        auto const configuration = static_cast<u32>(disk->getConfiguration());
        if (configuration > 0 && configuration < 4) {
            text += std::string(" : ") + disk->diskConfigToStr(disk->getConfiguration()) + " Disk";
        }
        text += std::string(" : ") + disk->diskStatusToStr(disk->getStatus());
    }
    instance.addProperty("ElementName", text);
    instance.addProperty("Primordial", true);
    // A disk that is gone has the empty serial of an empty record.
    instance.addProperty("Name", disk ? disk->getSerialNumber() : std::string());
    return instance;
}

} // namespace QLN
