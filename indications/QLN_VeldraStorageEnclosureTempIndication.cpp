#include "QLN_VeldraStorageEnclosureTempIndication.h"

#include "IndicationFrame.h"

#include <iterator>

namespace QLN {

namespace {
char const* const className = "QLN_VeldraStorageEnclosureTempIndication";
unsigned int const oidCount = 4;
int const firstEvent = 7;

// Events 7 to 9: each temperature level has a trap of its own, numbered
// downwards as the level rises.
struct TemperatureEvent {
    unsigned int trap;
    int flags;
    int status;
};
TemperatureEvent const temperatureEvents[] = {{8011, 8, 2}, {8010, 12, 3}, {8009, 16, 4}};
} // namespace

QLN_VeldraStorageEnclosureTempIndication::QLN_VeldraStorageEnclosureTempIndication(
    Logger& logger, std::string const& nameSpace)
    : _namespace(nameSpace), _logger(logger) {
    _logger.appendLogSource(":");
    _logger.appendLogSource(className);
    _logger.info("cxtor");
    _logger.info("Creating Veldra Indication DB");
    _indicationDB = std::make_unique<IndicationDB>(_logger, className);
}

QLN_VeldraStorageEnclosureTempIndication::~QLN_VeldraStorageEnclosureTempIndication() {
    _logger.info("dxtor");
}

void QLN_VeldraStorageEnclosureTempIndication::sendIndication(
    int eventNumber, std::string const& pathsText, std::string const& enclosureSerial,
    std::string const& enclosureModel, unsigned int controllerIndex,
    unsigned int enclosureBoxNumber, std::string const& pathText,
    CmpiCpp::CmpiContext const& context) {
    IndicationFrame frame(_logger, _namespace, className);
    if (!frame.begin(*_indicationDB, eventNumber, "Send Veldra indication: %d")) {
        return;
    }
    frame.setAlertingElement(pathText);
    frame.setPresent(&MWAlertIndication::setHWLogicalLocation, pathsText);
    frame.setPresent(&MWAlertIndication::setHWSerialNumber, enclosureSerial, "Veldra Enclosure:");
    frame.setPresent(&MWAlertIndication::setDeviceModel, enclosureModel);
    frame.setFromRecord(context, frame.record().summary);
    _logger.info("Veldra Enclosure - populating SNMP trap info");
    CmpiCpp::CmpiInstance instance = frame.takeInstance();

    Trap trap;
    int const index = eventNumber - firstEvent;
    if (index >= 0 && index < static_cast<int>(std::size(temperatureEvents))) {
        TemperatureEvent const& event = temperatureEvents[index];
        trap.number = event.trap;
        trap.flags = event.flags;
        // The MIB counts boxes from 1.
        unsigned int const box = enclosureBoxNumber + 1;
        trap.variables = {
            TrapVariable::ofNumber("zrqVDEncTempTrapStatus",
                                   enterpriseOid({8, 2, 1, 1, 9, controllerIndex, box}),
                                   event.status),
        };
    }
    frame.addTrapInfo(instance, oidCount, trap);
    frame.sendTrap();
    frame.deliver(context, instance);
}

} // namespace QLN
