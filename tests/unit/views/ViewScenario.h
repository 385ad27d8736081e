#pragma once
// A scenario file of the tests' own that they change while the provider
// runs: each change is written beside the file and renamed over it, as
// veldra-sim does, so the storage library sees a new version at once.
#include "CapturedMethodResult.h"
#include "CmpiArgs.h"
#include "CmpiObjectPath.h"
#include "ProviderTestSupport.h"
#include "QLNVeldraProvider.h"

#include <yaml-cpp/yaml.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <unistd.h>

namespace view_test {

class ViewScenario {
public:
    explicit ViewScenario(std::string const& from) {
        static int next = 0;
        _path =
            std::filesystem::temp_directory_path() /
            ("veldra-view-" + std::to_string(::getpid()) + "-" + std::to_string(next++) + ".yaml");
        yaml = YAML::LoadFile(std::string(VELDRA_DATA_DIR) + "/scenarios/" + from);
        write();
        ::setenv("VELDRA_SCENARIO", _path.c_str(), 1);
    }
    ~ViewScenario() { std::filesystem::remove(_path); }

    YAML::Node controller(int number) { return yaml["controllers"][number - 1]; }

    // Serials for the disks without one, so that every disk has a DeviceID
    // of its own and counts of made and freed instances add up.
    void serialEveryDisk() {
        int next = 0;
        for (auto controller : yaml["controllers"]) {
            for (auto disk : controller["physicalDisks"]) {
                if (!disk["serialNumber"]) {
                    disk["serialNumber"] = "TESTSERIAL" + std::to_string(next++);
                }
            }
        }
        write();
    }

    void write() {
        std::string const staged = _path.string() + ".new";
        {
            std::ofstream out(staged);
            out << YAML::Dump(yaml) << "\n";
        }
        std::filesystem::rename(staged, _path);
    }

    // Takes the disk at this list position off the controller.
    void pullDisk(int controllerNumber, std::size_t position) {
        YAML::Node disks = controller(controllerNumber)["physicalDisks"];
        YAML::Node kept(YAML::NodeType::Sequence);
        for (std::size_t i = 0; i < disks.size(); ++i) {
            if (i != position) {
                kept.push_back(disks[i]);
            }
        }
        controller(controllerNumber)["physicalDisks"] = kept;
        write();
    }

    YAML::Node yaml;

private:
    std::filesystem::path _path;
};

// Extents a controller shows: disks without a serial number and of the same
// model share one DeviceID, and the later one stands for both.
inline std::size_t distinctDisks(ViewScenario& scenario, int controllerNumber) {
    std::set<std::string> ids;
    for (auto const& disk : scenario.controller(controllerNumber)["physicalDisks"]) {
        std::string id =
            disk["model"].as<std::string>("") + "-" + disk["serialNumber"].as<std::string>("");
        std::erase(id, ' ');
        ids.insert(id);
    }
    return ids.size();
}

inline std::unique_ptr<QLN::QLNVeldraProvider> startProvider() {
    Logger logger("QLNVeldra");
    return std::make_unique<QLN::QLNVeldraProvider>(CmpiCpp::CmpiBroker(), logger);
}

inline CmpiCpp::CmpiObjectPath viewPath(char const* className) {
    return CmpiCpp::makeCmpiObjectPath(CmpiCpp::CmpiBroker(), "root/cimv2", className);
}

inline std::vector<CmpiCpp::CmpiInstance> enumerate(QLN::QLNVeldraProvider& provider,
                                                    char const* className) {
    provider_test::Instances rows;
    provider.enumInstances(CmpiCpp::CmpiContext(), viewPath(className), nullptr, rows);
    return rows.rows;
}

inline std::string text(CmpiCpp::CmpiInstance const& instance, char const* property) {
    return instance.getProperty(property).getString();
}

// ElementName by DeviceID (or by Name for classes without one).
inline std::map<std::string, std::string> elementNames(QLN::QLNVeldraProvider& provider,
                                                       char const* className,
                                                       char const* key = "DeviceID") {
    std::map<std::string, std::string> names;
    for (auto const& row : enumerate(provider, className)) {
        names[text(row, key)] = text(row, "ElementName");
    }
    return names;
}

inline void runPass(QLN::QLNVeldraProvider& provider) {
    QLN::CapturedMethodResult result;
    CmpiCpp::CmpiObjectPath path =
        CmpiCpp::makeCmpiObjectPath(CmpiCpp::CmpiBroker(), "root/mwq", "QLN_AutoStartVeldra");
    provider.invokeMethod(CmpiCpp::CmpiContext(), path, CmpiCpp::CmpiName("PerformWork"),
                          CmpiCpp::CmpiArgs(), result);
}

} // namespace view_test
