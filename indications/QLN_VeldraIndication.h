#pragma once
// A controller's cache (the accelerator of the MIB), battery and encryption,
// and the provider's heartbeat (event 100). Traps 3038 and 3040.
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

class QLN_VeldraIndication {
public:
    QLN_VeldraIndication(Logger& logger, std::string const& nameSpace);
    ~QLN_VeldraIndication();
    QLN_VeldraIndication(QLN_VeldraIndication const&) = delete;
    QLN_VeldraIndication& operator=(QLN_VeldraIndication const&) = delete;

    // Sends the trap (when the event has one), then the indication. Neither
    // failure reaches the caller.
    void sendIndication(int eventNumber, unsigned int controllerIndex, std::uint16_t cacheState,
                        std::string const& firmwareVersion, std::string const& controllerText,
                        std::string const& manufacturer, std::string const& serialNumber,
                        std::string const& model, std::string const& changeName,
                        unsigned int cacheSize, std::string const& cacheSerialNumber,
                        std::string const& pathText, CmpiCpp::CmpiContext const& context);

private:
    std::string _namespace;
    Logger _logger;
    std::unique_ptr<IndicationDB> _indicationDB;
};

} // namespace QLN
