#include "QLN_VeldraCntlrIndication.h"

#include "ControllerIndicationParts.h"
#include "IndicationFrame.h"

namespace QLN {

namespace {
char const* const className = "QLN_VeldraCntlrIndication";
unsigned int const oidCount = 5;
} // namespace

QLN_VeldraCntlrIndication::QLN_VeldraCntlrIndication(Logger& logger, std::string const& nameSpace)
    : _namespace(nameSpace), _logger(logger) {
    _logger.appendLogSource(":");
    _logger.appendLogSource(className);
    _logger.info("cxtor");
    _logger.info("Creating Veldra Indication DB");
    _indicationDB = std::make_unique<IndicationDB>(_logger, className);
}

QLN_VeldraCntlrIndication::~QLN_VeldraCntlrIndication() {
    _logger.info("dxtor");
}

void QLN_VeldraCntlrIndication::sendIndication(
    int eventNumber, unsigned int controllerIndex, unsigned int slotNumber,
    std::string const& firmwareVersion, std::string const& controllerText,
    std::string const& manufacturer, std::string const& serialNumber, std::string const& model,
    std::string const& changeName, unsigned int cacheSize, std::string const& cacheSerialNumber,
    std::string const& pathText, CmpiCpp::CmpiContext const& context) {
    IndicationFrame frame(_logger, _namespace, className);
    if (!frame.begin(*_indicationDB, eventNumber, "Send Veldra indication: %d")) {
        return;
    }
    std::string const summary = frame.record().summary;
    frame.setAlertingElement(pathText);
    ControllerIndicationParts::setIdentity(frame, controllerText, firmwareVersion, manufacturer,
                                           serialNumber, model);
    frame.setFromRecord(context, summary);
    CmpiCpp::CmpiInstance instance = frame.takeInstance();
    ControllerIndicationParts::addVariables(_logger, instance, changeName, cacheSize,
                                            cacheSerialNumber);

    Trap trap;
    int boardStatus = 0;
    switch (eventNumber) {
    case 1:
        trap.number = 3015;
        trap.flags = 8;
        boardStatus = 2;
        break;
    case 2:
        trap.number = 3015;
        trap.flags = 16;
        boardStatus = 3;
        break;
    default:
        break;
    }
    if (trap.number != 0) {
        using ControllerIndicationParts::controllerOid;
        trap.variables = {
            TrapVariable::ofNumber("zrqDaCtrlrSlot", controllerOid(5, controllerIndex),
                                   static_cast<int>(slotNumber)),
            TrapVariable::ofNumber("zrqDaCtrlrBoardStatus", controllerOid(10, controllerIndex),
                                   boardStatus),
        };
    }
    frame.addTrapInfo(instance, oidCount, trap);
    frame.sendTrap();
    frame.deliver(context, instance);
}

} // namespace QLN
