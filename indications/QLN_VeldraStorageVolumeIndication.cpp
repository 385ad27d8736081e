#include "QLN_VeldraStorageVolumeIndication.h"

#include "CmpiArray.h"
#include "IndicationFrame.h"

#include <iterator>

namespace QLN {

namespace {
char const* const className = "QLN_VeldraStorageVolumeIndication";
unsigned int const oidCount = 7;
unsigned int const volumeTrap = 3034;

// zrqHoTrapFlags and zrqDaLogDrvStatus of events 1 to 13. Status 0: it
// depends on the detail status (events 2 and 3).
struct VolumeEvent {
    int flags;
    int status;
};
VolumeEvent const volumeEvents[] = {{8, 2},   {16, 0},  {12, 0},  {12, 15}, {12, 12},
                                    {12, 14}, {12, 13}, {16, 20}, {12, 1},  {16, 24},
                                    {12, 18}, {12, 19}, {12, 1}};

// The logical drive status of event 3, from the volume's detail status.
int degradedStatus(unsigned int detailStatus) {
    switch (detailStatus) {
    case 0x8000:
        return 9;
    case 0x8002:
        return 10;
    case 0x8003:
        return 11;
    case 0x8004:
        return 5;
    case 0x8005:
        return 4;
    case 0x8008:
        return 6;
    case 0x8009:
        return 7;
    case 0x800A:
        return 8;
    case 0x800B:
        return 16;
    default:
        return 1;
    }
}

void addStatusList(CmpiCpp::CmpiInstance& instance, char const* property,
                   std::vector<std::uint16_t> const& list) {
    if (list.empty()) {
        return;
    }
    CmpiCpp::CmpiArray array(static_cast<unsigned int>(list.size()), CMPI_uint16);
    for (unsigned int i = 0; i < list.size(); ++i) {
        array.setElementAt(i, static_cast<unsigned short>(list[i]));
    }
    instance.addProperty(property, array);
}
} // namespace

QLN_VeldraStorageVolumeIndication::QLN_VeldraStorageVolumeIndication(Logger& logger,
                                                                     std::string const& nameSpace)
    : _namespace(nameSpace), _logger(logger) {
    _logger.appendLogSource(":");
    _logger.appendLogSource(className);
    _logger.info("cxtor");
    _logger.info("Creating Veldra Indication Storage Volume DB");
    _indicationDB = std::make_unique<IndicationDB>(_logger, className);
}

QLN_VeldraStorageVolumeIndication::~QLN_VeldraStorageVolumeIndication() {
    _logger.info("dxtor");
}

void QLN_VeldraStorageVolumeIndication::sendIndication(
    int eventNumber, std::string const& volumeText, unsigned int controllerIndex,
    unsigned int volumeNumber, unsigned int detailStatus,
    std::vector<std::uint16_t> const& previousStatus,
    std::vector<std::uint16_t> const& currentStatus, std::string const& changeName,
    std::string const& pathText, CmpiCpp::CmpiContext const& context) {
    IndicationFrame frame(_logger, _namespace, className);
    if (!frame.begin(*_indicationDB, eventNumber, "Send Veldra Storage Volume indication: %d")) {
        return;
    }
    frame.setAlertingElement(pathText);
    frame.setFromRecord(context, frame.record().summary);
    // Always set, even empty, so that every volume alert carries the property.
    frame.alert().setHWLogicalLocation(volumeText);
    CmpiCpp::CmpiInstance instance = frame.takeInstance();

    _logger.info("set variable names: %s", changeName.c_str());
    IndicationFrame::addVariables(instance, {{"FailureDescription", 1, changeName}});
    addStatusList(instance, "DeviceOperationalStatus", currentStatus);
    addStatusList(instance, "DeviceOperationalStatusPrevious", previousStatus);
    _logger.info("Veldra Storage Volume - populating SNMP trap info");

    Trap trap;
    if (eventNumber >= 1 && eventNumber <= static_cast<int>(std::size(volumeEvents))) {
        VolumeEvent const& event = volumeEvents[eventNumber - 1];
        int status = event.status;
        if (eventNumber == 2) {
            status = detailStatus == 4 ? 3 : 1;
        } else if (eventNumber == 3) {
            status = degradedStatus(detailStatus);
        }
        trap.number = volumeTrap;
        trap.flags = event.flags;
        // The MIB counts volumes from 1.
        unsigned int const volumeIndex = volumeNumber + 1;
        auto const volume = [&](std::uint32_t column) {
            return enterpriseOid({3, 2, 3, 1, 1, column, controllerIndex, volumeIndex});
        };
        trap.variables = {
            TrapVariable::ofText("zrqDaCtrlrHwLocation",
                                 enterpriseOid({3, 2, 2, 1, 1, 20, controllerIndex}), volumeText),
            TrapVariable::ofNumber("zrqDaLogDrvCtlrIndex", volume(1),
                                   static_cast<int>(controllerIndex)),
            TrapVariable::ofNumber("zqrDaLogDrvIndex", volume(2), static_cast<int>(volumeIndex)),
            TrapVariable::ofNumber("zrqDaLogDrvStatus", volume(4), status),
        };
    }
    frame.addTrapInfo(instance, oidCount, trap);
    if (frame.hasTrap()) {
        frame.sendTrap();
        _logger.info("Veldra Storage Volume sending SNMP trap info");
    }
    frame.deliver(context, instance);
}

} // namespace QLN
