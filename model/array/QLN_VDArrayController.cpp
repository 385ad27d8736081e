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
bool changed(u32 mask) { return mask != 0 && (mask & 0x1) == 0; }

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
    bool indicationsEnabled, CmpiCpp::CmpiContext const&, std::vector<VeldraEnclosure>& currentEnclosures,
    std::vector<VeldraEnclosure>& newEnclosures, std::vector<VeldraEnclosure>& removedEnclosures,
    std::vector<VeldraEnclosure>& pathChangeEnclosures, std::vector<VeldraLogicalDisk>& currentLogicals,
    std::vector<VeldraLogicalDisk>& newLogicals, std::vector<VeldraLogicalDisk>& removedLogicals,
    std::vector<VeldraPhysicalDisk>& currentPhysicals, std::vector<VeldraPhysicalDisk>& newPhysicals,
    std::vector<VeldraPhysicalDisk>& removedPhysicals, std::vector<VeldraPhysicalDisk>& configChangedPhysicals,
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

    if (_firstStatus) {
        _firstStatusPass();
    }
    _logger.info("after first_status check");
    _controllerDataStage();
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
                 static_cast<int>(controller->getConsumedDiskVectorCount()), static_cast<int>(count));
    std::string const serial = serialOf(_lastData());
    _enclosurePass(serial, currentEnclosures, newEnclosures, removedEnclosures, pathChangeEnclosures);
    _physicalPass(serial, currentPhysicals, newPhysicals, removedPhysicals, configChangedPhysicals,
                  spareStateChangePhysicals, pathChangePhysicals);
    _logicalPass(serial, currentPhysicals, currentLogicals, newLogicals, removedLogicals);
    // Written only after all three lists are stored: a pass that throws half
    // way sees the counter moved again and compares once more.
    controller->setConsumedDiskVectorCount(count);
    for (std::size_t i = 0; i < currentLogicals.size(); ++i) {
        _logger.info("VD %s Logical Disk %d last physicals end: %d", serial.c_str(), static_cast<int>(i),
                     static_cast<int>(currentLogicals[i].getLastAllPhysicalDisks().size()));
    }
    _logger.info("return manageDynamic");
}

// Works on the stored snapshots, which the graph was built from, so that
// what was already bad before the first pass is told once.
void QLN_VDArrayController::_firstStatusPass() {
    _firstStatus = false;
    _logger.info("ControllerPath: %s", getPath().str().c_str());
}

void QLN_VDArrayController::_controllerDataStage() {
    VeldraController* controller = getController();
    u32 const count = controller->getControllerDataCount();
    if (controller->getConsumedControllerDataCount() == count) {
        return;
    }
    VeldraControllerData const fresh = controller->getVDData();
    controller->setLastVDData(fresh);
    controller->setConsumedControllerDataCount(count);
}

void QLN_VDArrayController::_enclosurePass(std::string const& serial, std::vector<VeldraEnclosure>& current,
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
        _logger.info("VD %s Removed Enclosure : %s", serial.c_str(), enclosure.getSerialNumber().c_str());
    }
    for (VeldraEnclosure const& enclosure : added) {
        _logger.info("VD %s Added Enclosure: %s", serial.c_str(), enclosure.getSerialNumber().c_str());
    }
    for (VeldraEnclosure const& enclosure : current) {
        u32 index = 0;
        u32 const mask = enclosure.compare(old, index);
        if (!changed(mask)) {
            continue;
        }
        VeldraEnclosure const& before = old[index];
        _logger.info("VD %s Changed Enclosure : %s", serial.c_str(), enclosure.getSerialNumber().c_str());
        if (mask & VeldraEnclosure::changeBoxNumber) {
            _logger.info("VD Enclosure Box Change Old: %d, New: %d", before.getBoxNumber(), enclosure.getBoxNumber());
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
                         before.FanStatusToStr(before.getFanStatus()), static_cast<int>(before.getFanStatus()),
                         enclosure.FanStatusToStr(enclosure.getFanStatus()),
                         static_cast<int>(enclosure.getFanStatus()));
        }
        if (mask & VeldraEnclosure::changePowerSupplyStatus) {
            _logger.info("VD Enclosure Power Supply Status Change Old: %s (%d), New: %s (%d)",
                         before.PowerSupplyStatusToStr(before.getPowerSupplyStatus()),
                         static_cast<int>(before.getPowerSupplyStatus()),
                         enclosure.PowerSupplyStatusToStr(enclosure.getPowerSupplyStatus()),
                         static_cast<int>(enclosure.getPowerSupplyStatus()));
        }
        if (mask & VeldraEnclosure::changeTempSensorStatus) {
            _logger.info("VD Enclosure Temp Sensor Status Change Old: %s (%d), New: %s (%d)",
                         before.TempSensorStatusToStr(before.getTempSensorStatus()),
                         static_cast<int>(before.getTempSensorStatus()),
                         enclosure.TempSensorStatusToStr(enclosure.getTempSensorStatus()),
                         static_cast<int>(enclosure.getTempSensorStatus()));
        }
    }
    controller->setLastAllEnclosures(current);
    _logger.info("after enclosure check");
}

void QLN_VDArrayController::_physicalPass(std::string const& serial, std::vector<VeldraPhysicalDisk>& current,
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
        _logger.info("VD %s Removed Physical Disk: %s", serial.c_str(), disk.getSerialNumber().c_str());
    }
    for (VeldraPhysicalDisk const& disk : added) {
        _logger.info("VD %s Added Physical Disk: %s", serial.c_str(), disk.getSerialNumber().c_str());
    }
    for (VeldraPhysicalDisk const& disk : current) {
        u32 index = 0;
        u32 const mask = disk.compare(old, index);
        if (!changed(mask)) {
            continue;
        }
        VeldraPhysicalDisk const& before = old[index];
        _logger.info("VD %s Changed Physical Disk: %s", serial.c_str(), disk.getSerialNumber().c_str());
        if (mask & VeldraPhysicalDisk::changeBox) {
            _logger.info("VD Physical Disk Box Change Old: %d, New: %d", before.getBox(), disk.getBox());
        }
        if (mask & VeldraPhysicalDisk::changeBay) {
            _logger.info("VD Physical Disk Bay Change Old: %d, New: %d", before.getBay(), disk.getBay());
        }
        if (mask & VeldraPhysicalDisk::changePaths) {
            _logger.info("VD Physical Disk Path Change Old: %s, New: %s",
                         pathsToUserStr(before.getLastAllPhysicalPaths(), -1).c_str(),
                         pathsToUserStr(disk.getLastAllPhysicalPaths(), -1).c_str());
            pathChanged.push_back(disk);
        }
        if (mask & VeldraPhysicalDisk::changeStatus) {
            _logger.info("VD Physical Disk Status Change Old: %s (%d), New: %s (%d)",
                         before.diskStatusToStr(before.getStatus()), static_cast<int>(before.getStatus()),
                         disk.diskStatusToStr(disk.getStatus()), static_cast<int>(disk.getStatus()));
        }
        if (mask & VeldraPhysicalDisk::changeSSDWear) {
            _logger.info("VD Physical Disk SSD Status Change Old: %s (%d), New: %s (%d)",
                         before.SSDWearStatusToStr(before.getSSDWearStatus()),
                         static_cast<int>(before.getSSDWearStatus()),
                         disk.SSDWearStatusToStr(disk.getSSDWearStatus()), static_cast<int>(disk.getSSDWearStatus()));
        }
        if (mask & VeldraPhysicalDisk::changeConfiguration) {
            _logger.info("VD Physical Disk Config Change Old: %d, New: %d", static_cast<int>(before.getConfiguration()),
                         static_cast<int>(disk.getConfiguration()));
            configChanged.push_back(disk);
        }
        if (mask & VeldraPhysicalDisk::changeMNPData) {
            _logger.info("VD Physical Disk Has MNP Change Old: %d, New: %d", before.hasMNPData() ? 1 : 0,
                         disk.hasMNPData() ? 1 : 0);
        }
        if (mask & VeldraPhysicalDisk::changeRemainingBlocks) {
            _logger.info("VD Physical Disk Remaining Blocks Change Old: %ld, New: %ld",
                         static_cast<long>(before.getRemainingBlocks()), static_cast<long>(disk.getRemainingBlocks()));
        }
        if (mask & VeldraPhysicalDisk::changeActiveSpare) {
            _logger.info("VD Physical Disk Active Spare Change Old: %d, New: %d", before.getIsActiveSpare() ? 1 : 0,
                         disk.getIsActiveSpare() ? 1 : 0);
            spareStateChanged.push_back(disk);
        }
    }
    controller->setLastAllPhysicalDisks(current);
    _logger.info("after physical disk check");
}

void QLN_VDArrayController::_logicalPass(std::string const& serial, std::vector<VeldraPhysicalDisk>& physicals,
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
        _logger.info("VD %s Removed Logical Disk: %s", serial.c_str(), logical.getSerialNumber().c_str());
    }
    for (VeldraLogicalDisk const& logical : added) {
        _logger.info("VD %s Added Logical Disk: %s", serial.c_str(), logical.getSerialNumber().c_str());
    }
    for (std::size_t i = 0; i < current.size(); ++i) {
        VeldraLogicalDisk const& logical = current[i];
        u32 index = 0;
        u32 const mask = logical.compare(old, index);
        _logger.info("VD %s Logical Disk %d last physicals start: %d", serial.c_str(), static_cast<int>(i),
                     static_cast<int>(logical.getLastAllPhysicalDisks().size()));
        if (!changed(mask)) {
            continue;
        }
        VeldraLogicalDisk const& before = old[index];
        _logger.info("VD %s Changed Logical Disk: %s", serial.c_str(), logical.getSerialNumber().c_str());
        if (mask & VeldraLogicalDisk::changeTotalBlocks) {
            _logger.info("VD Logical Disk Total Blocks Change Old: %ld, New: %ld",
                         static_cast<long>(before.getTotalBlocks()), static_cast<long>(logical.getTotalBlocks()));
        }
        if (mask & VeldraLogicalDisk::changeDriveLabel) {
            _logger.info("VD Logical Disk Drive Label Change Old: %s, New: %s", before.getDriveLabel().c_str(),
                         logical.getDriveLabel().c_str());
        }
        if (mask & VeldraLogicalDisk::changeTolerance) {
            _logger.info("VD Logical Disk Tolerance Change Old: %s (%d), New: %s (%d)",
                         before.toleranceToStr(before.getTolerance()), static_cast<int>(before.getTolerance()),
                         logical.toleranceToStr(logical.getTolerance()), static_cast<int>(logical.getTolerance()));
        }
        if (mask & VeldraLogicalDisk::changeStatus) {
            _logger.info("VD Logical Disk Status Change Old: %s (%d), New: %s (%d)",
                         before.statusToStr(before.getStatus()), static_cast<int>(before.getStatus()),
                         logical.statusToStr(logical.getStatus()), static_cast<int>(logical.getStatus()));
        }
    }
    controller->setLastLogicalDisks(current);
}

} // namespace QLN
