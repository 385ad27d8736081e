#include "ScenarioPrinter.h"

#include "LocatorLog.h"
#include "ScenarioParser.h"
#include "SimCommandError.h"
#include "VeldraControllerData.h"
#include "VeldraEnclosure.h"
#include "VeldraLogicalDisk.h"
#include "VeldraStorageFunctions.h"

#include <map>
#include <set>

namespace {

std::string hex(u32 value) {
    char text[16];
    std::snprintf(text, sizeof text, value >= 0x8000 ? "0x%x" : "%u", value);
    return text;
}

std::string idList(std::vector<u32> const& ids) {
    std::string text;
    for (u32 id : ids)
        text += (text.empty() ? "" : ",") + std::to_string(id);
    return text.empty() ? "-" : text;
}

void printDisk(VeldraPhysicalDisk const& d, std::ostream& out, char const* indent) {
    out << indent << "disk " << d.getId() << "  "
        << (d.getSerialNumber().empty() ? std::string("(no serial)") : d.getSerialNumber()) << "  "
        << d.getModel() << "  box " << d.getEnclosureBoxNumber() << " bay " << d.getBay() << "  "
        << d.diskConfigToStr(d.getConfiguration()) << "  " << d.diskStatusToStr(d.getStatus())
        << " (" << hex(d.getStatus()) << ")";
    if (d.getIsActiveSpare())
        out << "  active spare";
    if (d.getSupportsGasGauge())
        out << "  wear " << d.SSDWearStatusToStr(d.getSSDWearStatus());
    out << "\n";
}

} // namespace

void ScenarioPrinter::print(std::string const& scenarioPath, std::ostream& out) {
    VeldraScenario scenario;
    try {
        scenario = ScenarioParser::parseFile(scenarioPath);
    } catch (ScenarioError const& e) {
        throw SimCommandError(std::string("the scenario is not valid: ") + e.what());
    }
    out << "Scenario " << scenarioPath << ": " << scenario.controllers.size() << " controller(s)\n";
    int number = 0;
    for (auto const& c : scenario.controllers) {
        ++number;
        VeldraControllerData data(c.data);
        std::string serial = "(unreadable)", model = "(unreadable)";
        data.getControllerSerialNumber(serial);
        data.getModel(model);
        controllerOperationalStatusEnum op = CONTROLLER_OP_STATUS_UNKNOWN;
        cacheStatusEnum cache = CACHE_STATUS_NOT_CONFIGURED;
        batteryStatusEnum battery = BATTERY_NOT_PRESENT;
        bool opRead = data.getControllerOperationalStatus(op) == 0;
        bool cacheRead = data.getCacheStatus(cache) == 0;
        bool batteryRead = data.getBatteryStatus(battery) == 0;
        out << "Controller " << number << ": " << model << "  serial " << serial << "  status "
            << (opRead ? data.operationalStatusToStr(op) : "(unreadable)") << "  cache "
            << (cacheRead ? data.cacheStatusToStr(cache) : "(unreadable)") << "  battery "
            << (batteryRead ? data.batteryStatusToStr(battery) : "(unreadable)") << "\n";
        if (!c.data->fail.empty()) {
            out << "  failing:";
            for (auto const& f : c.data->fail)
                out << " " << f;
            out << "\n";
        }
        std::vector<VeldraPhysicalDisk> disks(c.physicalDisks.begin(), c.physicalDisks.end());
        std::set<u32> shown;
        for (auto const& info : c.enclosures) {
            VeldraEnclosure e(info);
            auto overall = e.getOverallStatus();
            auto fan = e.getFanStatus();
            auto ps = e.getPowerSupplyStatus();
            auto temp = e.getTempSensorStatus();
            out << "  Enclosure box " << e.getEnclosureBoxNumber() << "  " << e.getSerialNumber()
                << "  " << e.getModel() << "  " << e.OverallStatusToStr(overall) << "  ["
                << e.FanStatusToStr(fan) << ", " << e.PowerSupplyStatusToStr(ps) << ", "
                << e.TempSensorStatusToStr(temp) << "]  " << pathsToUserStr(e.getPaths(), -1)
                << "\n";
            for (auto const& d : disks)
                if (static_cast<u32>(d.getEnclosureBoxNumber()) == e.getEnclosureBoxNumber()) {
                    printDisk(d, out, "    ");
                    shown.insert(d.getId());
                }
        }
        for (auto const& d : disks)
            if (!shown.count(d.getId()))
                printDisk(d, out, "  (no enclosure) ");
        for (auto const& info : c.logicalDisks) {
            VeldraLogicalDisk v(info);
            out << "  Volume " << v.getLogicalVolumeNumber() << "  " << v.getSerialNumber() << "  "
                << v.getDriveLabel() << "  " << v.toleranceToStr(v.getTolerance()) << "  "
                << v.statusToStr(v.getStatus()) << " (" << hex(v.getStatus()) << ")  data "
                << idList(v.dataDiskIDs) << "  spares " << idList(v.spareDiskIDs);
            for (u32 spare : v.spareDiskIDs)
                if (u32 replaced = v.getReplacedDiskID(spare);
                    replaced != VeldraLogicalDisk::noReplacedDisk)
                    out << "  (spare " << spare << " stands in for " << replaced << ")";
            if (v.getLogicalVolumeType() == 2 || v.getLogicalVolumeType() == 3)
                out << "  "
                    << (v.getLogicalVolumeType() == 2 ? "cached by volume " : "cache of volume ")
                    << (v.getRelatedLUN() & 0xffff);
            out << "\n";
        }
    }
    auto requests = LocatorLog::read(scenarioPath);
    out << "Locator requests: " << (requests.empty() ? "none" : std::to_string(requests.size()))
        << "\n";
    for (auto const& line : requests)
        out << "  " << line << "\n";
}
