#include "QLN_VDStorageVolume.h"

#include "CmpiBroker.h"
#include "CmpiStatus.h"
#include "FixedStateProperties.h"
#include "IdentifyArguments.h"
#include "IdentityHelpers.h"
#include "QLNUtil.h"
#include "VDArrayValues.h"
#include "VeldraStorageFunctions.h"

#include <optional>
#include <vector>

namespace {

char const* const className = "QLN_VDStorageVolume";
char const* const systemClassName = "QLN_VDArraySystem";
char const* const notFoundText =
    "getInstance, findLogicalDiskInVector could not find logical based on serial #";
char const* const extendedStatusText = "Logical Disk Extended Status: ";
// The provider's own code for a volume that left the snapshot between
// enumeration and fetch, so a client can tell it from an ordinary miss.
int const logicalDiskGoneCode = 100;
unsigned int const methodDone = 0;
unsigned int const methodFailed = 2;

// What the CIM model says about one status of the library.
struct VolumeHealth {
    unsigned short operational;
    bool withRawStatus; // the raw value rides as a second element
    unsigned short health;
    char const* description;
    bool withExtendedText;
};

bool isFailedWithDetail(u32 status) {
    return status == 4 || status == 0x800E || status == 0x8010;
}

bool isDegraded(u32 status) {
    return (status >= 0x8000 && status <= 0x800D) || status == 0x8011 || status == 0x8012 ||
           (status >= 0x8015 && status <= 0x8018);
}

// First match wins. The failed row comes first on purpose: 0x8010 (key
// missing) is a failure although it sits among the encryption states that
// otherwise count as working.
VolumeHealth healthOf(u32 status) {
    if (isFailedWithDetail(status))
        return {6, true, 25, "Logical Disk has failed.", true};
    if (isDegraded(status))
        return {3, true, 10, "Logical Disk is degraded", true};
    if (status == 2 || status == 0x8013 || status == 0x8014)
        return {2, false, 5, "Logical Disk is operating properly", false};
    if (status == 3)
        return {6, false, 25, "Logical Disk has failed.", false};
    return {0, false, 0, "Logical Disk Unknown", false};
}

// Copies of the data a tolerance keeps; unknown tolerances are not described.
std::optional<unsigned short> dataRedundancyOf(u32 tolerance) {
    if (tolerance == 1 || tolerance == 4 || tolerance == 5 || (tolerance >= 7 && tolerance <= 9))
        return 1;
    if (tolerance == 2 || tolerance == 3 || tolerance == 6 || tolerance == 10 || tolerance == 11)
        return 2;
    return std::nullopt;
}

// Disks that may be lost without losing data.
std::optional<unsigned short> packageRedundancyOf(u32 tolerance) {
    if (tolerance == 1)
        return 0;
    if ((tolerance >= 2 && tolerance <= 6) || tolerance == 10 || tolerance == 11)
        return 1;
    if (tolerance >= 7 && tolerance <= 9)
        return 2;
    return std::nullopt;
}

bool isCachePairMember(u32 volumeType) {
    return volumeType == 2 || volumeType == 3;
}

} // namespace

namespace QLN {

QLN_VDStorageVolume::QLN_VDStorageVolume(Logger& logger, std::string const& nameSpace,
                                         unsigned int controllerIndex,
                                         VeldraLogicalDisk const& logicalDisk,
                                         VeldraController* controller)
    : ControllerManagedInstance(logger, className, nameSpace, controllerIndex, controller),
      _serialNumber(logicalDisk.getSerialNumber()),
      _acceleratorStatus(logicalDisk.getAcceleratorStatus()) {}

std::string QLN_VDStorageVolume::_systemName() const {
    VeldraControllerData data;
    _controller->getLastVDData(data);
    return getControllerName(data, static_cast<int>(_controllerIndex));
}

CmpiCpp::CmpiObjectPath QLN_VDStorageVolume::getPath() const {
    return makeSystemDevicePath(_namespace, className, _systemName(),
                                DeviceKeyOrder::SystemClassFirst, "DeviceID", _serialNumber);
}

CmpiCpp::CmpiInstance QLN_VDStorageVolume::getInstance() const {
    CmpiCpp::CmpiBroker broker(QLNUtil::getBroker());
    CmpiCpp::CmpiObjectPath const path = getPath();
    CmpiCpp::CmpiInstance instance = CmpiCpp::makeCmpiInstance(broker, path);
    // Taken at construction and never refreshed: the accelerator setting of a
    // volume is fixed when it is created.
    instance.addProperty("Accelerator", static_cast<unsigned short>(_acceleratorStatus));

    // The record's place in the snapshot is logged below, so it is found here
    // rather than through the controller's look-up.
    auto const logicals = _controller->shareLastLogicalDisks();
    int const at = findLogicalDiskInVector(_serialNumber, *logicals);
    if (at < 0) {
        _logger.error("%s", notFoundText);
        throw CmpiCpp::CmpiStatus(static_cast<CMPIrc>(logicalDiskGoneCode), notFoundText);
    }
    VeldraLogicalDisk const& logical = (*logicals)[static_cast<size_t>(at)];

    instance.addProperty("SystemCreationClassName", systemClassName);
    instance.addProperty("CreationClassName", className);
    instance.addProperty("SystemName", path.getKey("SystemName"));
    instance.addProperty("DeviceID", _serialNumber);
    instance.addProperty("Name", logical.getSerialNumber());
    instance.addProperty("NameFormat", static_cast<unsigned short>(2));
    instance.addProperty("ConsumableBlocks", static_cast<unsigned long long>(0));
    instance.addProperty("BlockSize", static_cast<unsigned long long>(logical.getBlockSize()));
    instance.addProperty("DeltaReservation", static_cast<unsigned char>(0));
    instance.addProperty("NumberOfBlocks",
                         static_cast<unsigned long long>(logical.getTotalBlocks()));
    instance.addProperty("IsBasedOnUnderlyingRedundancy", false);

    VeldraLogicalToleranceEnum const tolerance = logical.getTolerance();
    instance.addProperty("FaultTolerance", static_cast<unsigned short>(tolerance));
    instance.addProperty("ElementName", "Logical Volume " +
                                            std::to_string(logical.getLogicalVolumeNumber() + 1) +
                                            " (" + logical.toleranceToStr(tolerance) + ")");
    instance.addProperty("NoSinglePointOfFailure", static_cast<u32>(tolerance) >= 2);
    if (auto copies = dataRedundancyOf(tolerance))
        instance.addProperty("DataRedundancy", *copies);
    if (auto spares = packageRedundancyOf(tolerance))
        instance.addProperty("PackageRedundancy", *spares);

    VeldraLogicalDiskStatusEnum const status = logical.getStatus();
    VolumeHealth const health = healthOf(status);
    if (health.withRawStatus) {
        instance.addProperty(
            "OperationalStatus",
            VDArrayValues::uint16s({health.operational, static_cast<unsigned short>(status)}));
    } else {
        instance.addProperty("OperationalStatus", VDArrayValues::uint16s({health.operational}));
    }
    if (health.withExtendedText) {
        instance.addProperty("StatusDescriptions",
                             VDArrayValues::strings(
                                 {health.description,
                                  extendedStatusText + std::string(logical.statusToStr(status))}));
    } else {
        instance.addProperty("StatusDescriptions", VDArrayValues::strings({health.description}));
    }
    instance.addProperty("HealthState", health.health);

    FixedStateProperties::enabled(instance);
    // 11 (not ready) while a member is missing or the volume waits to come up.
    bool const notReady = status == 0x8004 || status == 0x8008 || status == 0x8009;
    instance.addProperty("ExtentStatus",
                         VDArrayValues::uint16s({static_cast<unsigned short>(notReady ? 11 : 2)}));
    std::string const osName = logical.getOSName();
    if (!osName.empty())
        instance.addProperty("OSName", osName);
    instance.addProperty("StripeSize", static_cast<unsigned int>(logical.getStripeSize()));
    instance.addProperty("Deleteable", logical.getDeleteable());
    // A failed read leaves the variable as it was; the library gives no
    // better answer, so its starting value is shown.
    EncryptionLDStatusEnum encryption = LD_ENCRYPTION_NONE;
    logical.getEncryptionStatus(encryption);
    instance.addProperty("EncryptionStatus", static_cast<unsigned short>(encryption));
    instance.addProperty("RapidParityPercentComplete", logical.getRapidParityPercentComplete());
    int const percent = logical.getPercentComplete();
    if (percent > 0)
        instance.addProperty("PercentComplete", static_cast<unsigned short>(percent));
    u32 const volumeType = logical.getLogicalVolumeType();
    instance.addProperty("LogicalVolumeType", static_cast<unsigned short>(volumeType));
    // Only the two halves of a cache pair have a partner and a cache state.
    if (isCachePairMember(volumeType)) {
        instance.addProperty("RelatedLUN", static_cast<unsigned short>(logical.getRelatedLUN()));
        instance.addProperty("CacheVolumeCacheState",
                             static_cast<unsigned short>(logical.getCacheVolumeCacheState()));
    }
    instance.addProperty("SSDLumenPathStatus",
                         static_cast<unsigned short>(logical.getSSDLumenPathStatus()));

    _logger.info("logical volume instance %ld last physicals %d", static_cast<long>(at),
                 static_cast<int>(logical.getLastAllPhysicalDisks().size()));
    return instance;
}

unsigned int QLN_VDStorageVolume::invokeMethod(CmpiCpp::CmpiName const& method,
                                               CmpiCpp::CmpiArgs const& in) {
    std::optional<u32> const duration = IdentifyArguments::duration(method, in, _logger);
    if (!duration)
        return CmpiManagedInstance::methodNotFound;

    std::optional<VeldraLogicalDisk> const logical =
        _controller->findLastLogicalDisk(_serialNumber);
    if (!logical)
        return methodFailed;
    // The current disks, not the snapshot: a disk that moved since the last
    // pass should blink where it is now.
    std::vector<VeldraPhysicalDisk> disks = _controller->getAllPhysicalDisks();
    std::vector<VeldraPhysicalDisk> members = logical->logicalToAllPhysicals(disks);
    int const identified = _controller->identifyPhysicalDisks(members, *duration);
    return identified < 0 ? methodFailed : methodDone;
}

} // namespace QLN
