#include "QLN_VeldraIndication.h"

#include "ControllerIndicationParts.h"
#include "IndicationFrame.h"

#include <iterator>
#include <sstream>

namespace QLN {

namespace {
char const* const className = "QLN_VeldraIndication";
unsigned int const oidCount = 10;
int const heartbeatEvent = 100;

// The accelerator's error code by cache state, for states 0 to 20; any
// other state gives 1.
int const errorCodes[] = {2, 2, 15, 12, 4, 6, 9, 5, 5, 13, 10, 3, 8, 17, 2, 21, 25, 26, 27, 28, 29};

int errorCode(std::uint16_t cacheState) {
    return cacheState < std::size(errorCodes) ? errorCodes[cacheState] : 1;
}
} // namespace

QLN_VeldraIndication::QLN_VeldraIndication(Logger& logger, std::string const& nameSpace)
    : _namespace(nameSpace), _logger(logger) {
    _logger.appendLogSource(":");
    _logger.appendLogSource(className);
    _logger.info("cxtor");
    _logger.info("Creating Veldra Indication DB");
    _indicationDB = std::make_unique<IndicationDB>(_logger, className);
}

QLN_VeldraIndication::~QLN_VeldraIndication() {
    _logger.info("dxtor");
}

void QLN_VeldraIndication::sendIndication(
    int eventNumber, unsigned int controllerIndex, std::uint16_t cacheState,
    std::string const& firmwareVersion, std::string const& controllerText,
    std::string const& manufacturer, std::string const& serialNumber, std::string const& model,
    std::string const& changeName, unsigned int cacheSize, std::string const& cacheSerialNumber,
    std::string const& pathText, CmpiCpp::CmpiContext const& context) {
    IndicationFrame frame(_logger, _namespace, className);
    if (!frame.begin(*_indicationDB, eventNumber, "Send Veldra indication: %d")) {
        return;
    }
    // The heartbeat's summary ends in its running identifier, so that a
    // listener sees each beat as new and can tell when one went missing.
    std::ostringstream summary;
    summary << frame.record().summary;
    if (eventNumber == heartbeatEvent) {
        summary << frame.alert().getId();
    } else {
        frame.setAlertingElement(pathText);
    }
    ControllerIndicationParts::setIdentity(frame, controllerText, firmwareVersion, manufacturer,
                                           serialNumber, model);
    frame.setFromRecord(context, summary.str());
    CmpiCpp::CmpiInstance instance = frame.takeInstance();
    ControllerIndicationParts::addVariables(_logger, instance, changeName, cacheSize,
                                            cacheSerialNumber);

    Trap trap;
    std::optional<int> status;
    std::optional<int> code;
    switch (eventNumber) {
    case 8:
        trap = {3040, 16, {}};
        break;
    case 9:
        trap = {3038, 8, {}};
        status = 3;
        code = 2;
        break;
    case 10:
        trap = {3038, 8, {}};
        status = 4;
        code = errorCode(cacheState);
        break;
    case 11:
        trap = {3038, 12, {}};
        status = 5;
        code = errorCode(cacheState);
        break;
    case 12:
        trap = {3038, 16, {}};
        status = 9;
        code = 2;
        break;
    default:
        break;
    }
    if (trap.number != 0) {
        using ControllerIndicationParts::controllerOid;
        auto const accelerator = [controllerIndex](std::uint32_t column) {
            return enterpriseOid({3, 2, 2, 2, 1, column, controllerIndex});
        };
        // The MIB's model object holds the controller family, "27" for every
        // Veldra controller; the model text goes on the alert as DeviceModel.
        trap.variables = {
            TrapVariable::ofText("zrqDaCtrlrHwLocation", controllerOid(20, controllerIndex),
                                 controllerText),
            TrapVariable::ofText("zrqDaCtrlrModel", controllerOid(2, controllerIndex), "27"),
            TrapVariable::ofNumber("zqrDaAccelCtrlrIndex", accelerator(1),
                                   static_cast<int>(controllerIndex)),
            TrapVariable::ofText("zrqDaAccelSerialNumber", accelerator(11), cacheSerialNumber),
            TrapVariable::ofNumber("zrqDaAccelTotalMemory", accelerator(12),
                                   static_cast<int>(cacheSize >> 10)),
            status ? TrapVariable::ofNumber("zqqDaAccelStatus", accelerator(2), *status)
                   : TrapVariable::notSent(),
            code ? TrapVariable::ofNumber("zrqDaAccelErrCode", accelerator(5), *code)
                 : TrapVariable::notSent(),
        };
    }
    frame.addTrapInfo(instance, oidCount, trap);
    frame.sendTrap();
    frame.deliver(context, instance);
}

} // namespace QLN
