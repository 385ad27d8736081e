#pragma once
// A logical disk (volume) as its controller reports it, plus the member disks
// that the caller stored on this copy. Its serial number is its identity.
#include "SharedFacts.h"
#include "VeldraPhysicalDisk.h"
#include "VeldraTypes.h"

#include <memory>
#include <string>
#include <vector>

struct VeldraLogicalDiskInfo;

class VeldraLogicalDisk {
public:
    VeldraLogicalDisk();
    explicit VeldraLogicalDisk(std::shared_ptr<VeldraLogicalDiskInfo const> info);
    VeldraLogicalDisk(VeldraLogicalDisk const&) = default;
    VeldraLogicalDisk& operator=(VeldraLogicalDisk const&) = default;
    virtual ~VeldraLogicalDisk();

    // Ids (VeldraPhysicalDisk::getId) of the data members and of the spares,
    // in the controller's order. Empty spareDiskIDs: the volume has no spare.
    std::vector<u32> dataDiskIDs;
    std::vector<u32> spareDiskIDs;

    u32 getLogicalVolumeNumber() const;
    std::string getSerialNumber() const;
    std::string getDriveLabel() const;
    std::string getOSName() const;
    u32 getLogicalVolumeType() const;
    VeldraLogicalDiskStatusEnum getStatus() const;
    char const* statusToStr(VeldraLogicalDiskStatusEnum const& value) const;
    VeldraLogicalToleranceEnum getTolerance() const;
    char const* toleranceToStr(VeldraLogicalToleranceEnum const& value) const;
    u32 getBlockSize() const;
    u64 getTotalBlocks() const;
    u64 getStripeSize() const;
    u64 getConsumedPhysicalBytes() const;
    int getPercentComplete() const;
    float getRapidParityPercentComplete() const;
    int getEncryptionStatus(EncryptionLDStatusEnum& out) const;
    u32 getAcceleratorStatus() const;
    u32 getSSDLumenPathStatus() const;
    u32 getCacheVolumeCacheState() const;
    u32 getRelatedLUN() const;
    bool getAtLeastOneSpareAvailable() const;
    bool getDeleteable() const;

    // The id of the disk that `diskId` stands in for, or 0xFFFFFFFF.
    u32 getReplacedDiskID(u32 diskId) const;
    static constexpr u32 noReplacedDisk = 0xFFFFFFFF;

    // Those of `all` that are members of this volume, spares included, in the
    // order of `all`.
    std::vector<VeldraPhysicalDisk>
    logicalToAllPhysicals(std::vector<VeldraPhysicalDisk>& all) const;
    std::vector<VeldraPhysicalDisk> getLastAllPhysicalDisks() const;
    void setLastAllPhysicalDisks(std::vector<VeldraPhysicalDisk>& disks);

    // Counterpart by serial number in `previous`; see VeldraPhysicalDisk::compare.
    u32 compare(std::vector<VeldraLogicalDisk>& previous, u32& index) const;

    static constexpr u32 changeNoCounterpart = 0x01;
    static constexpr u32 changeTotalBlocks = 0x02;
    static constexpr u32 changeDriveLabel = 0x04;
    static constexpr u32 changeTolerance = 0x08;
    static constexpr u32 changeStatus = 0x10;

private:
    SharedFacts<VeldraLogicalDiskInfo> _info;
    SharedFacts<std::vector<VeldraPhysicalDisk>> _lastPhysicals;
};
