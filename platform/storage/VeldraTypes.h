#pragma once
// Plain types shared by the storage-access records: integer widths, the
// enumerations the controllers report, and the small fixed records.
//
// The enumerations are unscoped on purpose: callers treat the values as
// numbers (they compare, shift and print them), and the hardware may report a
// value we have no name for, which must pass through untouched.
#include <cstdint>
#include <string>

typedef uint16_t u16;
typedef uint32_t u32;
typedef uint64_t u64;

// ---- controller ----------------------------------------------------------

enum controllerOperationalStatusEnum : u32 {
    CONTROLLER_OP_STATUS_UNKNOWN = 0,
    CONTROLLER_OP_STATUS_OK = 1,
    CONTROLLER_OP_STATUS_DEGRADED = 2,
    CONTROLLER_OP_STATUS_FAILED = 3,
    CONTROLLER_OP_STATUS_NOT_REPORTED = 4,
};

enum controllerStatusEnum : u32 {
    CONTROLLER_STATUS_UNKNOWN = 0,
    CONTROLLER_STATUS_OTHER = 1,
    CONTROLLER_STATUS_OK = 2,
    CONTROLLER_STATUS_FAILED = 3,
};

enum controllerTypeEnum : u32 {
    CONTROLLER_TYPE_UNKNOWN = 0,
    CONTROLLER_TYPE_EMBEDDED = 1,
    CONTROLLER_TYPE_PCI_CARD = 2,
    CONTROLLER_TYPE_EXTERNAL = 3,
};

enum batteryStatusEnum : u32 {
    BATTERY_NOT_PRESENT = 0,
    BATTERY_OK = 1,
    BATTERY_FAILED = 2,
    BATTERY_CHARGING = 3,
};

enum cacheStatusEnum : u32 {
    CACHE_STATUS_NOT_CONFIGURED = 0,
    CACHE_STATUS_OK = 1,
    CACHE_STATUS_TEMPORARILY_DISABLED = 2,
    CACHE_STATUS_PERMANENTLY_DISABLED = 3,
    CACHE_STATUS_FAILED = 4,
};

enum cacheStateEnum : u32 {
    CACHE_STATE_NOT_CONFIGURED = 0,
    CACHE_STATE_ENABLED = 1,
    CACHE_STATE_DISABLED = 2,
    CACHE_STATE_WRITE_THROUGH = 3,
};

enum cacheBoardPresentEnum : u32 {
    CACHE_BOARD_ABSENT = 0,
    CACHE_BOARD_PRESENT = 1,
};

enum cacheHasBatteryEnum : u32 {
    CACHE_BATTERY_ABSENT = 0,
    CACHE_BATTERY_PRESENT = 1,
};

enum cacheBackupPowerSourceEnum : u32 {
    CACHE_BACKUP_NONE = 0,
    CACHE_BACKUP_BATTERY = 1,
    CACHE_BACKUP_CAPACITOR = 2,
};

enum cacheOperationalStatusEnum : u32 {
    CACHE_OP_STATUS_UNKNOWN = 0,
    CACHE_OP_STATUS_OK = 1,
    CACHE_OP_STATUS_DEGRADED = 2,
    CACHE_OP_STATUS_FAILED = 3,
};

enum readCacheStatusEnum : u32 {
    READ_CACHE_DISABLED = 0,
    READ_CACHE_ENABLED = 1,
};

enum rebuildPriorityEnum : u32 {
    REBUILD_PRIORITY_LOW = 0,
    REBUILD_PRIORITY_MEDIUM = 1,
    REBUILD_PRIORITY_HIGH = 2,
    REBUILD_PRIORITY_RAPID = 3,
};

enum expandPriorityEnum : u32 {
    EXPAND_PRIORITY_LOW = 0,
    EXPAND_PRIORITY_MEDIUM = 1,
    EXPAND_PRIORITY_HIGH = 2,
};

enum DPGSupportedTypeEnum : u32 {
    DPG_NOT_SUPPORTED = 0,
    DPG_SUPPORTED = 1,
    DPG_SUPPORTED_ENABLED = 2,
};

enum EncryptionStatusEnum : u32 {
    ENCRYPTION_NOT_CONFIGURED = 0,
    ENCRYPTION_ENABLED = 1,
    ENCRYPTION_DISABLED = 2,
    ENCRYPTION_LOCAL_KEY = 3,
    ENCRYPTION_REMOTE_KEY = 4,
};

enum EncryptSelfTestStatusEnum : u32 {
    SELF_TEST_NOT_RUN = 0,
    SELF_TEST_PASSED = 1,
    SELF_TEST_RUNNING = 2,
    SELF_TEST_FAILED = 3,
};

enum EncryptCSPNvramStatusEnum : u32 {
    CSP_NVRAM_UNKNOWN = 0,
    CSP_NVRAM_OK = 1,
    CSP_NVRAM_UNINITIALIZED = 2,
    CSP_NVRAM_FAILED = 3,
};

enum EncryptFWLockStatusEnum : u32 { FW_UNLOCKED = 0, FW_LOCKED = 1 };
enum EncryptCntlrPwdSetStatusEnum : u32 { CNTLR_PWD_NOT_SET = 0, CNTLR_PWD_SET = 1 };
enum EncryptCryptoOfficerPwdSetStatusEnum : u32 { OFFICER_PWD_NOT_SET = 0, OFFICER_PWD_SET = 1 };
enum EncryptedCntlrPwdAvailStatusEnum : u32 { CNTLR_PWD_MISSING = 0, CNTLR_PWD_AVAILABLE = 1 };
enum EncryptLDCreationPolicyEnum : u32 {
    ENCRYPTED_LD_ALLOWED = 0,
    ENCRYPTED_LD_REQUIRED = 1,
    ENCRYPTED_LD_FORBIDDEN = 2
};
enum UnencryptLDCreationPolicyEnum : u32 { PLAIN_LD_ALLOWED = 0, PLAIN_LD_FORBIDDEN = 1 };

// ---- physical disk -------------------------------------------------------

enum VeldraPhysicalDiskConfigEnum : u32 {
    PD_CONFIG_UNKNOWN = 0,
    PD_CONFIG_UNASSIGNED = 1,
    PD_CONFIG_DATA = 2,
    PD_CONFIG_SPARE = 3,
    PD_CONFIG_PASS_THROUGH = 4,
};

enum VeldraPhysicalDiskStatusEnum : u32 {
    PD_STATUS_UNKNOWN = 0,
    PD_STATUS_OK = 1,
    PD_STATUS_PREDICTIVE_FAILURE = 2,
    PD_STATUS_FAILED = 3,
    PD_STATUS_FAILED_ALL_PATHS = 4,
    PD_STATUS_ERASE_QUEUED = 0x8000,
    PD_STATUS_ERASING = 0x8001,
    PD_STATUS_ERASE_DONE = 0x8002,
    PD_STATUS_ONE_PATH_FAILED = 0x8003,
    PD_STATUS_EXTENDED_UNKNOWN = 0x8004,
    PD_STATUS_REBUILDING = 0x8005,
    PD_STATUS_SSD_WORN_OUT = 0x8006,
    PD_STATUS_NOT_AUTHENTICATED = 0x8007,
};

enum VeldraPhysicalDiskLastFailureReasonEnum : u32 {
    PD_FAILURE_NONE = 0,
    PD_FAILURE_MEDIA_ERRORS = 1,
    PD_FAILURE_TIMEOUT = 2,
    PD_FAILURE_HARDWARE = 3,
    PD_FAILURE_REMOVED = 4,
    PD_FAILURE_PREDICTED = 5,
    PD_FAILURE_OTHER = 6,
};

enum VeldraPhysicalDiskSSDWearStatusEnum : u32 {
    SSD_WEAR_UNKNOWN = 0,
    SSD_WEAR_OK = 1,
    SSD_WEAR_56_DAYS_LEFT = 2,
    SSD_WEAR_2_PERCENT_LEFT = 3,
    SSD_WEAR_5_PERCENT_LEFT = 4,
    SSD_WEAR_WORN_OUT = 5,
};

enum EncryptionPDStatusEnum : u32 {
    PD_ENCRYPTION_NONE = 0,
    PD_ENCRYPTION_CAPABLE = 1,
    PD_ENCRYPTION_ENCRYPTED = 2,
};

// ---- logical disk --------------------------------------------------------

enum VeldraLogicalDiskStatusEnum : u32 {
    LD_STATUS_UNKNOWN = 0,
    LD_STATUS_OK = 2,
    LD_STATUS_FAILED = 3,
    LD_STATUS_FAILED_MEMBERS_LOST = 4,
    LD_STATUS_DEGRADED = 0x8000,
    LD_STATUS_READY_TO_REBUILD = 0x8001,
    LD_STATUS_REBUILDING = 0x8002,
    LD_STATUS_WRONG_DISK_REPLACED = 0x8003,
    LD_STATUS_DISK_NOT_CONNECTED = 0x8004,
    LD_STATUS_OVERHEATING = 0x8005,
    LD_STATUS_OVERHEATED = 0x8006,
    LD_STATUS_EXPANDING = 0x8007,
    LD_STATUS_NOT_YET_AVAILABLE = 0x8008,
    LD_STATUS_WAITING_TO_EXPAND = 0x8009,
    LD_STATUS_ADDRESS_CONFLICT = 0x800A,
    LD_STATUS_EJECTED = 0x800B,
    LD_STATUS_ERASING = 0x800C,
    LD_STATUS_OFFLINE = 0x800D,
    LD_STATUS_FAILED_SPARE_PENDING = 0x800E,
    LD_STATUS_RESERVED = 0x800F,
    LD_STATUS_KEY_MISSING = 0x8010,
    LD_STATUS_ENCRYPTING = 0x8011,
    LD_STATUS_REKEYING = 0x8012,
    LD_STATUS_OK_PLAINTEXT = 0x8013,
    LD_STATUS_OK_ENCRYPTION_PENDING = 0x8014,
    LD_STATUS_TRANSFORMING = 0x8015,
    LD_STATUS_MOVING = 0x8016,
    LD_STATUS_CACHE_ERROR = 0x8017,
    LD_STATUS_CACHE_DEGRADED = 0x8018,
};

enum VeldraLogicalToleranceEnum : u32 {
    LD_TOLERANCE_NONE = 0,
    LD_TOLERANCE_PARITY_SINGLE = 1,
    LD_TOLERANCE_MIRROR = 2,
    LD_TOLERANCE_DISTRIBUTED_PARITY = 3,
    LD_TOLERANCE_STRIPED_PARITY = 4,
    LD_TOLERANCE_DUAL_PARITY = 5,
    LD_TOLERANCE_TRIPLE_MIRROR = 6,
    LD_TOLERANCE_STRIPED_DUAL_PARITY = 7,
    LD_TOLERANCE_STRIPED_TRIPLE_MIRROR = 8,
    LD_TOLERANCE_TRIPLE_MIRROR_SPANNED = 9,
    LD_TOLERANCE_STRIPED_MIRROR = 10,
    LD_TOLERANCE_DUAL_PARITY_SPANNED = 11,
};

enum EncryptionLDStatusEnum : u32 {
    LD_ENCRYPTION_NONE = 0,
    LD_ENCRYPTION_ENCRYPTED = 1,
    LD_ENCRYPTION_LOCKED = 2,
};

// ---- enclosure -----------------------------------------------------------

enum EnclosureStatusTypeEnum : u32 {
    ENCLOSURE_STATUS_UNKNOWN = 0,
    ENCLOSURE_STATUS_OTHER = 1,
    ENCLOSURE_STATUS_OK = 2,
    ENCLOSURE_STATUS_DEGRADED = 3,
    ENCLOSURE_STATUS_FAILED = 6,
};

enum EnclosureFanStatusTypeEnum : u32 {
    ENCLOSURE_FAN_UNKNOWN = 0x8000,
    ENCLOSURE_FAN_OK = 0x8001,
    ENCLOSURE_FAN_DEGRADED = 0x8002,
    ENCLOSURE_FAN_FAILED = 0x8003,
};

enum EnclosurePowerSupplyStatusTypeEnum : u32 {
    ENCLOSURE_PS_UNKNOWN = 0x8004,
    ENCLOSURE_PS_OK = 0x8005,
    ENCLOSURE_PS_DEGRADED = 0x8006,
    ENCLOSURE_PS_FAILED = 0x8007,
};

enum EnclosureTempSensorStatusTypeEnum : u32 {
    ENCLOSURE_TEMP_UNKNOWN = 0x8008,
    ENCLOSURE_TEMP_OK = 0x8009,
    ENCLOSURE_TEMP_WARNING = 0x800A,
    ENCLOSURE_TEMP_CRITICAL = 0x800B,
};

// ---- plain records -------------------------------------------------------

struct VeldraControllerPCIInfo {
    u32 domain = 0;
    uint8_t bus = 0;
    uint8_t device = 0;
    uint8_t function = 0;
    bool operator==(VeldraControllerPCIInfo const&) const = default;
};

// How the host driver addresses the controller. Carried along unchanged.
struct VeldraControllerAddress {
    u32 host = 0;
    u32 channel = 0;
    u32 target = 0;
    u32 lun = 0;
    bool operator==(VeldraControllerAddress const&) const = default;
};

// What a disk counts about itself. All ones in a counter means "not available".
struct VeldraDiskStatistics {
    static constexpr u64 notAvailable = ~u64(0);
    u64 abortedCommands = notAvailable;
    u64 badTargetErrors = notAvailable;
    u64 eccRecoveredReadErrors = notAvailable;
    u64 formatErrors = notAvailable;
    u64 hardReadErrors = notAvailable;
    u64 hardWriteErrors = notAvailable;
    u64 hardwareErrors = notAvailable;
    u64 hotPlugCount = notAvailable;
    u64 mediaFailures = notAvailable;
    u64 notReadyErrors = notAvailable;
    u64 otherTimeOuts = notAvailable;
    u64 scsiBusFaults = notAvailable;
    u64 sectorsRead = notAvailable;
    u64 sectorsWritten = notAvailable;
    u64 seekCount = notAvailable;
    u64 seekErrors = notAvailable;
    u64 spinUpErrors = notAvailable;
    u64 drqTimeOuts = notAvailable;
    u64 retryRecoveredReadErrors = notAvailable;
    u64 retryRecoveredWriteErrors = notAvailable;
    u64 failedReadRecovers = notAvailable;
    u64 failedWriteRecovers = notAvailable;
    u64 serviceHours = notAvailable;
    bool operator==(VeldraDiskStatistics const&) const = default;
};
static_assert(sizeof(VeldraDiskStatistics) == 23 * sizeof(u64),
              "the statistics record holds 23 counters");
