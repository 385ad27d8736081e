#pragma once
// The state of an array controller itself: OK or failed (trap 3015).
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

class QLN_VeldraCntlrIndication {
public:
    QLN_VeldraCntlrIndication(Logger& logger, std::string const& nameSpace);
    ~QLN_VeldraCntlrIndication();
    QLN_VeldraCntlrIndication(QLN_VeldraCntlrIndication const&) = delete;
    QLN_VeldraCntlrIndication& operator=(QLN_VeldraCntlrIndication const&) = delete;

    // Sends the trap (when the event has one), then the indication. Neither
    // failure reaches the caller.
    void sendIndication(int eventNumber, unsigned int controllerIndex, unsigned int slotNumber,
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
