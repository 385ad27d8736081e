#pragma once
// A physical disk's state and, for disks with a gas gauge, its wear (traps
// 3046 and 3049). A disk that only regains or loses one path is not news:
// those two cases send nothing.
// An object serves one event: construct it, call sendIndication once,
// destroy it. The event number selects the record of the indication
// database and the trap; the caller decides that the event happened.
#include "CmpiContext.h"
#include "IndicationDB.h"
#include "Logger.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace QLN {

class QLN_VeldraDiskDriveIndication {
public:
    QLN_VeldraDiskDriveIndication(Logger& logger, std::string const& nameSpace);
    ~QLN_VeldraDiskDriveIndication();
    QLN_VeldraDiskDriveIndication(QLN_VeldraDiskDriveIndication const&) = delete;
    QLN_VeldraDiskDriveIndication& operator=(QLN_VeldraDiskDriveIndication const&) = delete;

    // Sends the trap (when the event has one), then the indication. Neither
    // failure reaches the caller.
    void sendIndication(int eventNumber, std::uint16_t previousStatus, std::uint16_t currentStatus,
                        std::string const& firmwareRevision, std::string const& volumeText,
                        std::string const& bayText, std::string const& controllerText,
                        std::string const& diskSerial, std::string const& diskModel,
                        unsigned int controllerIndex, unsigned int locationCode,
                        std::uint16_t driveInterface, std::uint16_t lastFailureReason,
                        unsigned int enclosureBoxNumber, std::string const& failureReasonText,
                        std::string const& changeName, std::string const& pathText,
                        CmpiCpp::CmpiContext const& context);

private:
    std::string _namespace;
    Logger _logger;
    std::unique_ptr<IndicationDB> _indicationDB;
};

} // namespace QLN
