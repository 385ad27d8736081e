#include "QLN_VeldraStorageEnclosureIndication.h"

#include "IndicationFrame.h"

#include <iterator>

namespace QLN {

namespace {
char const* const className = "QLN_VeldraStorageEnclosureIndication";
unsigned int const oidCount = 11;
unsigned int const fanTrap = 8029;
unsigned int const powerSupplyTrap = 8031;
// Columns of the box table: the status variable's column says whether it
// is a fan's or a power supply's.
std::uint32_t const fanColumn = 7;
std::uint32_t const powerSupplyColumn = 11;

// Events 1 to 3 are the power supplies', 4 to 6 the fans'.
struct EnclosureEvent {
    unsigned int trap;
    int flags;
    int status;
    std::uint32_t column;
};
EnclosureEvent const enclosureEvents[] = {{powerSupplyTrap, 12, 3, powerSupplyColumn},
                                          {powerSupplyTrap, 8, 2, powerSupplyColumn},
                                          {powerSupplyTrap, 12, 3, powerSupplyColumn},
                                          {fanTrap, 8, 2, fanColumn},
                                          {fanTrap, 12, 5, fanColumn},
                                          {fanTrap, 16, 3, fanColumn}};
} // namespace

QLN_VeldraStorageEnclosureIndication::QLN_VeldraStorageEnclosureIndication(
    Logger& logger, std::string const& nameSpace)
    : _namespace(nameSpace), _logger(logger) {
    _logger.appendLogSource(":");
    _logger.appendLogSource(className);
    _logger.info("cxtor");
    _logger.info("Creating Veldra Indication DB");
    _indicationDB = std::make_unique<IndicationDB>(_logger, className);
}

QLN_VeldraStorageEnclosureIndication::~QLN_VeldraStorageEnclosureIndication() {
    _logger.info("dxtor");
}

void QLN_VeldraStorageEnclosureIndication::sendIndication(
    int eventNumber, std::string const& pathsText, std::string const& controllerText,
    std::string const& enclosureSerial, std::string const& enclosureModel,
    std::string const& enclosureManufacturer, unsigned int controllerIndex,
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
    if (eventNumber >= 1 && eventNumber <= static_cast<int>(std::size(enclosureEvents))) {
        EnclosureEvent const& event = enclosureEvents[eventNumber - 1];
        trap.number = event.trap;
        trap.flags = event.flags;
        // The MIB counts boxes from 1.
        unsigned int const box = enclosureBoxNumber + 1;
        auto const boxOid = [&](std::uint32_t boxColumn) {
            return enterpriseOid({8, 2, 1, 1, boxColumn, controllerIndex, box});
        };
        trap.variables = {
            TrapVariable::ofText("zrqSsBoxCntlrHwLocation", boxOid(18), controllerText),
            TrapVariable::ofNumber("zrqSsBoxCntlrIndex", boxOid(1),
                                   static_cast<int>(controllerIndex)),
            TrapVariable::ofNumber("zrqSsBoxBusIndex", boxOid(2), static_cast<int>(box)),
            TrapVariable::ofText("zrqSsBoxVendor", boxOid(6), enclosureManufacturer),
            TrapVariable::ofText("zrqSsBoxModel", boxOid(4), enclosureModel),
            TrapVariable::ofText("zrqSsBoxSerialNumber", boxOid(17), enclosureSerial),
            TrapVariable::ofNumber("zrqSsBoxFanorPowerSupplyStatus", boxOid(event.column),
                                   event.status),
            TrapVariable::ofText("zrqSsBoxLocationString", boxOid(23), pathsText),
        };
    }
    frame.addTrapInfo(instance, oidCount, trap);
    frame.sendTrap();
    frame.deliver(context, instance);
}

} // namespace QLN
