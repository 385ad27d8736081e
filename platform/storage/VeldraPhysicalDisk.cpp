#include "VeldraPhysicalDisk.h"

#include "VeldraRecordData.h"

namespace {
char const* const unknownText = "Unknown value";
} // namespace

VeldraPhysicalDisk::VeldraPhysicalDisk() = default;

VeldraPhysicalDisk::VeldraPhysicalDisk(std::shared_ptr<VeldraPhysicalDiskInfo const> info)
    : _info(std::move(info)) {}

VeldraPhysicalDisk::~VeldraPhysicalDisk() = default;

u32 VeldraPhysicalDisk::getId() const {
    return _info->id;
}
std::string VeldraPhysicalDisk::getSerialNumber() const {
    return _info->serialNumber;
}
std::string VeldraPhysicalDisk::getModel() const {
    return _info->model;
}
std::string VeldraPhysicalDisk::getManufacturer() const {
    return _info->manufacturer;
}
std::string VeldraPhysicalDisk::getFirmWareRevision() const {
    return _info->firmwareRevision;
}
int VeldraPhysicalDisk::getBox() const {
    return _info->box;
}
int VeldraPhysicalDisk::getBay() const {
    return _info->bay;
}
int VeldraPhysicalDisk::getEnclosureBoxNumber() const {
    return _info->enclosureBoxNumber;
}
std::string VeldraPhysicalDisk::getPort() const {
    return _info->port;
}
std::vector<VeldraPhysicalPath> VeldraPhysicalDisk::getPaths() const {
    return _info->paths;
}
std::vector<VeldraPhysicalPath> VeldraPhysicalDisk::getLastAllPhysicalPaths() const {
    return *_lastPaths;
}

void VeldraPhysicalDisk::setLastAllPhysicalPaths(std::vector<VeldraPhysicalPath>& paths) {
    _lastPaths.set(paths);
}

VeldraPhysicalDiskConfigEnum VeldraPhysicalDisk::getConfiguration() const {
    return static_cast<VeldraPhysicalDiskConfigEnum>(_info->configuration);
}
VeldraPhysicalDiskStatusEnum VeldraPhysicalDisk::getStatus() const {
    return static_cast<VeldraPhysicalDiskStatusEnum>(_info->status);
}
VeldraPhysicalDiskLastFailureReasonEnum VeldraPhysicalDisk::getLastFailureReason() const {
    return static_cast<VeldraPhysicalDiskLastFailureReasonEnum>(_info->lastFailureReason);
}
VeldraPhysicalDiskSSDWearStatusEnum VeldraPhysicalDisk::getSSDWearStatus() const {
    return static_cast<VeldraPhysicalDiskSSDWearStatusEnum>(_info->ssdWearStatus);
}

int VeldraPhysicalDisk::getEncryptionStatus(EncryptionPDStatusEnum& out) const {
    if (_info->fail.count("getEncryptionStatus"))
        return 1;
    out = static_cast<EncryptionPDStatusEnum>(_info->encryptionStatus);
    return 0;
}

u32 VeldraPhysicalDisk::getBlockSize() const {
    return _info->blockSize;
}
u64 VeldraPhysicalDisk::getTotalBlocks() const {
    return _info->totalBlocks;
}
u64 VeldraPhysicalDisk::getRemainingBlocks() const {
    return _info->remainingBlocks;
}
u64 VeldraPhysicalDisk::getTotalPowerOnHours() const {
    return _info->totalPowerOnHours;
}
u32 VeldraPhysicalDisk::getDriveRotationalSpeed() const {
    return _info->rotationalSpeed;
}
u32 VeldraPhysicalDisk::getInterface() const {
    return _info->interface;
}
u32 VeldraPhysicalDisk::getPlacement() const {
    return _info->placement;
}
u32 VeldraPhysicalDisk::getLifeRemaining() const {
    return _info->lifeRemaining;
}
u32 VeldraPhysicalDisk::getPercentEnduranceUsed() const {
    return _info->percentEnduranceUsed;
}
u32 VeldraPhysicalDisk::getNegotiatedWidth() const {
    return _info->negotiatedWidth;
}
u64 VeldraPhysicalDisk::getNegotiatedSpeed() const {
    return _info->negotiatedSpeed;
}
bool VeldraPhysicalDisk::getIsActiveSpare() const {
    return _info->activeSpare;
}
bool VeldraPhysicalDisk::getIsHotSwappable() const {
    return _info->hotSwappable;
}
bool VeldraPhysicalDisk::getSupportsGasGauge() const {
    return _info->gasGauge;
}
bool VeldraPhysicalDisk::hasMNPData() const {
    return _info->mnpData;
}
bool VeldraPhysicalDisk::checkBlockEraseSupported() const {
    return _info->blockEraseSupported;
}
bool VeldraPhysicalDisk::checkOverWriteEraseSupported() const {
    return _info->overWriteEraseSupported;
}
bool VeldraPhysicalDisk::checkSanitizeEraseSupported() const {
    return _info->sanitizeEraseSupported;
}
bool VeldraPhysicalDisk::checkCryptoScrambleEraseSupported() const {
    return _info->cryptoScrambleEraseSupported;
}
u32 VeldraPhysicalDisk::getLumenCarrierAuthStatus() const {
    return _info->carrierAuthStatus;
}
std::string VeldraPhysicalDisk::getLumenCarrierOtherAuthStatus() const {
    return _info->carrierOtherAuthStatus;
}
int VeldraPhysicalDisk::getLumenCarrierAppFWRev() const {
    return _info->carrierAppFWRev;
}
int VeldraPhysicalDisk::getLumenCarrierBootLoaderFWRev() const {
    return _info->carrierBootLoaderFWRev;
}
VeldraDiskStatistics VeldraPhysicalDisk::getDiskStatistics() const {
    return _info->statistics;
}

bool VeldraPhysicalDisk::isSameDisk(VeldraPhysicalDisk const& other) const {
    if (!_info->serialNumber.empty())
        return _info->serialNumber == other._info->serialNumber;
    return other._info->serialNumber.empty() &&
           _info->enclosureBoxNumber == other._info->enclosureBoxNumber &&
           _info->bay == other._info->bay;
}

u32 VeldraPhysicalDisk::compare(std::vector<VeldraPhysicalDisk>& previous, u32& index) const {
    for (size_t i = 0; i < previous.size(); ++i) {
        VeldraPhysicalDisk const& old = previous[i];
        if (!isSameDisk(old))
            continue;
        index = static_cast<u32>(i);
        VeldraPhysicalDiskInfo const& a = *_info;
        VeldraPhysicalDiskInfo const& b = *old._info;
        u32 mask = 0;
        if (a.box != b.box)
            mask |= changeBox;
        if (a.bay != b.bay)
            mask |= changeBay;
        if (a.firmwareRevision != b.firmwareRevision)
            mask |= changeFirmware;
        if (a.status != b.status)
            mask |= changeStatus;
        if (a.configuration != b.configuration)
            mask |= changeConfiguration;
        if (a.mnpData != b.mnpData)
            mask |= changeMNPData;
        if (a.remainingBlocks != b.remainingBlocks)
            mask |= changeRemainingBlocks;
        if (a.activeSpare != b.activeSpare)
            mask |= changeActiveSpare;
        if (*_lastPaths != *old._lastPaths)
            mask |= changePaths;
        if (a.ssdWearStatus != b.ssdWearStatus)
            mask |= changeSSDWear;
        return mask;
    }
    return changeNoCounterpart;
}

char const* VeldraPhysicalDisk::diskConfigToStr(VeldraPhysicalDiskConfigEnum const& value) const {
    switch (value) {
    case PD_CONFIG_UNKNOWN:
        return "Unknown";
    case PD_CONFIG_UNASSIGNED:
        return "Unassigned";
    case PD_CONFIG_DATA:
        return "Data";
    case PD_CONFIG_SPARE:
        return "Spare";
    case PD_CONFIG_PASS_THROUGH:
        return "Pass-Through";
    }
    return unknownText;
}

char const* VeldraPhysicalDisk::diskStatusToStr(VeldraPhysicalDiskStatusEnum const& value) const {
    switch (value) {
    case PD_STATUS_UNKNOWN:
        return "Unknown";
    case PD_STATUS_OK:
        return "OK";
    case PD_STATUS_PREDICTIVE_FAILURE:
        return "Predicted to Fail";
    case PD_STATUS_FAILED:
        return "Failed";
    case PD_STATUS_FAILED_ALL_PATHS:
        return "Failed on All Paths";
    case PD_STATUS_ERASE_QUEUED:
        return "Erase Queued";
    case PD_STATUS_ERASING:
        return "Erase in Progress";
    case PD_STATUS_ERASE_DONE:
        return "Erase Completed";
    case PD_STATUS_ONE_PATH_FAILED:
        return "Failed on One Path";
    case PD_STATUS_EXTENDED_UNKNOWN:
        return "Unknown Extended Status";
    case PD_STATUS_REBUILDING:
        return "Rebuilding";
    case PD_STATUS_SSD_WORN_OUT:
        return "SSD Worn Out";
    case PD_STATUS_NOT_AUTHENTICATED:
        return "Carrier Not Authenticated";
    }
    return unknownText;
}

char const* VeldraPhysicalDisk::diskLastFailureReasonToStr(
    VeldraPhysicalDiskLastFailureReasonEnum const& value) const {
    switch (value) {
    case PD_FAILURE_NONE:
        return "None";
    case PD_FAILURE_MEDIA_ERRORS:
        return "Too Many Media Errors";
    case PD_FAILURE_TIMEOUT:
        return "Command Timeout";
    case PD_FAILURE_HARDWARE:
        return "Hardware Error";
    case PD_FAILURE_REMOVED:
        return "Removed While Active";
    case PD_FAILURE_PREDICTED:
        return "Predicted Failure Threshold";
    case PD_FAILURE_OTHER:
        return "Other";
    }
    return unknownText;
}

char const*
VeldraPhysicalDisk::SSDWearStatusToStr(VeldraPhysicalDiskSSDWearStatusEnum const& value) const {
    switch (value) {
    case SSD_WEAR_UNKNOWN:
        return "Unknown";
    case SSD_WEAR_OK:
        return "OK";
    case SSD_WEAR_56_DAYS_LEFT:
        return "About 56 Days of Use Left";
    case SSD_WEAR_2_PERCENT_LEFT:
        return "2 Percent of Endurance Left";
    case SSD_WEAR_5_PERCENT_LEFT:
        return "5 Percent of Endurance Left";
    case SSD_WEAR_WORN_OUT:
        return "Worn Out";
    }
    return unknownText;
}
