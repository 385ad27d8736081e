#pragma once
// A logical volume's state, with its previous and current status lists
// (trap 3034).
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

class QLN_VeldraStorageVolumeIndication {
public:
    QLN_VeldraStorageVolumeIndication(Logger& logger, std::string const& nameSpace);
    ~QLN_VeldraStorageVolumeIndication();
    QLN_VeldraStorageVolumeIndication(QLN_VeldraStorageVolumeIndication const&) = delete;
    QLN_VeldraStorageVolumeIndication& operator=(QLN_VeldraStorageVolumeIndication const&) = delete;

    // Sends the trap (when the event has one), then the indication. Neither
    // failure reaches the caller.
    void sendIndication(int eventNumber, std::string const& volumeText,
                        unsigned int controllerIndex, unsigned int volumeNumber,
                        unsigned int detailStatus, std::vector<std::uint16_t> const& previousStatus,
                        std::vector<std::uint16_t> const& currentStatus,
                        std::string const& changeName, std::string const& pathText,
                        CmpiCpp::CmpiContext const& context);

private:
    std::string _namespace;
    Logger _logger;
    std::unique_ptr<IndicationDB> _indicationDB;
};

} // namespace QLN
