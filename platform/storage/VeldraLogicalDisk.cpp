#include "VeldraLogicalDisk.h"

#include "VeldraRecordData.h"

#include <algorithm>

namespace {
char const* const unknownText = "Unknown value";
} // namespace

VeldraLogicalDisk::VeldraLogicalDisk() = default;

VeldraLogicalDisk::VeldraLogicalDisk(std::shared_ptr<VeldraLogicalDiskInfo const> info)
    : _info(std::move(info)) {
    dataDiskIDs = _info->dataDisks;
    spareDiskIDs = _info->spareDisks;
}

VeldraLogicalDisk::~VeldraLogicalDisk() = default;

u32 VeldraLogicalDisk::getLogicalVolumeNumber() const {
    return _info->number;
}
std::string VeldraLogicalDisk::getSerialNumber() const {
    return _info->serialNumber;
}
std::string VeldraLogicalDisk::getDriveLabel() const {
    return _info->driveLabel;
}
std::string VeldraLogicalDisk::getOSName() const {
    return _info->osName;
}
u32 VeldraLogicalDisk::getLogicalVolumeType() const {
    return _info->volumeType;
}
VeldraLogicalDiskStatusEnum VeldraLogicalDisk::getStatus() const {
    return static_cast<VeldraLogicalDiskStatusEnum>(_info->status);
}
VeldraLogicalToleranceEnum VeldraLogicalDisk::getTolerance() const {
    return static_cast<VeldraLogicalToleranceEnum>(_info->tolerance);
}
u32 VeldraLogicalDisk::getBlockSize() const {
    return _info->blockSize;
}
u64 VeldraLogicalDisk::getTotalBlocks() const {
    return _info->totalBlocks;
}
u64 VeldraLogicalDisk::getStripeSize() const {
    return _info->stripeSize;
}
u64 VeldraLogicalDisk::getConsumedPhysicalBytes() const {
    return _info->consumedPhysicalBytes;
}
int VeldraLogicalDisk::getPercentComplete() const {
    return _info->percentComplete;
}
float VeldraLogicalDisk::getRapidParityPercentComplete() const {
    return _info->rapidParityPercentComplete;
}

int VeldraLogicalDisk::getEncryptionStatus(EncryptionLDStatusEnum& out) const {
    if (_info->fail.count("getEncryptionStatus"))
        return 1;
    out = static_cast<EncryptionLDStatusEnum>(_info->encryptionStatus);
    return 0;
}

u32 VeldraLogicalDisk::getAcceleratorStatus() const {
    return _info->acceleratorStatus;
}
u32 VeldraLogicalDisk::getSSDLumenPathStatus() const {
    return _info->ssdLumenPathStatus;
}
u32 VeldraLogicalDisk::getCacheVolumeCacheState() const {
    return _info->cacheVolumeCacheState;
}
u32 VeldraLogicalDisk::getRelatedLUN() const {
    return _info->relatedLUN;
}

bool VeldraLogicalDisk::getAtLeastOneSpareAvailable() const {
    return _info->spareAvailableSet ? _info->spareAvailable : !_info->spareDisks.empty();
}
bool VeldraLogicalDisk::getDeleteable() const {
    return _info->deleteable;
}

u32 VeldraLogicalDisk::getReplacedDiskID(u32 diskId) const {
    auto found = _info->replaced.find(diskId);
    return found == _info->replaced.end() ? noReplacedDisk : found->second;
}

std::vector<VeldraPhysicalDisk>
VeldraLogicalDisk::logicalToAllPhysicals(std::vector<VeldraPhysicalDisk>& all) const {
    // Every pass asks this of every logical disk against every disk of its
    // controller: one mark per member id, not a search per disk.
    std::vector<u32> ids(_info->dataDisks);
    ids.insert(ids.end(), _info->spareDisks.begin(), _info->spareDisks.end());
    std::sort(ids.begin(), ids.end());
    std::vector<VeldraPhysicalDisk> members;
    members.reserve(ids.size());
    for (auto const& disk : all)
        if (std::binary_search(ids.begin(), ids.end(), disk.getId()))
            members.push_back(disk);
    return members;
}

std::vector<VeldraPhysicalDisk> VeldraLogicalDisk::getLastAllPhysicalDisks() const {
    return *_lastPhysicals;
}

void VeldraLogicalDisk::setLastAllPhysicalDisks(std::vector<VeldraPhysicalDisk>& disks) {
    _lastPhysicals.set(disks);
}

u32 VeldraLogicalDisk::compare(std::vector<VeldraLogicalDisk>& previous, u32& index) const {
    for (size_t i = 0; i < previous.size(); ++i) {
        VeldraLogicalDiskInfo const& b = *previous[i]._info;
        if (b.serialNumber != _info->serialNumber)
            continue;
        index = static_cast<u32>(i);
        VeldraLogicalDiskInfo const& a = *_info;
        u32 mask = 0;
        if (a.totalBlocks != b.totalBlocks)
            mask |= changeTotalBlocks;
        if (a.driveLabel != b.driveLabel)
            mask |= changeDriveLabel;
        if (a.tolerance != b.tolerance)
            mask |= changeTolerance;
        if (a.status != b.status)
            mask |= changeStatus;
        return mask;
    }
    return changeNoCounterpart;
}

char const* VeldraLogicalDisk::statusToStr(VeldraLogicalDiskStatusEnum const& value) const {
    switch (value) {
    case LD_STATUS_UNKNOWN:
        return "Unknown";
    case LD_STATUS_OK:
        return "OK";
    case LD_STATUS_FAILED:
        return "Failed";
    case LD_STATUS_FAILED_MEMBERS_LOST:
        return "Failed, Members Lost";
    case LD_STATUS_DEGRADED:
        return "Degraded, Running Without Redundancy";
    case LD_STATUS_READY_TO_REBUILD:
        return "Ready to Rebuild";
    case LD_STATUS_REBUILDING:
        return "Rebuilding";
    case LD_STATUS_WRONG_DISK_REPLACED:
        return "Wrong Disk Replaced";
    case LD_STATUS_DISK_NOT_CONNECTED:
        return "Member Disk Not Connected";
    case LD_STATUS_OVERHEATING:
        return "Overheating";
    case LD_STATUS_OVERHEATED:
        return "Shut Down After Overheating";
    case LD_STATUS_EXPANDING:
        return "Expanding";
    case LD_STATUS_NOT_YET_AVAILABLE:
        return "Not Yet Available";
    case LD_STATUS_WAITING_TO_EXPAND:
        return "Waiting to Expand";
    case LD_STATUS_ADDRESS_CONFLICT:
        return "Disabled by an Address Conflict";
    case LD_STATUS_EJECTED:
        return "Ejected";
    case LD_STATUS_ERASING:
        return "Erase in Progress";
    case LD_STATUS_OFFLINE:
        return "Offline";
    case LD_STATUS_FAILED_SPARE_PENDING:
        return "Failed, Waiting for Spare Activation";
    case LD_STATUS_RESERVED:
        return "Reserved";
    case LD_STATUS_KEY_MISSING:
        return "Failed, Encryption Key Missing";
    case LD_STATUS_ENCRYPTING:
        return "Encrypting";
    case LD_STATUS_REKEYING:
        return "Rekeying";
    case LD_STATUS_OK_PLAINTEXT:
        return "OK, Not Encrypted";
    case LD_STATUS_OK_ENCRYPTION_PENDING:
        return "OK, Encryption Pending";
    case LD_STATUS_TRANSFORMING:
        return "Transforming";
    case LD_STATUS_MOVING:
        return "Moving";
    case LD_STATUS_CACHE_ERROR:
        return "Cache Error";
    case LD_STATUS_CACHE_DEGRADED:
        return "Cache Degraded";
    }
    return unknownText;
}

char const* VeldraLogicalDisk::toleranceToStr(VeldraLogicalToleranceEnum const& value) const {
    switch (value) {
    case LD_TOLERANCE_NONE:
        return "RAID 0";
    case LD_TOLERANCE_PARITY_SINGLE:
        return "RAID 4";
    case LD_TOLERANCE_MIRROR:
        return "RAID 1";
    case LD_TOLERANCE_DISTRIBUTED_PARITY:
        return "RAID 5";
    case LD_TOLERANCE_STRIPED_PARITY:
        return "RAID 50";
    case LD_TOLERANCE_DUAL_PARITY:
        return "RAID 6";
    case LD_TOLERANCE_TRIPLE_MIRROR:
        return "RAID 1 Triple";
    case LD_TOLERANCE_STRIPED_DUAL_PARITY:
        return "RAID 60";
    case LD_TOLERANCE_STRIPED_TRIPLE_MIRROR:
        return "RAID 10 Triple";
    case LD_TOLERANCE_TRIPLE_MIRROR_SPANNED:
        return "RAID 1 Triple Spanned";
    case LD_TOLERANCE_STRIPED_MIRROR:
        return "RAID 10";
    case LD_TOLERANCE_DUAL_PARITY_SPANNED:
        return "RAID 6 Spanned";
    }
    return unknownText;
}
