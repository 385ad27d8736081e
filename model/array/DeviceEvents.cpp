#include "DeviceEvents.h"

#include "QLN_VeldraCntlrIndication.h"
#include "QLN_VeldraDiskDriveIndication.h"
#include "QLN_VeldraIndication.h"
#include "QLN_VeldraStorageEnclosureIndication.h"
#include "QLN_VeldraStorageEnclosureTempIndication.h"
#include "QLN_VeldraStorageVolumeIndication.h"
#include "VeldraStorageFunctions.h"

namespace QLN {

namespace {

char const* const eventNameSpace = "root/mwq";

// Reads that fail leave the text empty rather than stale.
std::string text(VeldraControllerData const& data,
                 int (VeldraControllerData::*getter)(std::string&) const) {
    std::string value;
    if ((data.*getter)(value) != 0) {
        value.clear();
    }
    return value;
}

struct ControllerFacts {
    std::string firmware, manufacturer, serial, model, cacheSerial, controllerText;
    unsigned int slot = 0;
    unsigned int cacheSize = 0;
    std::uint16_t cacheState = 0;
};

ControllerFacts factsOf(VeldraControllerData const& data) {
    ControllerFacts facts;
    facts.firmware = text(data, &VeldraControllerData::getFWVersion);
    facts.manufacturer = text(data, &VeldraControllerData::getManufacturer);
    facts.serial = text(data, &VeldraControllerData::getControllerSerialNumber);
    facts.model = text(data, &VeldraControllerData::getModel);
    facts.cacheSerial = text(data, &VeldraControllerData::getCacheSerialNumber);
    facts.controllerText = DeviceEvents::controllerText(data);
    int slot = 0;
    if (data.getPCISlotNumber(slot) == 0) {
        facts.slot = static_cast<unsigned int>(slot);
    }
    u32 size = 0;
    if (data.getCacheSizeInBytes(size) == 0) {
        facts.cacheSize = size;
    }
    cacheStateEnum state{};
    if (data.getCacheState(state) == 0) {
        facts.cacheState = static_cast<std::uint16_t>(state);
    }
    return facts;
}

} // namespace

DeviceEvents::DeviceEvents(Logger& logger, unsigned int controllerIndex,
                           CmpiCpp::CmpiContext const& context)
    : _logger(logger), _controllerIndex(controllerIndex), _context(context) {}

int DeviceEvents::diskStatusEvent(u32 status, bool survey) {
    switch (status) {
    case 1:
        return 1;
    case 2:
        return 4;
    case 3:
    case 4:
        return 2;
    case 0x8001:
        return 13;
    case 0x8002:
        return 14;
    case 0x8000:
    case 0x8003:
    case 0x8004:
        return 5;
    case 0x8005:
        return 3;
    case 0x8006:
        return survey ? 6 : 5;
    case 0x8007:
        return survey ? 7 : 5;
    default:
        return (!survey && status > 0x8007) ? 5 : 0;
    }
}

int DeviceEvents::wearEvent(u32 status) {
    switch (status) {
    case 0:
        return 12;
    case 1:
        return 8;
    case 2:
        return 11;
    case 3:
        return 10;
    case 4:
        return 9;
    case 5:
        return 6;
    default:
        return 0;
    }
}

DeviceEvents::VolumeEvent DeviceEvents::volumeEvent(u32 status) {
    auto const raw = static_cast<std::uint16_t>(status);
    switch (status) {
    case 2:
    case 0x8013:
    case 0x8014:
        return {1, {2}, 0};
    case 3:
        return {2, {6}, 0};
    case 4:
        return {2, {6, raw}, status};
    case 0x8000:
    case 0x8002:
    case 0x8003:
    case 0x8004:
    case 0x8005:
    case 0x8008:
    case 0x8009:
    case 0x800A:
    case 0x800B:
    case 0x800C:
    case 0x8015:
    case 0x8016:
        return {3, {3, raw}, status};
    case 0x800D:
        return {4, {3, raw}, status};
    case 0x8001:
        return {5, {3, raw}, status};
    case 0x8007:
        return {6, {3, raw}, status};
    case 0x8006:
        return {7, {3, raw}, status};
    case 0x800E:
        return {8, {6, raw}, status};
    case 0x8011:
        return {9, {3, raw}, status};
    case 0x8010:
        return {10, {6, raw}, status};
    case 0x8017:
        return {11, {3, raw}, status};
    case 0x8018:
        return {12, {3, raw}, status};
    case 0x8012:
        return {13, {3, raw}, status};
    default:
        return {0, {0}, 0};
    }
}

DeviceEvents::VolumeEvent DeviceEvents::volumeChangeEvent(u32 oldStatus, u32 newStatus) {
    VolumeEvent what = volumeEvent(newStatus);
    // For these the controller's new status says only that something moved;
    // the status it moved from is what an operator needs to see.
    switch (newStatus) {
    case 0x800D:
    case 0x8001:
    case 0x8007:
    case 0x8006:
    case 0x800E:
    case 0x8010:
        what.statusList[1] = static_cast<std::uint16_t>(oldStatus);
        what.detail = oldStatus;
        break;
    default:
        break;
    }
    return what;
}

std::vector<std::uint16_t> DeviceEvents::previousVolumeStatus(u32 oldStatus) {
    if (oldStatus == 4 || oldStatus == 0x800E || oldStatus == 0x8010) {
        return {6, 0x800D};
    }
    if ((oldStatus >= 0x8000 && oldStatus <= 0x800D) || oldStatus == 0x8011 ||
        oldStatus == 0x8012 || (oldStatus >= 0x8015 && oldStatus <= 0x8018)) {
        return {3, static_cast<std::uint16_t>(oldStatus)};
    }
    if (oldStatus == 3) {
        return {6};
    }
    if (oldStatus == 2 || oldStatus == 0x8013 || oldStatus == 0x8014) {
        return {2};
    }
    return {0};
}

int DeviceEvents::fanEvent(u32 status, bool survey) {
    switch (status) {
    case 0x8001:
        return survey ? 0 : 4;
    case 0x8002:
        return 5;
    case 0x8003:
        return 6;
    default:
        return 0;
    }
}

int DeviceEvents::powerSupplyEvent(u32 status, bool survey) {
    switch (status) {
    case 0x8005:
        return survey ? 0 : 1;
    case 0x8006:
        return survey ? 0 : 2;
    case 0x8007:
        return 3;
    default:
        return 0;
    }
}

int DeviceEvents::temperatureEvent(u32 status, bool survey) {
    switch (status) {
    case 0x8009:
        return survey ? 0 : 7;
    case 0x800A:
        return 8;
    case 0x800B:
        return 9;
    default:
        return 0;
    }
}

std::string DeviceEvents::controllerText(VeldraControllerData const& data) {
    std::string model;
    if (data.getModel(model) != 0) {
        model = "Veldra";
    }
    int slot = 0;
    std::string const slotText =
        data.getPCISlotNumber(slot) == 0 ? std::to_string(slot) : "Unknown";
    return model + " in Slot " + slotText;
}

void DeviceEvents::sendDisk(int event, std::uint16_t previous, std::uint16_t current,
                            VeldraPhysicalDisk const& disk,
                            VeldraControllerData const& controllerData,
                            std::string const& changeName, std::string const& pathText) {
    _logger.info("Send Indication %d", event);
    auto const box = static_cast<unsigned int>(disk.getEnclosureBoxNumber());
    auto const bay = static_cast<unsigned int>(disk.getBay());
    QLN_VeldraDiskDriveIndication indication(_logger, eventNameSpace);
    indication.sendIndication(event, previous, current, disk.getFirmWareRevision(),
                              "Physical Volume " +
                                  pathsToUserStr(disk.getLastAllPhysicalPaths(), disk.getBay()),
                              std::to_string(disk.getBay()), controllerText(controllerData),
                              disk.getSerialNumber(), disk.getModel(), _controllerIndex,
                              (box << 16) + bay, static_cast<std::uint16_t>(disk.getInterface()),
                              static_cast<std::uint16_t>(disk.getLastFailureReason()), box,
                              disk.diskLastFailureReasonToStr(disk.getLastFailureReason()),
                              changeName, pathText, _context);
}

void DeviceEvents::sendVolume(VeldraLogicalDisk const& logical, VolumeEvent const& what,
                              std::vector<std::uint16_t> const& previousList,
                              std::string const& changeName, std::string const& pathText) {
    _logger.info("Send Indication %d", what.event);
    std::string const volumeText = "Logical Volume " +
                                   std::to_string(logical.getLogicalVolumeNumber() + 1) + " (" +
                                   logical.toleranceToStr(logical.getTolerance()) + ")";
    QLN_VeldraStorageVolumeIndication indication(_logger, eventNameSpace);
    indication.sendIndication(what.event, volumeText, _controllerIndex,
                              logical.getLogicalVolumeNumber(), what.detail, previousList,
                              what.statusList, changeName, pathText, _context);
}

void DeviceEvents::sendEnclosure(int event, VeldraEnclosure const& enclosure,
                                 VeldraControllerData const& controllerData,
                                 std::string const& pathText) {
    _logger.info("Send Indication %d", event);
    QLN_VeldraStorageEnclosureIndication indication(_logger, eventNameSpace);
    indication.sendIndication(event, pathsToUserStr(enclosure.getLastAllPhysicalPaths(), -1),
                              controllerText(controllerData), enclosure.getSerialNumber(),
                              enclosure.getModel(), enclosure.getManufacturer(), _controllerIndex,
                              enclosure.getEnclosureBoxNumber(), pathText, _context);
}

void DeviceEvents::sendEnclosureTemperature(int event, VeldraEnclosure const& enclosure,
                                            std::string const& pathText) {
    _logger.info("Send Indication %d", event);
    QLN_VeldraStorageEnclosureTempIndication indication(_logger, eventNameSpace);
    indication.sendIndication(event, pathsToUserStr(enclosure.getLastAllPhysicalPaths(), -1),
                              enclosure.getSerialNumber(), enclosure.getModel(), _controllerIndex,
                              enclosure.getEnclosureBoxNumber(), pathText, _context);
}

void DeviceEvents::sendControllerState(int event, VeldraControllerData const& data,
                                       std::string const& changeName, std::string const& pathText) {
    _logger.info("Send Indication %d", event);
    ControllerFacts const facts = factsOf(data);
    QLN_VeldraCntlrIndication indication(_logger, eventNameSpace);
    indication.sendIndication(event, _controllerIndex, facts.slot, facts.firmware,
                              facts.controllerText, facts.manufacturer, facts.serial, facts.model,
                              changeName, facts.cacheSize, facts.cacheSerial, pathText, _context);
}

void DeviceEvents::sendController(int event, VeldraControllerData const& data,
                                  std::string const& changeName, std::string const& pathText) {
    _logger.info("Send Indication %d", event);
    ControllerFacts const facts = factsOf(data);
    QLN_VeldraIndication indication(_logger, eventNameSpace);
    indication.sendIndication(event, _controllerIndex, facts.cacheState, facts.firmware,
                              facts.controllerText, facts.manufacturer, facts.serial, facts.model,
                              changeName, facts.cacheSize, facts.cacheSerial, pathText, _context);
}

} // namespace QLN
