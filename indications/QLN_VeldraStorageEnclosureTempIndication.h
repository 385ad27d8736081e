#pragma once
// An enclosure's temperature (events 7 to 9, traps 8011 down to 8009).
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

class QLN_VeldraStorageEnclosureTempIndication {
public:
    QLN_VeldraStorageEnclosureTempIndication(Logger& logger, std::string const& nameSpace);
    ~QLN_VeldraStorageEnclosureTempIndication();
    QLN_VeldraStorageEnclosureTempIndication(QLN_VeldraStorageEnclosureTempIndication const&) =
        delete;
    QLN_VeldraStorageEnclosureTempIndication&
    operator=(QLN_VeldraStorageEnclosureTempIndication const&) = delete;

    // Sends the trap (when the event has one), then the indication. Neither
    // failure reaches the caller.
    void sendIndication(int eventNumber, std::string const& pathsText,
                        std::string const& enclosureSerial, std::string const& enclosureModel,
                        unsigned int controllerIndex, unsigned int enclosureBoxNumber,
                        std::string const& pathText, CmpiCpp::CmpiContext const& context);

private:
    std::string _namespace;
    Logger _logger;
    std::unique_ptr<IndicationDB> _indicationDB;
};

} // namespace QLN
