#include "QLN_VDDiskDrive.h"

#include "IdentifyArguments.h"
#include "IdentityHelpers.h"

#include "CmpiBroker.h"
#include "CmpiStatus.h"
#include "DiskStatusRow.h"
#include "FixedStateProperties.h"
#include "PhysicalDiskKey.h"
#include "QLNUtil.h"
#include "VeldraStorageFunctions.h"

namespace {
char const* const className = "QLN_VDDiskDrive";
char const* const arraySystemClass = "QLN_VDArraySystem";
char const* const notFound =
    "getInstance,findPhysicalDiskInVector could not find drive based on serial # or location";
char const* const notFoundForMethod =
    "invokeMethod,findPhysicalDiskInVector could not find drive based on serial # or location";
unsigned int const methodFailed = 2;
u32 const carrierAuthOther = 3;
} // namespace

namespace QLN {

QLN_VDDiskDrive::QLN_VDDiskDrive(Logger& logger, std::string const& nameSpace,
                                 unsigned int controllerIndex, VeldraPhysicalDisk const& disk,
                                 VeldraController* controller)
    : DiskCompanion(logger, nameSpace, className, controllerIndex, disk, controller),
      _paths(disk.getLastAllPhysicalPaths()), _portString(pathsToPortStr(_paths)) {}

CmpiCpp::CmpiObjectPath QLN_VDDiskDrive::getPath() const {
    return makeSystemDevicePath(_namespace, className,
                                PhysicalDiskKey::systemName(_controller, _controllerIndex),
                                DeviceKeyOrder::SystemClassFirst, "DeviceID", _identityTail());
}

CmpiCpp::CmpiInstance QLN_VDDiskDrive::getInstance() const {
    CmpiCpp::CmpiBroker broker(QLNUtil::getBroker());
    // The keys are taken from the path rather than made a second time.
    CmpiCpp::CmpiObjectPath const path = getPath();
    CmpiCpp::CmpiInstance instance = CmpiCpp::makeCmpiInstance(broker, path);
    VeldraPhysicalDisk const disk = _findDisk(notFound);
    bool const carrierAuthentication = _controller->getSupportsLumenCarrierAuthentication();

    instance.addProperty("SystemCreationClassName", arraySystemClass);
    instance.addProperty("CreationClassName", className);
    instance.addProperty("SystemName", path.getKey("SystemName"));
    instance.addProperty("DeviceID", path.getKey("DeviceID"));
    instance.addProperty("Name", _serialNumber);
    instance.addProperty("ElementName", pathsToUserStr(disk.getPaths(), disk.getBay()));

    EncryptionPDStatusEnum encryption = PD_ENCRYPTION_NONE;
    // A failed read leaves the default; the value is shown as it is either way.
    disk.getEncryptionStatus(encryption);
    instance.addProperty("EncryptionStatus", static_cast<unsigned short>(encryption & 0xFFFF));
    bool const sanitize = disk.checkSanitizeEraseSupported();
    instance.addProperty("IsSanitizeEraseSupported", sanitize);
    // The other erase kinds only mean something on a drive that sanitizes.
    if (sanitize) {
        instance.addProperty("IsCryptoScrambleEraseSupported",
                             disk.checkCryptoScrambleEraseSupported());
        instance.addProperty("IsBlockEraseSupported", disk.checkBlockEraseSupported());
        instance.addProperty("IsOverWriteEraseSupported", disk.checkOverWriteEraseSupported());
    }

    DiskStatusRow::of(disk.getStatus(), disk.getSupportsGasGauge(), carrierAuthentication)
        .addTo(instance);
    FixedStateProperties::enabled(instance);

    if (disk.getSupportsGasGauge()) {
        instance.addProperty("SSDTotalPowerOnHours",
                             static_cast<unsigned long long>(disk.getTotalPowerOnHours()));
        // The getter's type is unsigned, but the value is sign-extended as
        // the published property has always been.
        auto const endurance = static_cast<int>(disk.getPercentEnduranceUsed());
        instance.addProperty("SSDPercentageEnduranceUsed",
                             static_cast<unsigned long long>(static_cast<long long>(endurance)));
        // The hardware's life figure is not trusted; the property stays 0.
        (void)disk.getLifeRemaining();
        instance.addProperty("SSDLifeRemaining", static_cast<unsigned long long>(0));
        instance.addProperty("SSDWearStatus", static_cast<unsigned short>(disk.getSSDWearStatus()));
    }
    instance.addProperty("TotalPowerOnHours",
                         static_cast<unsigned long long>(disk.getTotalPowerOnHours()));
    instance.addProperty("DriveConfiguration",
                         static_cast<unsigned short>(disk.getConfiguration()));
    instance.addProperty("DriveHasMNPData", disk.hasMNPData());
    instance.addProperty("DriveInterface", static_cast<unsigned short>(disk.getInterface()));
    instance.addProperty("DrivePlacement", static_cast<unsigned short>(disk.getPlacement()));
    instance.addProperty("DriveRotationalSpeed",
                         static_cast<unsigned int>(disk.getDriveRotationalSpeed()));
    instance.addProperty("NegotiatedDataWidth",
                         static_cast<unsigned int>(disk.getNegotiatedWidth()));
    instance.addProperty("NegotiatedSpeed",
                         static_cast<unsigned long long>(disk.getNegotiatedSpeed()));
    if (carrierAuthentication) {
        u32 const auth = disk.getLumenCarrierAuthStatus();
        instance.addProperty("LumenDriveCarrierAuthStatus", static_cast<unsigned short>(auth));
        if (static_cast<unsigned short>(auth) == carrierAuthOther)
            instance.addProperty("OtherLumenDriveCarrierAuthStatus",
                                 disk.getLumenCarrierOtherAuthStatus());
    }
    return instance;
}

unsigned int QLN_VDDiskDrive::invokeMethod(CmpiCpp::CmpiName const& method,
                                           CmpiCpp::CmpiArgs const& in) {
    std::optional<u32> const duration = IdentifyArguments::duration(method, in, _logger);
    if (!duration)
        return CmpiManagedInstance::methodNotFound;
    // A disk gone from the snapshot ends as a missing argument does: "unknown",
    // logged under the same words.
    try {
        VeldraPhysicalDisk const disk = _findDisk(notFoundForMethod);
        std::vector<VeldraPhysicalDisk> const one{disk};
        int const identified = _controller->identifyPhysicalDisks(one, *duration);
        return identified >= 0 ? 0 : methodFailed;
    } catch (...) {
        _logger.warn("%s", IdentifyArguments::failureText);
        return CmpiManagedInstance::methodNotFound;
    }
}

void QLN_VDDiskDrive::manageDynamic(bool indicationsEnabled) {
    _logger.info("manageDynamic()");
    if (indicationsEnabled)
        _logger.info("indications enabled");
}

} // namespace QLN
