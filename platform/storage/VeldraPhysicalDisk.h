#pragma once
// A physical disk as its controller reports it, plus the routes that the
// caller stored on this copy ("last paths"). Copies are cheap: the facts are
// shared and immutable, the stored routes are replaced, never edited.
#include "SharedFacts.h"
#include "VeldraPhysicalPath.h"
#include "VeldraTypes.h"

#include <memory>
#include <string>
#include <vector>

struct VeldraPhysicalDiskInfo;

class VeldraPhysicalDisk {
public:
    VeldraPhysicalDisk();
    explicit VeldraPhysicalDisk(std::shared_ptr<VeldraPhysicalDiskInfo const> info);
    VeldraPhysicalDisk(VeldraPhysicalDisk const&) = default;
    VeldraPhysicalDisk& operator=(VeldraPhysicalDisk const&) = default;
    virtual ~VeldraPhysicalDisk();

    u32 getId() const;
    std::string getSerialNumber() const;
    std::string getModel() const;
    std::string getManufacturer() const;
    std::string getFirmWareRevision() const;
    int getBox() const;
    int getBay() const;
    int getEnclosureBoxNumber() const;
    std::string getPort() const;
    std::vector<VeldraPhysicalPath> getPaths() const;
    std::vector<VeldraPhysicalPath> getLastAllPhysicalPaths() const;
    void setLastAllPhysicalPaths(std::vector<VeldraPhysicalPath>& paths);

    VeldraPhysicalDiskConfigEnum getConfiguration() const;
    char const* diskConfigToStr(VeldraPhysicalDiskConfigEnum const& value) const;
    VeldraPhysicalDiskStatusEnum getStatus() const;
    char const* diskStatusToStr(VeldraPhysicalDiskStatusEnum const& value) const;
    VeldraPhysicalDiskLastFailureReasonEnum getLastFailureReason() const;
    char const*
    diskLastFailureReasonToStr(VeldraPhysicalDiskLastFailureReasonEnum const& value) const;
    VeldraPhysicalDiskSSDWearStatusEnum getSSDWearStatus() const;
    char const* SSDWearStatusToStr(VeldraPhysicalDiskSSDWearStatusEnum const& value) const;
    int getEncryptionStatus(EncryptionPDStatusEnum& out) const;

    u32 getBlockSize() const;
    u64 getTotalBlocks() const;
    u64 getRemainingBlocks() const;
    u64 getTotalPowerOnHours() const;
    u32 getDriveRotationalSpeed() const;
    u32 getInterface() const;
    u32 getPlacement() const;
    u32 getLifeRemaining() const;
    u32 getPercentEnduranceUsed() const;
    u32 getNegotiatedWidth() const;
    u64 getNegotiatedSpeed() const;

    bool getIsActiveSpare() const;
    bool getIsHotSwappable() const;
    bool getSupportsGasGauge() const;
    bool hasMNPData() const;
    bool checkBlockEraseSupported() const;
    bool checkOverWriteEraseSupported() const;
    bool checkSanitizeEraseSupported() const;
    bool checkCryptoScrambleEraseSupported() const;

    u32 getLumenCarrierAuthStatus() const;
    std::string getLumenCarrierOtherAuthStatus() const;
    int getLumenCarrierAppFWRev() const;
    int getLumenCarrierBootLoaderFWRev() const;

    VeldraDiskStatistics getDiskStatistics() const;

    // Finds the counterpart of this disk in `previous` (same serial number;
    // for a disk without one, same enclosure and bay), writes its index and
    // returns the bits of what differs. 0x1 alone: no counterpart, index unset.
    u32 compare(std::vector<VeldraPhysicalDisk>& previous, u32& index) const;

    static constexpr u32 changeNoCounterpart = 0x001;
    static constexpr u32 changeBox = 0x002;
    static constexpr u32 changeBay = 0x004;
    static constexpr u32 changeFirmware = 0x008;
    static constexpr u32 changeStatus = 0x010;
    static constexpr u32 changeConfiguration = 0x020;
    static constexpr u32 changeMNPData = 0x040;
    static constexpr u32 changeRemainingBlocks = 0x080;
    static constexpr u32 changeActiveSpare = 0x100;
    static constexpr u32 changePaths = 0x200;
    static constexpr u32 changeSSDWear = 0x400;

    // True when both records name the same drive.
    bool isSameDisk(VeldraPhysicalDisk const& other) const;

private:
    SharedFacts<VeldraPhysicalDiskInfo> _info;
    SharedFacts<std::vector<VeldraPhysicalPath>> _lastPaths;
};
