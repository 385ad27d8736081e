#pragma once
// The indications that a controller's poll sends: which event number a
// status maps to, the texts that go with it, and the one place that makes
// and sends each indication object.
#include "CmpiContext.h"
#include "Logger.h"
#include "VeldraControllerData.h"
#include "VeldraEnclosure.h"
#include "VeldraLogicalDisk.h"
#include "VeldraPhysicalDisk.h"

#include <cstdint>
#include <string>
#include <vector>

namespace QLN {

class DeviceEvents {
public:
    // What a volume's status says: event 0 sends nothing.
    struct VolumeEvent {
        int event = 0;
        std::vector<std::uint16_t> statusList;
        unsigned int detail = 0;
    };

    DeviceEvents(Logger& logger, unsigned int controllerIndex, CmpiCpp::CmpiContext const& context);

    // The survey of the first pass and the change stage map a few statuses differently.
    static int diskStatusEvent(u32 status, bool survey);
    static int wearEvent(u32 status);
    static VolumeEvent volumeEvent(u32 status);
    // After a change, some statuses report the old status in the list and detail.
    static VolumeEvent volumeChangeEvent(u32 oldStatus, u32 newStatus);
    static std::vector<std::uint16_t> previousVolumeStatus(u32 oldStatus);
    static int fanEvent(u32 status, bool survey);
    static int powerSupplyEvent(u32 status, bool survey);
    static int temperatureEvent(u32 status, bool survey);

    // "Veldra 8e in Slot 3"; the model and slot fall back when unknown.
    static std::string controllerText(VeldraControllerData const& data);

    void sendDisk(int event, std::uint16_t previous, std::uint16_t current,
                  VeldraPhysicalDisk const& disk, VeldraControllerData const& controllerData,
                  std::string const& changeName, std::string const& pathText);
    void sendVolume(VeldraLogicalDisk const& logical, VolumeEvent const& what,
                    std::vector<std::uint16_t> const& previousList, std::string const& changeName,
                    std::string const& pathText);
    void sendEnclosure(int event, VeldraEnclosure const& enclosure,
                       VeldraControllerData const& controllerData, std::string const& pathText);
    void sendEnclosureTemperature(int event, VeldraEnclosure const& enclosure,
                                  std::string const& pathText);
    // The controller state goes in its own class; cache, battery and
    // encryption in the general one.
    void sendControllerState(int event, VeldraControllerData const& data,
                             std::string const& changeName, std::string const& pathText);
    void sendController(int event, VeldraControllerData const& data, std::string const& changeName,
                        std::string const& pathText);

private:
    Logger& _logger;
    unsigned int _controllerIndex;
    CmpiCpp::CmpiContext const& _context;
};

} // namespace QLN
