#include "QLN_VeldraDiskDriveIndication.h"

#include "IndicationFrame.h"

namespace QLN {

namespace {
char const* const className = "QLN_VeldraDiskDriveIndication";
unsigned int const oidCount = 15;
unsigned int const statusTrap = 3046;
unsigned int const wearTrap = 3049;
std::uint16_t const onePathFailed = 0x8003;
std::uint16_t const eraseQueued = 0x8000;
std::uint16_t const diskOK = 1;

// What an event puts in the trap; trap 0 for none.
struct DiskTrap {
    unsigned int trap = 0;
    int flags = 16;
    int status = 0;
    bool passFailureCode = false;
};

DiskTrap selectTrap(int eventNumber, std::uint16_t previousStatus, std::uint16_t currentStatus) {
    switch (eventNumber) {
    case 1:
        return {statusTrap, 8, 2, false};
    case 2:
        return {statusTrap, 16, 3, true};
    case 4:
        return {statusTrap, 12, 4, false};
    case 5:
        if (currentStatus == eraseQueued)
            return {statusTrap, 12, 7, true};
        if (currentStatus == onePathFailed && previousStatus != diskOK)
            return {statusTrap, 8, 2, false};
        return {statusTrap, 12, 1, true};
    case 6:
        return {wearTrap, 12, 8, false};
    case 7:
        return {statusTrap, 16, 9, false};
    case 8:
    case 9:
    case 10:
    case 11:
        return {wearTrap, 16, 4, false};
    case 12:
        return {statusTrap, 8, 2, false};
    case 13:
        return {statusTrap, 12, 5, false};
    case 14:
        return {statusTrap, 12, 6, false};
    default:
        return {};
    }
}

// The MIB's drive type for the interface the controller reports.
int driveType(std::uint16_t driveInterface) {
    switch (driveInterface) {
    case 2:
        return 3;
    case 3:
        return 4;
    default:
        return 1;
    }
}
} // namespace

QLN_VeldraDiskDriveIndication::QLN_VeldraDiskDriveIndication(Logger& logger,
                                                             std::string const& nameSpace)
    : _namespace(nameSpace), _logger(logger) {
    _logger.appendLogSource(":");
    _logger.appendLogSource(className);
    _logger.info("cxtor");
    _logger.info("Creating Veldra Indication DB");
    _indicationDB = std::make_unique<IndicationDB>(_logger, className);
}

QLN_VeldraDiskDriveIndication::~QLN_VeldraDiskDriveIndication() {
    _logger.info("dxtor");
}

void QLN_VeldraDiskDriveIndication::sendIndication(
    int eventNumber, std::uint16_t previousStatus, std::uint16_t currentStatus,
    std::string const& firmwareRevision, std::string const& volumeText, std::string const& bayText,
    std::string const& controllerText, std::string const& diskSerial, std::string const& diskModel,
    unsigned int controllerIndex, unsigned int locationCode, std::uint16_t driveInterface,
    std::uint16_t lastFailureReason, unsigned int enclosureBoxNumber,
    std::string const& failureReasonText, std::string const& changeName,
    std::string const& pathText, CmpiCpp::CmpiContext const& context) {
    IndicationFrame frame(_logger, _namespace, className);
    if (!frame.begin(*_indicationDB, eventNumber, "Send Veldra indication: %d")) {
        return;
    }
    frame.setAlertingElement(pathText);
    frame.setPresent(&MWAlertIndication::setHWFirmwareVersion, firmwareRevision,
                     "Veldra Physical Drive:");
    frame.setPresent(&MWAlertIndication::setHWLogicalLocation, volumeText);
    frame.setPresent(&MWAlertIndication::setHWPhysicalLocation, bayText);
    frame.setPresent(&MWAlertIndication::setDeviceControllerLogicalLocation, controllerText);
    // Disks without a serial report a placeholder; it names no disk.
    if (diskSerial.find("NoSerialNum") == std::string::npos) {
        frame.setPresent(&MWAlertIndication::setHWSerialNumber, diskSerial,
                         "Veldra Physical Disk:");
    }
    frame.setPresent(&MWAlertIndication::setDeviceModel, diskModel);
    frame.setFromRecord(context, frame.record().summary);
    CmpiCpp::CmpiInstance instance = frame.takeInstance();

    _logger.info("set variable properties: Description: %s Drive Interface: %d", changeName.c_str(),
                 static_cast<int>(driveInterface));
    IndicationFrame::addVariables(instance, {{"FailureDescription", 1, changeName},
                                             {"DriveInterface", 4, std::to_string(driveInterface)},
                                             {"LastFailureDescription", 1, failureReasonText}});
    _logger.info("Veldra Disk Drive populating SNMP trap info");

    // A disk that comes back from, or an OK disk that runs into, the loss of
    // one of its paths is not news: nothing goes out.
    if ((eventNumber == 1 && previousStatus == onePathFailed) ||
        (eventNumber == 5 && currentStatus == onePathFailed && previousStatus == diskOK)) {
        return;
    }

    DiskTrap const selected = selectTrap(eventNumber, previousStatus, currentStatus);
    Trap trap;
    trap.number = selected.trap;
    trap.flags = selected.flags;
    if (trap.number != 0) {
        auto const disk = [&](std::uint32_t column) {
            return enterpriseOid({3, 2, 5, 1, 1, column, controllerIndex, locationCode});
        };
        int const failureCode = selected.passFailureCode ? lastFailureReason : 0;
        trap.variables = {
            TrapVariable::ofText("zrqDaCntlrHwLocation",
                                 enterpriseOid({3, 2, 2, 1, 1, 20, controllerIndex}),
                                 controllerText),
            TrapVariable::ofNumber("zrqDaPhyDrvCntlrIndex", disk(1),
                                   static_cast<int>(controllerIndex)),
            TrapVariable::ofNumber("zrqDaPhyDrvIndex", disk(2), static_cast<int>(locationCode)),
            TrapVariable::ofText("zrqDaPhyDrvLocationString", disk(64), volumeText),
            TrapVariable::ofNumber("zrqDaPhyDrvType", disk(60), driveType(driveInterface)),
            TrapVariable::ofText("zrqDaPhyDrvModel", disk(3), diskModel),
            TrapVariable::ofText("zrqDaPhyDrvFWRev", disk(4), firmwareRevision),
            TrapVariable::ofText("zrqDaPhyDrvSerialNum", disk(51), diskSerial),
            // The failure code is a 16-bit value on the wire.
            TrapVariable::ofNumber("zrqDaPhyDrvFailureCode", disk(55), failureCode, 2),
            TrapVariable::ofNumber("zrqDaPhyDrvStatus", disk(37), selected.status),
            TrapVariable::ofNumber("zrqDaPhyDrvBusNumber", disk(50),
                                   static_cast<int>(enclosureBoxNumber)),
            trap.number == wearTrap
                ? TrapVariable::ofNumber("zrqDaPhyDrvSSDWearStatus", disk(73), currentStatus)
                : TrapVariable::notSent(),
        };
    }
    frame.addTrapInfo(instance, oidCount, trap);
    _logger.info("Veldra Disk Drive sending SNMP trap info");
    frame.sendTrap();
    frame.deliver(context, instance);
}

} // namespace QLN
