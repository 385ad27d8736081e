#pragma once
// The immutable facts behind the storage-access records. A record holds a
// shared pointer to one of these, so copying a record (which callers do on
// every snapshot read) costs a reference count, while the record still
// behaves as a deep copy: nobody can change the facts once they are built.
//
// Each list below is the one place that names a field: the scenario reader,
// the change detection and the command-line tool all walk the same list.
// X(type, member, default value)
#include "VeldraPhysicalPath.h"
#include "VeldraTypes.h"

#include <array>
#include <map>
#include <set>
#include <string>
#include <vector>

#define VELDRA_CONTROLLER_FIELDS(X)                                                                \
    X(std::string, serialNumber, "")                                                               \
    X(std::string, model, "")                                                                      \
    X(std::string, manufacturer, "")                                                               \
    X(std::string, fwVersion, "")                                                                  \
    X(std::string, cacheSerialNumber, "")                                                          \
    X(std::string, driverName, "")                                                                 \
    X(std::string, driverVersion, "")                                                              \
    X(std::vector<std::string>, ports, {})                                                         \
    X(int, pciSlotNumber, 0)                                                                       \
    X(int, controllerTemperature, 40)                                                              \
    X(int, cacheModuleTemperature, 35)                                                             \
    X(int, superCapTemperature, 30)                                                                \
    X(u32, cacheSizeInBytes, 0)                                                                    \
    X(u32, cacheSizeTotal, 0)                                                                      \
    X(u32, splitReadSize, 0)                                                                       \
    X(u32, splitWriteSize, 0)                                                                      \
    X(u32, cacheParityReadErrors, 0)                                                               \
    X(u32, cacheParityWriteErrors, 0)                                                              \
    X(u64, extendedCacheSizeTotal, 0)                                                              \
    X(u16, cacheReadPercent, 10)                                                                   \
    X(u16, cacheWritePercent, 90)                                                                  \
    X(u16, numberOfSASPorts, 2)                                                                    \
    X(u16, numberOfSASInternalPorts, 2)                                                            \
    X(u16, numberOfSASExternalPorts, 0)                                                            \
    X(u16, numberOfSCSIBuses, 1)                                                                   \
    X(u32, controllerStatus, CONTROLLER_STATUS_OK)                                                 \
    X(u32, operationalStatus, CONTROLLER_OP_STATUS_OK)                                             \
    X(u32, controllerType, CONTROLLER_TYPE_PCI_CARD)                                               \
    X(u32, batteryStatus, BATTERY_OK)                                                              \
    X(u32, cacheStatus, CACHE_STATUS_OK)                                                           \
    X(u32, cacheState, CACHE_STATE_ENABLED)                                                        \
    X(u32, cacheBoardPresent, CACHE_BOARD_PRESENT)                                                 \
    X(u32, cacheHasBattery, CACHE_BATTERY_PRESENT)                                                 \
    X(u32, cacheBackupPowerSource, CACHE_BACKUP_BATTERY)                                           \
    X(u32, cacheOperationalStatus, CACHE_OP_STATUS_OK)                                             \
    X(u32, readCacheStatus, READ_CACHE_ENABLED)                                                    \
    X(u32, rebuildPriority, REBUILD_PRIORITY_MEDIUM)                                               \
    X(u32, expandPriority, EXPAND_PRIORITY_MEDIUM)                                                 \
    X(u32, dpgSupportedType, DPG_NOT_SUPPORTED)                                                    \
    X(u32, encryptionStatus, ENCRYPTION_NOT_CONFIGURED)                                            \
    X(u32, encryptionSelfTestStatus, SELF_TEST_NOT_RUN)                                            \
    X(u32, encryptionCSPNvramStatus, CSP_NVRAM_OK)                                                 \
    X(u32, encryptFWLockStatus, FW_UNLOCKED)                                                       \
    X(u32, encryptCntlrPwdSetStatus, CNTLR_PWD_NOT_SET)                                            \
    X(u32, encryptCryptoOfficerPwdSetStatus, OFFICER_PWD_NOT_SET)                                  \
    X(u32, encryptedCntlrPwdAvailStatus, CNTLR_PWD_MISSING)                                        \
    X(u32, encryptLDCreationPolicy, ENCRYPTED_LD_ALLOWED)                                          \
    X(u32, unencryptLDCreationPolicy, PLAIN_LD_ALLOWED)                                            \
    X(bool, hbaModeSupported, false)                                                               \
    X(bool, hbaModeEnabled, false)                                                                 \
    X(bool, sanitizeEraseSupported, false)                                                         \
    X(bool, splitCacheSupported, false)                                                            \
    X(bool, supportsLumenCarrierAuthentication, false)

#define VELDRA_PHYSICAL_DISK_FIELDS(X)                                                             \
    X(u32, id, 0)                                                                                  \
    X(std::string, serialNumber, "")                                                               \
    X(std::string, model, "")                                                                      \
    X(std::string, manufacturer, "")                                                               \
    X(std::string, firmwareRevision, "")                                                           \
    X(int, box, 0)                                                                                 \
    X(int, bay, 0)                                                                                 \
    X(int, enclosureBoxNumber, 0)                                                                  \
    X(std::string, port, "")                                                                       \
    X(u32, configuration, PD_CONFIG_UNASSIGNED)                                                    \
    X(u32, status, PD_STATUS_OK)                                                                   \
    X(u32, lastFailureReason, PD_FAILURE_NONE)                                                     \
    X(u32, ssdWearStatus, SSD_WEAR_OK)                                                             \
    X(u32, encryptionStatus, PD_ENCRYPTION_NONE)                                                   \
    X(u32, blockSize, 512)                                                                         \
    X(u64, totalBlocks, 0)                                                                         \
    X(u64, remainingBlocks, 0)                                                                     \
    X(u64, totalPowerOnHours, 0)                                                                   \
    X(u32, rotationalSpeed, 0)                                                                     \
    X(u32, interface, 0)                                                                           \
    X(u32, placement, 0)                                                                           \
    X(u32, lifeRemaining, 100)                                                                     \
    X(u32, percentEnduranceUsed, 0)                                                                \
    X(u32, negotiatedWidth, 1)                                                                     \
    X(u64, negotiatedSpeed, 12000)                                                                 \
    X(bool, activeSpare, false)                                                                    \
    X(bool, hotSwappable, true)                                                                    \
    X(bool, gasGauge, false)                                                                       \
    X(bool, mnpData, false)                                                                        \
    X(bool, blockEraseSupported, false)                                                            \
    X(bool, overWriteEraseSupported, true)                                                         \
    X(bool, sanitizeEraseSupported, false)                                                         \
    X(bool, cryptoScrambleEraseSupported, false)                                                   \
    X(u32, carrierAuthStatus, 0)                                                                   \
    X(std::string, carrierOtherAuthStatus, "")                                                     \
    X(int, carrierAppFWRev, -1)                                                                    \
    X(int, carrierBootLoaderFWRev, -1)

#define VELDRA_LOGICAL_DISK_FIELDS(X)                                                              \
    X(u32, number, 0)                                                                              \
    X(std::string, serialNumber, "")                                                               \
    X(std::string, driveLabel, "")                                                                 \
    X(std::string, osName, "")                                                                     \
    X(u32, volumeType, 0)                                                                          \
    X(u32, status, LD_STATUS_OK)                                                                   \
    X(u32, tolerance, LD_TOLERANCE_NONE)                                                           \
    X(u32, blockSize, 512)                                                                         \
    X(u64, totalBlocks, 0)                                                                         \
    X(u64, stripeSize, 262144)                                                                     \
    X(u64, consumedPhysicalBytes, 0)                                                               \
    X(int, percentComplete, 0)                                                                     \
    X(float, rapidParityPercentComplete, 0)                                                        \
    X(u32, encryptionStatus, LD_ENCRYPTION_NONE)                                                   \
    X(u32, acceleratorStatus, 0)                                                                   \
    X(u32, ssdLumenPathStatus, 0)                                                                  \
    X(u32, cacheVolumeCacheState, 0)                                                               \
    X(u32, relatedLUN, 0)                                                                          \
    X(bool, deleteable, true)                                                                      \
    X(std::vector<u32>, dataDisks, {})                                                             \
    X(std::vector<u32>, spareDisks, {})

#define VELDRA_ENCLOSURE_FIELDS(X)                                                                 \
    X(u32, enclosureBoxNumber, 0)                                                                  \
    X(int, boxNumber, 0)                                                                           \
    X(std::string, serialNumber, "")                                                               \
    X(std::string, model, "")                                                                      \
    X(std::string, manufacturer, "")                                                               \
    X(std::string, fwVersion, "")                                                                  \
    X(int, driveBays, 0)                                                                           \
    X(int, backplaneSpeed, 0)                                                                      \
    X(int, duplexLocation, 0)                                                                      \
    X(u32, fanStatus, ENCLOSURE_FAN_OK)                                                            \
    X(u32, powerSupplyStatus, ENCLOSURE_PS_OK)                                                     \
    X(u32, tempSensorStatus, ENCLOSURE_TEMP_OK)

#define VELDRA_DECLARE_FIELD(type, member, init) type member = init;

struct VeldraControllerInfo {
    VELDRA_CONTROLLER_FIELDS(VELDRA_DECLARE_FIELD)
    VeldraControllerPCIInfo pciInfo;
    std::array<uint8_t, 8> physloc{}; // location record bytes, see physloc.h
    VeldraControllerAddress address;
    std::set<std::string> fail; // names of the operations told to fail
    std::set<std::string>
        raise; // names of the operations told to throw, as a broken driver call might
    bool operator==(VeldraControllerInfo const&) const = default;
};

struct VeldraPhysicalDiskInfo {
    VELDRA_PHYSICAL_DISK_FIELDS(VELDRA_DECLARE_FIELD)
    std::vector<VeldraPhysicalPath> paths;
    VeldraDiskStatistics statistics;
    std::set<std::string> fail;
    bool operator==(VeldraPhysicalDiskInfo const&) const = default;
};

struct VeldraLogicalDiskInfo {
    VELDRA_LOGICAL_DISK_FIELDS(VELDRA_DECLARE_FIELD)
    bool spareAvailableSet = false; // false: derived from the spare list
    bool spareAvailable = false;
    std::map<u32, u32> replaced; // spare disk id -> id of the disk it stands in for
    std::set<std::string> fail;
    bool operator==(VeldraLogicalDiskInfo const&) const = default;
};

struct VeldraEnclosureInfo {
    VELDRA_ENCLOSURE_FIELDS(VELDRA_DECLARE_FIELD)
    bool overallStatusSet = false; // false: derived from the three subsystems
    u32 overallStatus = ENCLOSURE_STATUS_OK;
    std::vector<VeldraPhysicalPath> paths;
    std::set<std::string> fail;
    bool operator==(VeldraEnclosureInfo const&) const = default;
};
