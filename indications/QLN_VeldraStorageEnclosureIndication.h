#pragma once
// An enclosure's power supplies (events 1 to 3, trap 8031) and fans (4 to 6,
// trap 8029).
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

class QLN_VeldraStorageEnclosureIndication {
public:
    QLN_VeldraStorageEnclosureIndication(Logger& logger, std::string const& nameSpace);
    ~QLN_VeldraStorageEnclosureIndication();
    QLN_VeldraStorageEnclosureIndication(QLN_VeldraStorageEnclosureIndication const&) = delete;
    QLN_VeldraStorageEnclosureIndication&
    operator=(QLN_VeldraStorageEnclosureIndication const&) = delete;

    // Sends the trap (when the event has one), then the indication. Neither
    // failure reaches the caller.
    void sendIndication(int eventNumber, std::string const& pathsText,
                        std::string const& controllerText, std::string const& enclosureSerial,
                        std::string const& enclosureModel, std::string const& enclosureManufacturer,
                        unsigned int controllerIndex, unsigned int enclosureBoxNumber,
                        std::string const& pathText, CmpiCpp::CmpiContext const& context);

private:
    std::string _namespace;
    Logger _logger;
    std::unique_ptr<IndicationDB> _indicationDB;
};

} // namespace QLN
