#include "QLN_VDArrayController.h"

#include "CmpiArray.h"
#include "CmpiBroker.h"
#include "FixedStateProperties.h"
#include "IdentityHelpers.h"
#include "QLNPhysloc.h"
#include "QLNUtil.h"
#include "VDArrayValues.h"
#include "VeldraStorageFunctions.h"

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

namespace {

// A device counts as changed when something differs and a counterpart was found;
// without one it is new, and its status is not compared.
bool changed(u32 mask) {
    return mask != 0 && (mask & 0x1) == 0;
}

std::string serialOf(VeldraControllerData const& data) {
    std::string serial;
    if (data.getControllerSerialNumber(serial) != 0) {
        serial.clear();
    }
    return serial;
}

} // namespace

namespace QLN {

void QLN_VDArrayController::manageDynamic(
    bool indicationsEnabled, CmpiCpp::CmpiContext const& context,
    std::vector<VeldraEnclosure>& currentEnclosures, std::vector<VeldraEnclosure>& newEnclosures,
    std::vector<VeldraEnclosure>& removedEnclosures,
    std::vector<VeldraEnclosure>& pathChangeEnclosures,
    std::vector<VeldraLogicalDisk>& currentLogicals, std::vector<VeldraLogicalDisk>& newLogicals,
    std::vector<VeldraLogicalDisk>& removedLogicals,
    std::vector<VeldraPhysicalDisk>& currentPhysicals,
    std::vector<VeldraPhysicalDisk>& newPhysicals,
    std::vector<VeldraPhysicalDisk>& removedPhysicals,
    std::vector<VeldraPhysicalDisk>& configChangedPhysicals,
    std::vector<VeldraPhysicalDisk>& spareStateChangePhysicals,
    std::vector<VeldraPhysicalDisk>& pathChangePhysicals) {
    _logger.info("manageDynamic()");
    if (indicationsEnabled) {
        _logger.info("indications enabled");
    }
    newEnclosures.clear();
    removedEnclosures.clear();
    currentEnclosures.clear();
    newLogicals.clear();
    removedLogicals.clear();
    currentLogicals.clear();
    newPhysicals.clear();
    removedPhysicals.clear();
    currentPhysicals.clear();
    configChangedPhysicals.clear();
    spareStateChangePhysicals.clear();

    DeviceEvents events(_logger, getControllerIndex(), context);
    if (_firstStatus) {
        _firstStatusPass(events, indicationsEnabled);
    }
    _logger.info("after first_status check");
    _controllerDataStage(events, indicationsEnabled);
    _logger.info("after controller check");

    VeldraController* controller = getController();
    u32 const count = controller->getDiskVectorCount();
    if (controller->getConsumedDiskVectorCount() == count) {
        currentEnclosures = controller->getLastAllEnclosures();
        currentPhysicals = controller->getLastAllPhysicalDisks();
        controller->getLastLogicalDisks(currentLogicals);
        _logger.info("return manageDynamic");
        return;
    }
    _logger.info("Disk vector count changed: Old: %d New: %d",
                 static_cast<int>(controller->getConsumedDiskVectorCount()),
                 static_cast<int>(count));
    std::string const serial = serialOf(_lastData());
    _enclosurePass(events, indicationsEnabled, serial, currentEnclosures, newEnclosures,
                   removedEnclosures, pathChangeEnclosures);
    _physicalPass(events, indicationsEnabled, serial, currentPhysicals, newPhysicals,
                  removedPhysicals, configChangedPhysicals, spareStateChangePhysicals,
                  pathChangePhysicals);
    _logicalPass(events, indicationsEnabled, serial, currentPhysicals, currentLogicals, newLogicals,
                 removedLogicals);
    // Written only after all three lists are stored: a pass that throws half
    // way sees the counter moved again and compares once more.
    controller->setConsumedDiskVectorCount(count);
    for (std::size_t i = 0; i < currentLogicals.size(); ++i) {
        _logger.info("VD %s Logical Disk %d last physicals end: %d", serial.c_str(),
                     static_cast<int>(i),
                     static_cast<int>(currentLogicals[i].getLastAllPhysicalDisks().size()));
    }
    _logger.info("return manageDynamic");
}

// Works on the stored snapshots, which the graph was built from, so that
// what was already bad before the first pass is told once. Cleared first:
// a survey that throws is not repeated.
void QLN_VDArrayController::_firstStatusPass(DeviceEvents& events, bool indicationsEnabled) {
    _firstStatus = false;
    VeldraControllerData const data = _lastData();
    int const controllerIndex = static_cast<int>(getControllerIndex());
    controllerOperationalStatusEnum operational{};
    data.getControllerOperationalStatus(operational);
    std::string const controllerPath = getPath().str();
    _logger.info("ControllerPath: %s", controllerPath.c_str());

    if (indicationsEnabled && operational != 1 && operational != 4) {
        _logger.info("send controller %s operational status not OK", serialOf(data).c_str());
        controllerStatusEnum state{};
        data.getControllerStatus(state);
        if (state == 3) {
            events.sendControllerState(2, data, "ControllerStateChange", controllerPath);
        }
        cacheStatusEnum cache{};
        data.getCacheStatus(cache);
        if (cache >= 2 && cache <= 4) {
            events.sendController(static_cast<int>(cache) + 8, data, "ControllerCacheStateChange",
                                  controllerPath);
        }
        batteryStatusEnum battery{};
        data.getBatteryStatus(battery);
        if (battery == 2 || battery == 3) {
            events.sendController(battery == 2 ? 8 : 7, data, "ControllerBatteryStateChange",
                                  controllerPath);
        }
        EncryptSelfTestStatusEnum selfTest{};
        data.getEncryptionSelfTestStatus(selfTest);
        if (selfTest == 3) {
            events.sendController(14, data, "ControllerEncryptionSelfTest", controllerPath);
        }
        EncryptCSPNvramStatusEnum nvram{};
        data.getEncryptionCSPNvramStatus(nvram);
        if (nvram == 3) {
            events.sendController(16, data, "ControllerEncryptionCSPNVRAM", controllerPath);
        }
    }

    VeldraController* controller = getController();
    _logger.info("before enclosure check");
    std::vector<VeldraEnclosure> const enclosures = controller->getLastAllEnclosures();
    for (std::size_t i = 0; i < enclosures.size(); ++i) {
        VeldraEnclosure const& enclosure = enclosures[i];
        _logger.info("Enclosure %d path: %s", static_cast<int>(i),
                     makeStorageEnclosurePath(controllerIndex, enclosure).str().c_str());
        EnclosureStatusTypeEnum const overall = enclosure.getOverallStatus();
        if (overall == 2 || !indicationsEnabled) {
            continue;
        }
        _logger.info("send VD Enclosure %d Status bad indication %s (%d)", static_cast<int>(i),
                     enclosure.OverallStatusToStr(overall), static_cast<int>(overall));
        std::string const pathText = makeEnclosureProcessorPath(controllerIndex, enclosure).str();
        if (int const event = DeviceEvents::fanEvent(enclosure.getFanStatus(), true); event > 0) {
            events.sendEnclosure(event, enclosure, data, pathText);
        }
        if (int const event =
                DeviceEvents::powerSupplyEvent(enclosure.getPowerSupplyStatus(), true);
            event > 0) {
            events.sendEnclosure(event, enclosure, data, pathText);
        }
        if (int const event = DeviceEvents::temperatureEvent(enclosure.getTempSensorStatus(), true);
            event > 0) {
            events.sendEnclosureTemperature(event, enclosure, pathText);
        }
    }

    _logger.info("before logical disk check");
    std::vector<VeldraLogicalDisk> logicals;
    controller->getLastLogicalDisks(logicals);
    for (std::size_t i = 0; i < logicals.size(); ++i) {
        VeldraLogicalDisk const& logical = logicals[i];
        std::string const path = makeStorageVolumePath(data, controllerIndex, logical).str();
        _logger.info("Logical disk %d path: %s", static_cast<int>(i), path.c_str());
        if (logical.getStatus() == 2 || !indicationsEnabled) {
            continue;
        }
        _logger.info("send VD Logical %s Disk Status bad indication %s (%d)",
                     logical.getSerialNumber().c_str(), logical.statusToStr(logical.getStatus()),
                     static_cast<int>(logical.getStatus()));
        DeviceEvents::VolumeEvent const what = DeviceEvents::volumeEvent(logical.getStatus());
        if (what.event > 0) {
            // Always the first volume's path: the alert has carried it so.
            events.sendVolume(logical, what, {}, "LogicalVolumeStateChange",
                              makeStorageVolumePath(data, controllerIndex, logicals.front()).str());
        }
    }

    _logger.info("before physical disk check");
    std::vector<VeldraPhysicalDisk> const physicals = controller->getLastAllPhysicalDisks();
    for (std::size_t i = 0; i < physicals.size(); ++i) {
        VeldraPhysicalDisk const& disk = physicals[i];
        std::string const path = makeDiskDrivePath(data, controllerIndex, disk).str();
        _logger.info("Physical disk %d path: %s", static_cast<int>(i), path.c_str());
        if (!indicationsEnabled) {
            continue;
        }
        VeldraPhysicalDiskStatusEnum const status = disk.getStatus();
        if (status != 1) {
            _logger.info("VD Physical Disk %s Status not OK: %s (%d)",
                         disk.getSerialNumber().c_str(), disk.diskStatusToStr(status),
                         static_cast<int>(status));
            if (int const event = DeviceEvents::diskStatusEvent(status, true); event > 0) {
                events.sendDisk(event, 1, static_cast<std::uint16_t>(status), disk, data,
                                "DiskDriveStatusChange", path);
            }
        }
        VeldraPhysicalDiskSSDWearStatusEnum const wear = disk.getSSDWearStatus();
        if (wear != 1 && disk.getSupportsGasGauge()) {
            _logger.info("VD Physical Disk %s SSD Wearout Status not OK: %s (%d)",
                         disk.getSerialNumber().c_str(), disk.SSDWearStatusToStr(wear),
                         static_cast<int>(wear));
            if (int const event = DeviceEvents::wearEvent(wear); event > 0) {
                events.sendDisk(event, 1, static_cast<std::uint16_t>(wear), disk, data,
                                "DiskDriveSSDWearOutStatusChange", path);
            }
        }
    }
}

namespace {

template <typename Enum>
Enum read(VeldraControllerData const& data, int (VeldraControllerData::*getter)(Enum&) const) {
    Enum value{};
    (data.*getter)(value);
    return value;
}

} // namespace

void QLN_VDArrayController::_controllerDataStage(DeviceEvents& events, bool indicationsEnabled) {
    VeldraController* controller = getController();
    VeldraControllerData const last = _lastData();
    std::string const serial = serialOf(last);
    char const* const s = serial.c_str();
    u32 const count = controller->getControllerDataCount();
    if (controller->getConsumedControllerDataCount() == count) {
        return;
    }
    _logger.info("Controller Data count changed: Old: %d New: %d",
                 static_cast<int>(controller->getConsumedControllerDataCount()),
                 static_cast<int>(count));
    VeldraControllerData const fresh = controller->getVDData();
    u32 const mask = fresh.compare(last);
    if (mask != 0) {
        _logger.info("Controller data changed");
        std::string const pathText = getPath().str();
        if (mask & VeldraControllerData::changeUnexpected) {
            _logger.info("Unexpected VD %s Data Changed ChangeMask: 0x%x", s, mask);
        }
        if (mask & VeldraControllerData::changeOperationalStatus) {
            auto const before = read(last, &VeldraControllerData::getControllerOperationalStatus);
            auto const after = read(fresh, &VeldraControllerData::getControllerOperationalStatus);
            _logger.info("VD %s Data Op Status Change Old: %s (%d), New: %s (%d)", s,
                         last.operationalStatusToStr(before), static_cast<int>(before),
                         fresh.operationalStatusToStr(after), static_cast<int>(after));
            int const event = after == 1 ? 1 : after == 3 ? 2 : 0;
            if (before != after && indicationsEnabled && event > 0) {
                _logger.info("send controller operational status changed indication");
                events.sendControllerState(event, fresh, "ControllerStateChange", pathText);
            }
        }
        auto textLine = [&](u32 bit, char const* format,
                            int (VeldraControllerData::*getter)(std::string&) const) {
            if (mask & bit) {
                std::string before;
                std::string after;
                (last.*getter)(before);
                (fresh.*getter)(after);
                _logger.info(format, s, before.c_str(), after.c_str());
            }
        };
        textLine(VeldraControllerData::changeFirmware, "VD %s Data FW Change Old: %s, New: %s",
                 &VeldraControllerData::getFWVersion);
        textLine(VeldraControllerData::changeManufacturer, "VD %s Data Mfg Change Old: %s, New: %s",
                 &VeldraControllerData::getManufacturer);
        textLine(VeldraControllerData::changeModel, "VD %s Data Model Change Old: %s, New: %s",
                 &VeldraControllerData::getModel);
        // Battery, cache and encryption go out whether or not indications
        // were switched on: the trap is their main reader.
        if (mask & VeldraControllerData::changeBatteryStatus) {
            auto before = read(last, &VeldraControllerData::getBatteryStatus);
            auto after = read(fresh, &VeldraControllerData::getBatteryStatus);
            _logger.info("VD %s Data Battery Status Change Old: %s (%d), New: %s (%d)", s,
                         last.batteryStatusToStr(before), static_cast<int>(before),
                         fresh.batteryStatusToStr(after), static_cast<int>(after));
            int const event = after == 1 ? 6 : after == 2 ? 8 : after == 3 ? 7 : 0;
            if (event > 0) {
                events.sendController(event, fresh, "ControllerBatteryStateChange", pathText);
            }
        }
        if (mask & VeldraControllerData::changeCacheStatusOrSCSIBuses) {
            auto before = read(last, &VeldraControllerData::getCacheStatus);
            auto after = read(fresh, &VeldraControllerData::getCacheStatus);
            _logger.info("VD %s Data Cache Status Change Old: %s (%d), New: %s (%d)", s,
                         last.cacheStatusToStr(before), static_cast<int>(before),
                         fresh.cacheStatusToStr(after), static_cast<int>(after));
            if (after >= 1 && after <= 4) {
                events.sendController(static_cast<int>(after) + 8, fresh,
                                      "ControllerCacheStateChange", pathText);
            }
        }
        if (mask & VeldraControllerData::changeEncryptionSelfTest) {
            auto before = read(last, &VeldraControllerData::getEncryptionSelfTestStatus);
            auto after = read(fresh, &VeldraControllerData::getEncryptionSelfTestStatus);
            _logger.info("VD %s Data Encrypt Self Test Status Change Old: %d, New: %d", s,
                         static_cast<int>(before), static_cast<int>(after));
            if (after == 3) {
                events.sendController(14, fresh, "ControllerEncryptionSelfTest", pathText);
            }
        }
        if (mask & VeldraControllerData::changeEncryptionCSPNvram) {
            auto before = read(last, &VeldraControllerData::getEncryptionCSPNvramStatus);
            auto after = read(fresh, &VeldraControllerData::getEncryptionCSPNvramStatus);
            _logger.info("VD %s Data Encrypt CSPNvram Status Change Old: %d, New: %d", s,
                         static_cast<int>(before), static_cast<int>(after));
            int const event = after == 1 ? 15 : after == 3 ? 16 : 0;
            if (event > 0) {
                events.sendController(event, fresh, "ControllerEncryptionCSPNVRAM", pathText);
            }
        }
    }
    controller->setConsumedControllerDataCount(count);
    controller->setLastVDData(fresh);
}

void QLN_VDArrayController::_enclosurePass(DeviceEvents& events, bool indicationsEnabled,
                                           std::string const& serial,
                                           std::vector<VeldraEnclosure>& current,
                                           std::vector<VeldraEnclosure>& added,
                                           std::vector<VeldraEnclosure>& removed,
                                           std::vector<VeldraEnclosure>& pathChanged) {
    VeldraController* controller = getController();
    std::vector<VeldraEnclosure> old = controller->getLastAllEnclosures();
    current = controller->getAllEnclosures();
    for (VeldraEnclosure& enclosure : current) {
        std::vector<VeldraPhysicalPath> paths = enclosure.getPaths();
        enclosure.setLastAllPhysicalPaths(paths);
    }
    added = findNewVDEnclosures(old, current);
    removed = findRemovedVDEnclosures(old, current);
    for (VeldraEnclosure const& enclosure : removed) {
        _logger.info("VD %s Removed Enclosure : %s", serial.c_str(),
                     enclosure.getSerialNumber().c_str());
    }
    for (VeldraEnclosure const& enclosure : added) {
        _logger.info("VD %s Added Enclosure: %s", serial.c_str(),
                     enclosure.getSerialNumber().c_str());
    }
    VeldraControllerData const lastData = _lastData();
    int const controllerIndex = static_cast<int>(getControllerIndex());
    for (std::size_t at = 0; at < current.size(); ++at) {
        VeldraEnclosure const& enclosure = current[at];
        u32 index = 0;
        u32 const mask = enclosure.compare(old, index);
        if (!changed(mask)) {
            continue;
        }
        VeldraEnclosure const& before = old[index];
        // The path of the old record at this position, not of the match:
        // kept as the alerts have always carried it.
        std::string const pathText =
            at < old.size() ? makeEnclosureProcessorPath(controllerIndex, old[at]).str()
                            : std::string();
        _logger.info("VD %s Changed Enclosure : %s", serial.c_str(),
                     enclosure.getSerialNumber().c_str());
        if (mask & VeldraEnclosure::changeBoxNumber) {
            _logger.info("VD Enclosure Box Change Old: %d, New: %d", before.getBoxNumber(),
                         enclosure.getBoxNumber());
        }
        if (mask & VeldraEnclosure::changeEnclosureBoxNumber) {
            _logger.info("VD Enclosure Box Index Change Old: %d, New: %d",
                         static_cast<int>(before.getEnclosureBoxNumber()),
                         static_cast<int>(enclosure.getEnclosureBoxNumber()));
        }
        if (mask & VeldraEnclosure::changePaths) {
            _logger.info("VD Enclosure Path Change Old: %s, New: %s",
                         pathsToUserStr(before.getLastAllPhysicalPaths(), -1).c_str(),
                         pathsToUserStr(enclosure.getLastAllPhysicalPaths(), -1).c_str());
            pathChanged.push_back(enclosure);
        }
        if (mask & VeldraEnclosure::changeFanStatus) {
            _logger.info("VD Enclosure Fan Status Change Old: %s (%d), New: %s (%d)",
                         before.FanStatusToStr(before.getFanStatus()),
                         static_cast<int>(before.getFanStatus()),
                         enclosure.FanStatusToStr(enclosure.getFanStatus()),
                         static_cast<int>(enclosure.getFanStatus()));
            int const event = DeviceEvents::fanEvent(enclosure.getFanStatus(), false);
            if (indicationsEnabled && event > 0) {
                events.sendEnclosure(event, enclosure, lastData, pathText);
            }
        }
        if (mask & VeldraEnclosure::changePowerSupplyStatus) {
            _logger.info("VD Enclosure Power Supply Status Change Old: %s (%d), New: %s (%d)",
                         before.PowerSupplyStatusToStr(before.getPowerSupplyStatus()),
                         static_cast<int>(before.getPowerSupplyStatus()),
                         enclosure.PowerSupplyStatusToStr(enclosure.getPowerSupplyStatus()),
                         static_cast<int>(enclosure.getPowerSupplyStatus()));
            int const event =
                DeviceEvents::powerSupplyEvent(enclosure.getPowerSupplyStatus(), false);
            if (indicationsEnabled && event > 0) {
                events.sendEnclosure(event, enclosure, lastData, pathText);
            }
        }
        if (mask & VeldraEnclosure::changeTempSensorStatus) {
            _logger.info("VD Enclosure Temp Sensor Status Change Old: %s (%d), New: %s (%d)",
                         before.TempSensorStatusToStr(before.getTempSensorStatus()),
                         static_cast<int>(before.getTempSensorStatus()),
                         enclosure.TempSensorStatusToStr(enclosure.getTempSensorStatus()),
                         static_cast<int>(enclosure.getTempSensorStatus()));
            int const event =
                DeviceEvents::temperatureEvent(enclosure.getTempSensorStatus(), false);
            if (indicationsEnabled && event > 0) {
                events.sendEnclosureTemperature(event, enclosure, pathText);
            }
        }
    }
    controller->setLastAllEnclosures(current);
    _logger.info("after enclosure check");
}

void QLN_VDArrayController::_physicalPass(DeviceEvents& events, bool indicationsEnabled,
                                          std::string const& serial,
                                          std::vector<VeldraPhysicalDisk>& current,
                                          std::vector<VeldraPhysicalDisk>& added,
                                          std::vector<VeldraPhysicalDisk>& removed,
                                          std::vector<VeldraPhysicalDisk>& configChanged,
                                          std::vector<VeldraPhysicalDisk>& spareStateChanged,
                                          std::vector<VeldraPhysicalDisk>& pathChanged) {
    VeldraController* controller = getController();
    std::vector<VeldraPhysicalDisk> old = controller->getLastAllPhysicalDisks();
    current = controller->getAllPhysicalDisks();
    for (VeldraPhysicalDisk& disk : current) {
        std::vector<VeldraPhysicalPath> paths = disk.getPaths();
        disk.setLastAllPhysicalPaths(paths);
    }
    findNewVDPhysicalDisks(old, current, added);
    findRemovedVDPhysicalDisks(old, current, removed);
    for (VeldraPhysicalDisk const& disk : removed) {
        _logger.info("VD %s Removed Physical Disk: %s", serial.c_str(),
                     disk.getSerialNumber().c_str());
    }
    for (VeldraPhysicalDisk const& disk : added) {
        _logger.info("VD %s Added Physical Disk: %s", serial.c_str(),
                     disk.getSerialNumber().c_str());
    }
    VeldraControllerData const lastData = _lastData();
    int const controllerIndex = static_cast<int>(getControllerIndex());
    for (std::size_t at = 0; at < current.size(); ++at) {
        VeldraPhysicalDisk const& disk = current[at];
        u32 index = 0;
        u32 const mask = disk.compare(old, index);
        if (!changed(mask)) {
            continue;
        }
        VeldraPhysicalDisk const& before = old[index];
        std::string const pathText =
            at < old.size() ? makeDiskDrivePath(lastData, controllerIndex, old[at]).str()
                            : std::string();
        _logger.info("VD %s Changed Physical Disk: %s", serial.c_str(),
                     disk.getSerialNumber().c_str());
        if (mask & VeldraPhysicalDisk::changeBox) {
            _logger.info("VD Physical Disk Box Change Old: %d, New: %d", before.getBox(),
                         disk.getBox());
        }
        if (mask & VeldraPhysicalDisk::changeBay) {
            _logger.info("VD Physical Disk Bay Change Old: %d, New: %d", before.getBay(),
                         disk.getBay());
        }
        if (mask & VeldraPhysicalDisk::changePaths) {
            _logger.info("VD Physical Disk Path Change Old: %s, New: %s",
                         pathsToUserStr(before.getLastAllPhysicalPaths(), -1).c_str(),
                         pathsToUserStr(disk.getLastAllPhysicalPaths(), -1).c_str());
            pathChanged.push_back(disk);
        }
        if (mask & VeldraPhysicalDisk::changeStatus) {
            _logger.info(
                "VD Physical Disk Status Change Old: %s (%d), New: %s (%d)",
                before.diskStatusToStr(before.getStatus()), static_cast<int>(before.getStatus()),
                disk.diskStatusToStr(disk.getStatus()), static_cast<int>(disk.getStatus()));
            int const event = DeviceEvents::diskStatusEvent(disk.getStatus(), false);
            if (indicationsEnabled && event > 0) {
                events.sendDisk(event, static_cast<std::uint16_t>(before.getStatus()),
                                static_cast<std::uint16_t>(disk.getStatus()), disk, lastData,
                                "DiskDriveStatusChange", pathText);
            }
        }
        if (mask & VeldraPhysicalDisk::changeSSDWear) {
            _logger.info("VD Physical Disk SSD Status Change Old: %s (%d), New: %s (%d)",
                         before.SSDWearStatusToStr(before.getSSDWearStatus()),
                         static_cast<int>(before.getSSDWearStatus()),
                         disk.SSDWearStatusToStr(disk.getSSDWearStatus()),
                         static_cast<int>(disk.getSSDWearStatus()));
            int const event = DeviceEvents::wearEvent(disk.getSSDWearStatus());
            if (indicationsEnabled && event > 0) {
                events.sendDisk(event, static_cast<std::uint16_t>(before.getSSDWearStatus()),
                                static_cast<std::uint16_t>(disk.getSSDWearStatus()), disk, lastData,
                                "DiskDriveSSDStatusChange", pathText);
            }
        }
        if (mask & VeldraPhysicalDisk::changeConfiguration) {
            _logger.info("VD Physical Disk Config Change Old: %d, New: %d",
                         static_cast<int>(before.getConfiguration()),
                         static_cast<int>(disk.getConfiguration()));
            configChanged.push_back(disk);
        }
        if (mask & VeldraPhysicalDisk::changeMNPData) {
            _logger.info("VD Physical Disk Has MNP Change Old: %d, New: %d",
                         before.hasMNPData() ? 1 : 0, disk.hasMNPData() ? 1 : 0);
        }
        if (mask & VeldraPhysicalDisk::changeRemainingBlocks) {
            _logger.info("VD Physical Disk Remaining Blocks Change Old: %ld, New: %ld",
                         static_cast<long>(before.getRemainingBlocks()),
                         static_cast<long>(disk.getRemainingBlocks()));
        }
        if (mask & VeldraPhysicalDisk::changeActiveSpare) {
            _logger.info("VD Physical Disk Active Spare Change Old: %d, New: %d",
                         before.getIsActiveSpare() ? 1 : 0, disk.getIsActiveSpare() ? 1 : 0);
            spareStateChanged.push_back(disk);
        }
    }
    controller->setLastAllPhysicalDisks(current);
    _logger.info("after physical disk check");
}

void QLN_VDArrayController::_logicalPass(DeviceEvents& events, bool indicationsEnabled,
                                         std::string const& serial,
                                         std::vector<VeldraPhysicalDisk>& physicals,
                                         std::vector<VeldraLogicalDisk>& current,
                                         std::vector<VeldraLogicalDisk>& added,
                                         std::vector<VeldraLogicalDisk>& removed) {
    VeldraController* controller = getController();
    std::vector<VeldraLogicalDisk> old;
    controller->getLastLogicalDisks(old);
    current = controller->getAllLogicalDisks();
    // Members always come from the disk list fetched in this same poll.
    for (VeldraLogicalDisk& logical : current) {
        std::vector<VeldraPhysicalDisk> members = logical.logicalToAllPhysicals(physicals);
        logical.setLastAllPhysicalDisks(members);
    }
    added = findNewVDLogicalDisks(old, current);
    removed = findRemovedVDLogicalDisks(old, current);
    for (VeldraLogicalDisk const& logical : removed) {
        _logger.info("VD %s Removed Logical Disk: %s", serial.c_str(),
                     logical.getSerialNumber().c_str());
    }
    for (VeldraLogicalDisk const& logical : added) {
        _logger.info("VD %s Added Logical Disk: %s", serial.c_str(),
                     logical.getSerialNumber().c_str());
    }
    VeldraControllerData const lastData = _lastData();
    int const controllerIndex = static_cast<int>(getControllerIndex());
    for (std::size_t i = 0; i < current.size(); ++i) {
        VeldraLogicalDisk const& logical = current[i];
        u32 index = 0;
        u32 const mask = logical.compare(old, index);
        _logger.info("VD %s Logical Disk %d last physicals start: %d", serial.c_str(),
                     static_cast<int>(i),
                     static_cast<int>(logical.getLastAllPhysicalDisks().size()));
        if (!changed(mask)) {
            continue;
        }
        VeldraLogicalDisk const& before = old[index];
        _logger.info("VD %s Changed Logical Disk: %s", serial.c_str(),
                     logical.getSerialNumber().c_str());
        if (mask & VeldraLogicalDisk::changeTotalBlocks) {
            _logger.info("VD Logical Disk Total Blocks Change Old: %ld, New: %ld",
                         static_cast<long>(before.getTotalBlocks()),
                         static_cast<long>(logical.getTotalBlocks()));
        }
        if (mask & VeldraLogicalDisk::changeDriveLabel) {
            _logger.info("VD Logical Disk Drive Label Change Old: %s, New: %s",
                         before.getDriveLabel().c_str(), logical.getDriveLabel().c_str());
        }
        if (mask & VeldraLogicalDisk::changeTolerance) {
            _logger.info("VD Logical Disk Tolerance Change Old: %s (%d), New: %s (%d)",
                         before.toleranceToStr(before.getTolerance()),
                         static_cast<int>(before.getTolerance()),
                         logical.toleranceToStr(logical.getTolerance()),
                         static_cast<int>(logical.getTolerance()));
        }
        if (mask & VeldraLogicalDisk::changeStatus) {
            _logger.info(
                "VD Logical Disk Status Change Old: %s (%d), New: %s (%d)",
                before.statusToStr(before.getStatus()), static_cast<int>(before.getStatus()),
                logical.statusToStr(logical.getStatus()), static_cast<int>(logical.getStatus()));
            DeviceEvents::VolumeEvent const what =
                DeviceEvents::volumeChangeEvent(before.getStatus(), logical.getStatus());
            if (indicationsEnabled && what.event > 0) {
                events.sendVolume(logical, what,
                                  DeviceEvents::previousVolumeStatus(before.getStatus()),
                                  "StorageVolumeStateChange",
                                  makeStorageVolumePath(lastData, controllerIndex, before).str());
            }
        }
    }
    controller->setLastLogicalDisks(current);
}

} // namespace QLN
