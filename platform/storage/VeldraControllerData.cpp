#include "VeldraControllerData.h"

#include "VeldraRecordData.h"

#include <cstring>
#include <stdexcept>
#include <string>

VeldraControllerData::VeldraControllerData() = default;

VeldraControllerData::VeldraControllerData(std::shared_ptr<VeldraControllerInfo const> info)
    : _info(std::move(info)) {}

VeldraControllerData::~VeldraControllerData() = default;

bool VeldraControllerData::_failing(char const* operation) const {
    if (!_info->raise.empty() && _info->raise.count(operation) != 0) {
        throw std::runtime_error(std::string("simulated fault in ") + operation);
    }
    return !_info->fail.empty() && _info->fail.count(operation) != 0;
}

#define VD_PLAIN_GETTER(name, Type, member)                                                        \
    int VeldraControllerData::name(Type& out) const {                                              \
        if (_failing(#name))                                                                       \
            return 1;                                                                              \
        out = _info->member;                                                                       \
        return 0;                                                                                  \
    }
#define VD_ENUM_GETTER(name, Type, member)                                                         \
    int VeldraControllerData::name(Type& out) const {                                              \
        if (_failing(#name))                                                                       \
            return 1;                                                                              \
        out = static_cast<Type>(_info->member);                                                    \
        return 0;                                                                                  \
    }

VD_PLAIN_GETTER(getControllerSerialNumber, std::string, serialNumber)
VD_PLAIN_GETTER(getModel, std::string, model)
VD_PLAIN_GETTER(getManufacturer, std::string, manufacturer)
VD_PLAIN_GETTER(getFWVersion, std::string, fwVersion)
VD_PLAIN_GETTER(getCacheSerialNumber, std::string, cacheSerialNumber)
VD_PLAIN_GETTER(getDriverName, std::string, driverName)
VD_PLAIN_GETTER(getDriverVersion, std::string, driverVersion)
VD_PLAIN_GETTER(getVDPorts, std::vector<std::string>, ports)
VD_PLAIN_GETTER(getPCISlotNumber, int, pciSlotNumber)
VD_PLAIN_GETTER(getControllerTemperature, int, controllerTemperature)
VD_PLAIN_GETTER(getCacheModuleTemperature, int, cacheModuleTemperature)
VD_PLAIN_GETTER(getSuperCapTemperature, int, superCapTemperature)
VD_PLAIN_GETTER(getCacheSizeInBytes, u32, cacheSizeInBytes)
VD_PLAIN_GETTER(getCacheSizeTotal, u32, cacheSizeTotal)
VD_PLAIN_GETTER(getSplitReadSize, u32, splitReadSize)
VD_PLAIN_GETTER(getSplitWriteSize, u32, splitWriteSize)
VD_PLAIN_GETTER(getCacheParityReadErrors, u32, cacheParityReadErrors)
VD_PLAIN_GETTER(getCacheParityWriteErrors, u32, cacheParityWriteErrors)
VD_PLAIN_GETTER(getExtendedCacheSizeTotal, u64, extendedCacheSizeTotal)
VD_PLAIN_GETTER(getCacheReadPercent, u16, cacheReadPercent)
VD_PLAIN_GETTER(getCacheWritePercent, u16, cacheWritePercent)
VD_PLAIN_GETTER(getNumberOfSASPorts, u16, numberOfSASPorts)
VD_PLAIN_GETTER(getNumberOfSASInternalPorts, u16, numberOfSASInternalPorts)
VD_PLAIN_GETTER(getNumberOfSASExternalPorts, u16, numberOfSASExternalPorts)
VD_PLAIN_GETTER(getNumberOfSCSIBuses, u16, numberOfSCSIBuses)
VD_PLAIN_GETTER(getPCIInfo, VeldraControllerPCIInfo, pciInfo)
VD_ENUM_GETTER(getControllerStatus, controllerStatusEnum, controllerStatus)
VD_ENUM_GETTER(getControllerOperationalStatus, controllerOperationalStatusEnum, operationalStatus)
VD_ENUM_GETTER(getControllerType, controllerTypeEnum, controllerType)
VD_ENUM_GETTER(getBatteryStatus, batteryStatusEnum, batteryStatus)
VD_ENUM_GETTER(getCacheStatus, cacheStatusEnum, cacheStatus)
VD_ENUM_GETTER(getCacheState, cacheStateEnum, cacheState)
VD_ENUM_GETTER(getCacheBoardPresent, cacheBoardPresentEnum, cacheBoardPresent)
VD_ENUM_GETTER(getCacheHasBattery, cacheHasBatteryEnum, cacheHasBattery)
VD_ENUM_GETTER(getCacheBackupPowerSource, cacheBackupPowerSourceEnum, cacheBackupPowerSource)
VD_ENUM_GETTER(getCacheOperationalStatus, cacheOperationalStatusEnum, cacheOperationalStatus)
VD_ENUM_GETTER(getReadCacheStatus, readCacheStatusEnum, readCacheStatus)
VD_ENUM_GETTER(getRebuildPriority, rebuildPriorityEnum, rebuildPriority)
VD_ENUM_GETTER(getExpandPriority, expandPriorityEnum, expandPriority)
VD_ENUM_GETTER(getDPGSupportedType, DPGSupportedTypeEnum, dpgSupportedType)
VD_ENUM_GETTER(getEncryptionSelfTestStatus, EncryptSelfTestStatusEnum, encryptionSelfTestStatus)
VD_ENUM_GETTER(getEncryptionCSPNvramStatus, EncryptCSPNvramStatusEnum, encryptionCSPNvramStatus)
VD_ENUM_GETTER(getEncryptFWLockStatus, EncryptFWLockStatusEnum, encryptFWLockStatus)
VD_ENUM_GETTER(getEncryptCntlrPwdSetStatus, EncryptCntlrPwdSetStatusEnum, encryptCntlrPwdSetStatus)
VD_ENUM_GETTER(getEncryptCryptoOfficerPwdSetStatus, EncryptCryptoOfficerPwdSetStatusEnum,
               encryptCryptoOfficerPwdSetStatus)
VD_ENUM_GETTER(getEncryptedCntlrPwdAvailStatus, EncryptedCntlrPwdAvailStatusEnum,
               encryptedCntlrPwdAvailStatus)
VD_ENUM_GETTER(getEncryptLDCreationPolicy, EncryptLDCreationPolicyEnum, encryptLDCreationPolicy)
VD_ENUM_GETTER(getUnencryptLDCreationPolicy, UnencryptLDCreationPolicyEnum,
               unencryptLDCreationPolicy)

#undef VD_PLAIN_GETTER
#undef VD_ENUM_GETTER

int VeldraControllerData::getPhysloc(physloc_t& out) const {
    if (_failing("getPhysloc"))
        return 1;
    std::memcpy(out.bytes, _info->physloc.data(), sizeof(out.bytes));
    return 0;
}

int VeldraControllerData::getEncryptionStatus(EncryptionStatusEnum* out) const {
    if (out == nullptr || _failing("getEncryptionStatus"))
        return 1;
    *out = static_cast<EncryptionStatusEnum>(_info->encryptionStatus);
    return 0;
}

VeldraControllerAddress VeldraControllerData::getAddress() const {
    return _info->address;
}

bool VeldraControllerData::checkHBAModeSupported() const {
    return _info->hbaModeSupported;
}
bool VeldraControllerData::checkHBAModeEnabled() const {
    return _info->hbaModeEnabled;
}
bool VeldraControllerData::checkSanitizeEraseSupported() const {
    return _info->sanitizeEraseSupported;
}
bool VeldraControllerData::checkSplitCacheSupported() const {
    return _info->splitCacheSupported;
}

u32 VeldraControllerData::compare(VeldraControllerData const& previous) const {
    VeldraControllerInfo const& now = *_info;
    VeldraControllerInfo const& was = *previous._info;
    if (_info.shares(previous._info) || now == was)
        return 0;

    // Each named item compares what its getter would say, failure included,
    // and is then taken out of the remainder; whatever still differs
    // afterwards is an unexpected change.
    VeldraControllerInfo rest = now;
    u32 mask = 0;
    auto item = [&](auto member, char const* getter, u32 bit) {
        bool failNow = now.fail.count(getter) != 0;
        bool failWas = was.fail.count(getter) != 0;
        if (failNow != failWas || (!failNow && now.*member != was.*member))
            mask |= bit;
        rest.*member = was.*member;
        if (failWas)
            rest.fail.insert(getter);
        else
            rest.fail.erase(getter);
    };
    item(&VeldraControllerInfo::operationalStatus, "getControllerOperationalStatus",
         changeOperationalStatus);
    item(&VeldraControllerInfo::fwVersion, "getFWVersion", changeFirmware);
    item(&VeldraControllerInfo::manufacturer, "getManufacturer", changeManufacturer);
    item(&VeldraControllerInfo::model, "getModel", changeModel);
    item(&VeldraControllerInfo::dpgSupportedType, "getDPGSupportedType", changeDPGSupportType);
    item(&VeldraControllerInfo::batteryStatus, "getBatteryStatus", changeBatteryStatus);
    item(&VeldraControllerInfo::cacheBoardPresent, "getCacheBoardPresent", changeCacheBoardPresent);
    item(&VeldraControllerInfo::cacheHasBattery, "getCacheHasBattery", changeCacheHasBattery);
    item(&VeldraControllerInfo::cacheState, "getCacheState", changeCacheState);
    item(&VeldraControllerInfo::cacheParityReadErrors, "getCacheParityReadErrors",
         changeCacheParityReadErrors);
    item(&VeldraControllerInfo::cacheParityWriteErrors, "getCacheParityWriteErrors",
         changeCacheParityWriteErrors);
    item(&VeldraControllerInfo::rebuildPriority, "getRebuildPriority", changeRebuildPriority);
    item(&VeldraControllerInfo::expandPriority, "getExpandPriority", changeExpandPriority);
    item(&VeldraControllerInfo::numberOfSASPorts, "getNumberOfSASPorts", changeNumberOfSASPorts);
    item(&VeldraControllerInfo::cacheStatus, "getCacheStatus", changeCacheStatusOrSCSIBuses);
    item(&VeldraControllerInfo::numberOfSCSIBuses, "getNumberOfSCSIBuses",
         changeCacheStatusOrSCSIBuses);
    item(&VeldraControllerInfo::encryptionSelfTestStatus, "getEncryptionSelfTestStatus",
         changeEncryptionSelfTest);
    item(&VeldraControllerInfo::encryptionCSPNvramStatus, "getEncryptionCSPNvramStatus",
         changeEncryptionCSPNvram);
    if (!(rest == was))
        mask |= changeUnexpected;
    return mask;
}

namespace {
char const* const unknownText = "Unknown value";
}

char const*
VeldraControllerData::operationalStatusToStr(controllerOperationalStatusEnum const& value) const {
    switch (value) {
    case CONTROLLER_OP_STATUS_UNKNOWN:
        return "Unknown";
    case CONTROLLER_OP_STATUS_OK:
        return "OK";
    case CONTROLLER_OP_STATUS_DEGRADED:
        return "Degraded";
    case CONTROLLER_OP_STATUS_FAILED:
        return "Failed";
    case CONTROLLER_OP_STATUS_NOT_REPORTED:
        return "Not Reported";
    }
    return unknownText;
}

char const* VeldraControllerData::dpgToStr(DPGSupportedTypeEnum const& value) const {
    switch (value) {
    case DPG_NOT_SUPPORTED:
        return "Not Supported";
    case DPG_SUPPORTED:
        return "Supported";
    case DPG_SUPPORTED_ENABLED:
        return "Supported and Enabled";
    }
    return unknownText;
}

char const* VeldraControllerData::batteryStatusToStr(batteryStatusEnum& value) const {
    switch (value) {
    case BATTERY_NOT_PRESENT:
        return "Not Present";
    case BATTERY_OK:
        return "OK";
    case BATTERY_FAILED:
        return "Failed";
    case BATTERY_CHARGING:
        return "Charging";
    }
    return unknownText;
}

char const* VeldraControllerData::cacheStatusToStr(cacheStatusEnum& value) const {
    switch (value) {
    case CACHE_STATUS_NOT_CONFIGURED:
        return "Not Configured";
    case CACHE_STATUS_OK:
        return "OK";
    case CACHE_STATUS_TEMPORARILY_DISABLED:
        return "Temporarily Disabled";
    case CACHE_STATUS_PERMANENTLY_DISABLED:
        return "Permanently Disabled";
    case CACHE_STATUS_FAILED:
        return "Failed";
    }
    return unknownText;
}

char const* VeldraControllerData::cacheStateToStr(cacheStateEnum& value) const {
    switch (value) {
    case CACHE_STATE_NOT_CONFIGURED:
        return "Not Configured";
    case CACHE_STATE_ENABLED:
        return "Enabled";
    case CACHE_STATE_DISABLED:
        return "Disabled";
    case CACHE_STATE_WRITE_THROUGH:
        return "Write-Through";
    }
    return unknownText;
}

char const* VeldraControllerData::cacheBoardPresentToStr(cacheBoardPresentEnum& value) const {
    switch (value) {
    case CACHE_BOARD_ABSENT:
        return "Absent";
    case CACHE_BOARD_PRESENT:
        return "Present";
    }
    return unknownText;
}

char const* VeldraControllerData::cacheHasBatteryToStr(cacheHasBatteryEnum& value) const {
    switch (value) {
    case CACHE_BATTERY_ABSENT:
        return "No Battery";
    case CACHE_BATTERY_PRESENT:
        return "Battery Present";
    }
    return unknownText;
}

char const* VeldraControllerData::rebuildPriorityToStr(rebuildPriorityEnum& value) const {
    switch (value) {
    case REBUILD_PRIORITY_LOW:
        return "Low";
    case REBUILD_PRIORITY_MEDIUM:
        return "Medium";
    case REBUILD_PRIORITY_HIGH:
        return "High";
    case REBUILD_PRIORITY_RAPID:
        return "Rapid";
    }
    return unknownText;
}

char const* VeldraControllerData::expandPriorityToStr(expandPriorityEnum& value) const {
    switch (value) {
    case EXPAND_PRIORITY_LOW:
        return "Low";
    case EXPAND_PRIORITY_MEDIUM:
        return "Medium";
    case EXPAND_PRIORITY_HIGH:
        return "High";
    }
    return unknownText;
}
