#include "QLN_VDArrayController.h"

#include "CmpiArray.h"
#include "CmpiBroker.h"
#include "FixedStateProperties.h"
#include "IdentityHelpers.h"
#include "QLNPhysloc.h"
#include "QLNUtil.h"
#include "VDArrayValues.h"

namespace {

char const* const className = "QLN_VDArrayController";
// The controller reports at most this many encryption states, zero-terminated.
int const encryptionListCapacity = 8;
int const pciSlotKind = 5;

// Unlike the array system, the controller has no "External" wording: a
// controller without a known location is just "Veldra ...".
std::string elementName(VeldraControllerData const& data) {
    physloc_t location = BMC_physloc_NULL;
    std::string prefix;
    if (data.getPhysloc(location) != 0) {
        prefix = "Veldra Unknown ";
    } else if ((location.bytes[0] & 0x0f) == pciSlotKind) {
        prefix = "Veldra in ";
    } else {
        prefix = "Veldra ";
    }
    return prefix + QLN::QLNPhysloc::physlocToHWLocation(location);
}

struct OperationalView {
    unsigned short operational;
    unsigned short health;
    char const* text;
};

OperationalView operationalView(VeldraControllerData const& data) {
    OperationalView unknown{0, 0, "Array controller Unknown"};
    controllerOperationalStatusEnum status;
    if (data.getControllerOperationalStatus(status) != 0) {
        return unknown;
    }
    switch (status) {
    case CONTROLLER_OP_STATUS_OK:
        return {2, 5, "Array controller is operating properly"};
    case CONTROLLER_OP_STATUS_DEGRADED:
        return {3, 10, "Array controller Degraded"};
    case CONTROLLER_OP_STATUS_FAILED:
        return {6, 20, "Array controller Failed"};
    case CONTROLLER_OP_STATUS_UNKNOWN:
    case CONTROLLER_OP_STATUS_NOT_REPORTED:
        return unknown;
    }
    // The hardware may report a value we have no name for.
    return unknown;
}

// Sets the property only when the getter answers; enumerations go out as
// their raw number, narrowed to uint16.
template <typename Value, typename Getter>
void addEnumIfRead(CmpiCpp::CmpiInstance& instance, char const* name,
                   VeldraControllerData const& data, Getter getter) {
    Value value{};
    if ((data.*getter)(value) == 0) {
        instance.addProperty(name, static_cast<unsigned short>(value));
    }
}

template <typename Value, typename Getter>
void addIfRead(CmpiCpp::CmpiInstance& instance, char const* name, VeldraControllerData const& data,
               Getter getter) {
    Value value{};
    if ((data.*getter)(value) == 0) {
        instance.addProperty(name, value);
    }
}

void addCacheSizes(CmpiCpp::CmpiInstance& instance, VeldraControllerData const& data) {
    // The two groups read the total from different getters; both are what
    // the controller family reports for its cache layout.
    if (data.checkSplitCacheSupported()) {
        instance.addProperty("IsSplitCacheSupported", true);
        addIfRead<u32>(instance, "SplitWriteSize", data, &VeldraControllerData::getSplitWriteSize);
        addIfRead<u32>(instance, "SplitReadSize", data, &VeldraControllerData::getSplitReadSize);
        addIfRead<u32>(instance, "CacheSizeTotal", data, &VeldraControllerData::getCacheSizeTotal);
        addEnumIfRead<readCacheStatusEnum>(instance, "ReadCacheStatus", data,
                                           &VeldraControllerData::getReadCacheStatus);
    } else {
        addIfRead<u16>(instance, "CacheReadPercent", data,
                       &VeldraControllerData::getCacheReadPercent);
        addIfRead<u16>(instance, "CacheWritePercent", data,
                       &VeldraControllerData::getCacheWritePercent);
        addIfRead<u32>(instance, "CacheSizeTotal", data,
                       &VeldraControllerData::getCacheSizeInBytes);
    }
}

void addEncryptionStatus(CmpiCpp::CmpiInstance& instance, VeldraControllerData const& data) {
    // Zeroed first, so that a controller that fills fewer entries than the
    // buffer holds still ends its list.
    EncryptionStatusEnum list[encryptionListCapacity] = {};
    if (data.getEncryptionStatus(list) != 0) {
        return;
    }
    int count = 0;
    while (count < encryptionListCapacity && list[count] != 0) {
        ++count;
    }
    CmpiCpp::CmpiBroker broker(QLN::QLNUtil::getBroker());
    // An empty list still goes out as one element 0: clients read element 0.
    CmpiCpp::CmpiArray values = CmpiCpp::makeCmpiArray(broker, count == 0 ? 1 : count, CMPI_uint16);
    for (int i = 0; i < count; ++i) {
        values.setElementAt(static_cast<unsigned int>(i), static_cast<unsigned short>(list[i]));
    }
    if (count == 0) {
        values.setElementAt(0, static_cast<unsigned short>(0));
    }
    instance.addProperty("EncryptionStatus", values);
}

} // namespace

namespace QLN {

QLN_VDArrayController::QLN_VDArrayController(Logger& logger, std::string const& nameSpace,
                                             unsigned int controllerIndex,
                                             VeldraController* controller)
    : ControllerManagedInstance(logger, className, nameSpace, controllerIndex, controller),
      _firstStatus(true) {}

CmpiCpp::CmpiObjectPath QLN_VDArrayController::getPath() const {
    VeldraControllerData data = _lastData();
    return _pathByClassAndKey("Name", getControllerName(data, static_cast<int>(_controllerIndex)));
}

CmpiCpp::CmpiInstance QLN_VDArrayController::getInstance() const {
    CmpiCpp::CmpiBroker broker(QLNUtil::getBroker());
    CmpiCpp::CmpiInstance instance = CmpiCpp::makeCmpiInstance(broker, getPath());
    VeldraControllerData data;
    _controller->getLastVDData(data);
    using D = VeldraControllerData;

    std::string element = elementName(data);
    OperationalView view = operationalView(data);

    instance.addProperty("CreationClassName", className);
    instance.addProperty("ElementName", element);
    instance.addProperty("Name", getControllerName(data, static_cast<int>(_controllerIndex)));
    instance.addProperty("NameFormat", "Other");
    instance.addProperty("OtherIdentifyingInfo", VDArrayValues::strings({element}));
    instance.addProperty("IdentifyingDescriptions",
                         VDArrayValues::strings({"Other Vendor Specific Name"}));

    instance.addProperty("HealthState", view.health);
    instance.addProperty("OperationalStatus", VDArrayValues::uint16s({view.operational}));
    instance.addProperty("StatusDescriptions", VDArrayValues::strings({view.text}));

    FixedStateProperties::enabled(instance);
    instance.addProperty("Dedicated", VDArrayValues::uint16s({0}));

    addEnumIfRead<DPGSupportedTypeEnum>(instance, "DPGSupported", data, &D::getDPGSupportedType);
    addEnumIfRead<rebuildPriorityEnum>(instance, "RebuildPriority", data, &D::getRebuildPriority);
    addEnumIfRead<batteryStatusEnum>(instance, "BatteryStatus", data, &D::getBatteryStatus);
    addEnumIfRead<cacheBoardPresentEnum>(instance, "CacheBoardPresent", data,
                                         &D::getCacheBoardPresent);
    addEnumIfRead<cacheHasBatteryEnum>(instance, "CacheHasBattery", data, &D::getCacheHasBattery);
    addIfRead<u32>(instance, "CacheParityReadErrors", data, &D::getCacheParityReadErrors);
    addIfRead<u32>(instance, "CacheParityWriteErrors", data, &D::getCacheParityWriteErrors);
    addIfRead<std::string>(instance, "CacheSerialNumber", data, &D::getCacheSerialNumber);
    addIfRead<u64>(instance, "ExtendedCacheSizeTotal", data, &D::getExtendedCacheSizeTotal);
    addCacheSizes(instance, data);
    addIfRead<int>(instance, "ControllerTemperature", data, &D::getControllerTemperature);
    addIfRead<int>(instance, "CacheModuleTemperature", data, &D::getCacheModuleTemperature);
    addIfRead<int>(instance, "SuperCapTemperature", data, &D::getSuperCapTemperature);
    // Set again on purpose: the instance keeps one property with the same value.
    addEnumIfRead<rebuildPriorityEnum>(instance, "RebuildPriority", data, &D::getRebuildPriority);
    addEnumIfRead<expandPriorityEnum>(instance, "ExpandPriority", data, &D::getExpandPriority);
    addIfRead<u16>(instance, "NumberOfPorts", data, &D::getNumberOfSASPorts);
    addIfRead<u16>(instance, "NumberOfInternalPorts", data, &D::getNumberOfSASInternalPorts);
    addIfRead<u16>(instance, "NumberOfExternalPorts", data, &D::getNumberOfSASExternalPorts);
    addEnumIfRead<cacheBackupPowerSourceEnum>(instance, "AcceleratorBackupPowerSource", data,
                                              &D::getCacheBackupPowerSource);
    addEnumIfRead<cacheStatusEnum>(instance, "CacheStatus", data, &D::getCacheStatus);
    addEnumIfRead<cacheStateEnum>(instance, "CacheState", data, &D::getCacheState);
    addEnumIfRead<controllerStatusEnum>(instance, "ControllerStatus", data,
                                        &D::getControllerStatus);
    addEnumIfRead<cacheOperationalStatusEnum>(instance, "CacheOperationalStatus", data,
                                              &D::getCacheOperationalStatus);
    addEncryptionStatus(instance, data);
    addEnumIfRead<EncryptSelfTestStatusEnum>(instance, "EncryptSelfTestStatus", data,
                                             &D::getEncryptionSelfTestStatus);
    addEnumIfRead<EncryptCSPNvramStatusEnum>(instance, "EncryptCSPNvramStatus", data,
                                             &D::getEncryptionCSPNvramStatus);
    addEnumIfRead<EncryptCntlrPwdSetStatusEnum>(instance, "EncryptCntlrPwdSetStatus", data,
                                                &D::getEncryptCntlrPwdSetStatus);
    addEnumIfRead<EncryptCryptoOfficerPwdSetStatusEnum>(instance,
                                                        "EncryptCryptoOfficerPwdSetStatus", data,
                                                        &D::getEncryptCryptoOfficerPwdSetStatus);
    addEnumIfRead<EncryptedCntlrPwdAvailStatusEnum>(instance, "EncryptedCntlrPwdAvailStatus", data,
                                                    &D::getEncryptedCntlrPwdAvailStatus);
    addEnumIfRead<EncryptFWLockStatusEnum>(instance, "EncryptFWLockStatus", data,
                                           &D::getEncryptFWLockStatus);
    addEnumIfRead<UnencryptLDCreationPolicyEnum>(instance, "UnencryptedLogicalDrvCreationPolicy",
                                                 data, &D::getUnencryptLDCreationPolicy);
    addEnumIfRead<EncryptLDCreationPolicyEnum>(instance, "EncryptedLogicalDrvCreationPolicy", data,
                                               &D::getEncryptLDCreationPolicy);

    bool hbaSupported = data.checkHBAModeSupported();
    instance.addProperty("IsHBAModeSupported", hbaSupported);
    if (hbaSupported) {
        instance.addProperty("IsHBAModeEnabled", data.checkHBAModeEnabled());
    }
    instance.addProperty("IsSanitizeEraseSupported", data.checkSanitizeEraseSupported());
    return instance;
}

} // namespace QLN
