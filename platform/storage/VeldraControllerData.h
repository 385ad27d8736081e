#pragma once
// A controller's state at one moment. A value: copies are independent, and
// nothing a controller learns later changes a copy already handed out.
//
// Every `int getX(T&)` returns 0 and fills its argument, or returns non-zero
// and leaves the argument as it was when the hardware could not answer.
#include "SharedFacts.h"
#include "VeldraTypes.h"
#include "physloc.h"

#include <memory>
#include <string>
#include <vector>

struct VeldraControllerInfo;

class VeldraControllerData {
public:
    VeldraControllerData();
    explicit VeldraControllerData(std::shared_ptr<VeldraControllerInfo const> info);
    VeldraControllerData(VeldraControllerData const&) = default;
    VeldraControllerData& operator=(VeldraControllerData const&) = default;
    virtual ~VeldraControllerData();

    int getControllerSerialNumber(std::string& out) const;
    int getModel(std::string& out) const;
    int getManufacturer(std::string& out) const;
    int getFWVersion(std::string& out) const;
    int getCacheSerialNumber(std::string& out) const;
    int getDriverName(std::string& out) const;
    int getDriverVersion(std::string& out) const;
    int getVDPorts(std::vector<std::string>& out) const;
    int getPCISlotNumber(int& out) const;
    int getControllerTemperature(int& out) const;
    int getCacheModuleTemperature(int& out) const;
    int getSuperCapTemperature(int& out) const;
    int getCacheSizeInBytes(u32& out) const;
    int getCacheSizeTotal(u32& out) const;
    int getSplitReadSize(u32& out) const;
    int getSplitWriteSize(u32& out) const;
    int getCacheParityReadErrors(u32& out) const;
    int getCacheParityWriteErrors(u32& out) const;
    int getExtendedCacheSizeTotal(u64& out) const;
    int getCacheReadPercent(u16& out) const;
    int getCacheWritePercent(u16& out) const;
    int getNumberOfSASPorts(u16& out) const;
    int getNumberOfSASInternalPorts(u16& out) const;
    int getNumberOfSASExternalPorts(u16& out) const;
    int getNumberOfSCSIBuses(u16& out) const;
    int getPCIInfo(VeldraControllerPCIInfo& out) const;
    int getPhysloc(physloc_t& out) const;
    int getControllerStatus(controllerStatusEnum& out) const;
    int getControllerOperationalStatus(controllerOperationalStatusEnum& out) const;
    int getControllerType(controllerTypeEnum& out) const;
    int getBatteryStatus(batteryStatusEnum& out) const;
    int getCacheStatus(cacheStatusEnum& out) const;
    int getCacheState(cacheStateEnum& out) const;
    int getCacheBoardPresent(cacheBoardPresentEnum& out) const;
    int getCacheHasBattery(cacheHasBatteryEnum& out) const;
    int getCacheBackupPowerSource(cacheBackupPowerSourceEnum& out) const;
    int getCacheOperationalStatus(cacheOperationalStatusEnum& out) const;
    int getReadCacheStatus(readCacheStatusEnum& out) const;
    int getRebuildPriority(rebuildPriorityEnum& out) const;
    int getExpandPriority(expandPriorityEnum& out) const;
    int getDPGSupportedType(DPGSupportedTypeEnum& out) const;
    // The one getter that fills through a pointer; a null pointer is a failure.
    int getEncryptionStatus(EncryptionStatusEnum* out) const;
    int getEncryptionSelfTestStatus(EncryptSelfTestStatusEnum& out) const;
    int getEncryptionCSPNvramStatus(EncryptCSPNvramStatusEnum& out) const;
    int getEncryptFWLockStatus(EncryptFWLockStatusEnum& out) const;
    int getEncryptCntlrPwdSetStatus(EncryptCntlrPwdSetStatusEnum& out) const;
    int getEncryptCryptoOfficerPwdSetStatus(EncryptCryptoOfficerPwdSetStatusEnum& out) const;
    int getEncryptedCntlrPwdAvailStatus(EncryptedCntlrPwdAvailStatusEnum& out) const;
    int getEncryptLDCreationPolicy(EncryptLDCreationPolicyEnum& out) const;
    int getUnencryptLDCreationPolicy(UnencryptLDCreationPolicyEnum& out) const;

    VeldraControllerAddress getAddress() const;

    bool checkHBAModeSupported() const;
    bool checkHBAModeEnabled() const;
    bool checkSanitizeEraseSupported() const;
    bool checkSplitCacheSupported() const;

    // Bits of what differs from `previous`; 0 when nothing does. A difference
    // that no bit names sets 0x1.
    u32 compare(VeldraControllerData const& previous) const;

    static constexpr u32 changeUnexpected = 0x00000001;
    static constexpr u32 changeOperationalStatus = 0x00000020;
    static constexpr u32 changeFirmware = 0x00000040;
    static constexpr u32 changeManufacturer = 0x00000080;
    static constexpr u32 changeModel = 0x00000100;
    static constexpr u32 changeDPGSupportType = 0x00000200;
    static constexpr u32 changeBatteryStatus = 0x00000400;
    static constexpr u32 changeCacheBoardPresent = 0x00000800;
    static constexpr u32 changeCacheHasBattery = 0x00001000;
    static constexpr u32 changeCacheState = 0x00002000;
    static constexpr u32 changeCacheParityReadErrors = 0x00004000;
    static constexpr u32 changeCacheParityWriteErrors = 0x00008000;
    static constexpr u32 changeRebuildPriority = 0x00100000;
    static constexpr u32 changeExpandPriority = 0x00200000;
    static constexpr u32 changeNumberOfSASPorts = 0x00400000;
    // One bit for two things: the cache status and the number of SCSI buses.
    static constexpr u32 changeCacheStatusOrSCSIBuses = 0x00800000;
    static constexpr u32 changeEncryptionSelfTest = 0x02000000;
    static constexpr u32 changeEncryptionCSPNvram = 0x04000000;

    char const* operationalStatusToStr(controllerOperationalStatusEnum const& value) const;
    char const* dpgToStr(DPGSupportedTypeEnum const& value) const;
    char const* batteryStatusToStr(batteryStatusEnum& value) const;
    char const* cacheStatusToStr(cacheStatusEnum& value) const;
    char const* cacheStateToStr(cacheStateEnum& value) const;
    char const* cacheBoardPresentToStr(cacheBoardPresentEnum& value) const;
    char const* cacheHasBatteryToStr(cacheHasBatteryEnum& value) const;
    char const* rebuildPriorityToStr(rebuildPriorityEnum& value) const;
    char const* expandPriorityToStr(expandPriorityEnum& value) const;

private:
    bool _failing(char const* operation) const;
    SharedFacts<VeldraControllerInfo> _info;
};
