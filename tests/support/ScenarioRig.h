#pragma once
// The one scenario rig of the unit tests: a scenario written to a folder of
// the test's own, the simulated controllers that read it, and the snapshots
// primed the way the graph factory primes them (disks and enclosures with
// their last routes, volumes with their member disks), so that the classes
// read what they would read in the provider. The log goes to a file in the
// same folder so that lines can be checked.
#include "FrameworkConfig.h"
#include "Logger.h"
#include "SimulatedControllerMRA.h"
#include "TempDir.h"

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

class ScenarioRig {
public:
    // Tag for a text that is only the list under "controllers:".
    struct ControllerList {};
    static constexpr ControllerList controllerList{};

    explicit ScenarioRig(std::string const& yaml) : path(_dir.file("scenario.yaml")) {
        ::setenv("VELDRA_LOG", _dir.file("log.txt").c_str(), 1);
        QLN::FrameworkConfig::reload();
        _write(yaml);
        backend = std::make_unique<SimulatedControllerMRA>(path, logger);
        for (VeldraController* c = backend->getFirstData(); c; c = backend->getNextData(c)) {
            controllers.push_back(c);
            prime(c);
        }
    }
    ScenarioRig(ControllerList, std::string const& list) : ScenarioRig("controllers:\n" + list) {}

    ~ScenarioRig() {
        backend.reset();
        ::setenv("VELDRA_LOG", "stderr", 1);
        QLN::FrameworkConfig::reload();
    }

    // The controller of this 1-based number, null past the last.
    VeldraController* controller(std::size_t number = 1) const {
        return number >= 1 && number <= controllers.size() ? controllers[number - 1] : nullptr;
    }

    VeldraPhysicalDisk disk(std::size_t controllerAt, std::size_t at) const {
        return controllers.at(controllerAt)->getLastAllPhysicalDisks().at(at);
    }

    // New hardware the way veldra-sim writes it; the snapshots stay as they
    // were until prime().
    void write(std::string const& yaml) {
        _write(yaml);
        // The back end looks at the file when a live counter is read, as the
        // worker does at the start of each pass.
        for (VeldraController* c : controllers)
            c->getDiskVectorCount();
    }

    // New hardware, accepted as a worker pass would accept it.
    void change(std::string const& yaml) {
        write(yaml);
        for (VeldraController* c : controllers)
            prime(c);
    }
    void change(ControllerList, std::string const& list) { change("controllers:\n" + list); }

    // Stores the controller's current hardware as its accepted snapshot.
    static void prime(VeldraController* controller) {
        std::vector<VeldraPhysicalDisk> disks = controller->getAllPhysicalDisks();
        for (VeldraPhysicalDisk& disk : disks) {
            std::vector<VeldraPhysicalPath> paths = disk.getPaths();
            disk.setLastAllPhysicalPaths(paths);
        }
        controller->setLastAllPhysicalDisks(disks);
        std::vector<VeldraLogicalDisk> logicals = controller->getAllLogicalDisks();
        for (VeldraLogicalDisk& logical : logicals) {
            std::vector<VeldraPhysicalDisk> members = logical.logicalToAllPhysicals(disks);
            logical.setLastAllPhysicalDisks(members);
        }
        controller->setLastLogicalDisks(logicals);
        std::vector<VeldraEnclosure> enclosures = controller->getAllEnclosures();
        for (VeldraEnclosure& enclosure : enclosures) {
            std::vector<VeldraPhysicalPath> paths = enclosure.getPaths();
            enclosure.setLastAllPhysicalPaths(paths);
        }
        controller->setLastAllEnclosures(enclosures);
        controller->setLastVDData(controller->getVDData());
    }

    std::string log() const {
        std::stringstream all;
        all << std::ifstream(_dir.file("log.txt")).rdbuf();
        return all.str();
    }

private:
    TempDir _dir;

public:
    Logger logger{"QLNVeldra"};
    std::string path;
    std::unique_ptr<SimulatedControllerMRA> backend;
    std::vector<VeldraController*> controllers;

private:
    void _write(std::string const& yaml) {
        // Beside and renamed, so the back end never reads half a file.
        std::ofstream(path + ".tmp") << yaml;
        std::filesystem::rename(path + ".tmp", path);
        // A rewrite within the same second must still look changed.
        static int bump = 0;
        std::filesystem::last_write_time(path, std::filesystem::file_time_type::clock::now() +
                                                   std::chrono::seconds(++bump));
    }
};
