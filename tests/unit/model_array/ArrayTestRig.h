#pragma once
// A scenario on disk, the simulated back end over it, and the snapshots
// primed the way the graph factory primes them, so that the classes read
// what they would read in the provider.
#include "CmpiInstance.h"
#include "Logger.h"
#include "SimulatedControllerMRA.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <sstream>
#include <string>

class ArrayTestRig {
public:
    // `controllers` is the YAML list under "controllers:", indented by two.
    explicit ArrayTestRig(std::string const& controllers) {
        std::string pattern =
            (std::filesystem::temp_directory_path() / "veldra-array-XXXXXX").string();
        char* made = ::mkdtemp(pattern.data());
        _dir = made ? made : pattern;
        path = (_dir / "scenario.yaml").string();
        _write(controllers);
        backend = std::make_unique<SimulatedControllerMRA>(path, logger);
        _prime();
    }
    ~ArrayTestRig() {
        backend.reset();
        std::error_code ignored;
        std::filesystem::remove_all(_dir, ignored);
    }

    VeldraController* controller(int number = 1) {
        VeldraController* found = backend->getFirstData();
        for (int i = 1; i < number && found; ++i)
            found = backend->getNextData(found);
        return found;
    }

    // Replaces the hardware and takes the new state as the stored snapshots,
    // as a worker pass that consumed the change would leave them.
    void rewrite(std::string const& controllers) {
        _write(controllers);
        for (VeldraController* c = backend->getFirstData(); c; c = backend->getNextData(c)) {
            c->getControllerDataCount(); // makes the back end look at the file
        }
        _prime();
    }

    Logger logger{"array-test"};
    std::string path;
    std::unique_ptr<SimulatedControllerMRA> backend;

private:
    void _write(std::string const& controllers) {
        // Write beside and rename, so the back end never reads half a file.
        std::string temp = path + ".tmp";
        std::ofstream(temp) << "controllers:\n" << controllers;
        std::filesystem::rename(temp, path);
        // A rewrite within the same second must still look changed.
        static int bump = 0;
        auto stamp = std::filesystem::file_time_type::clock::now() + std::chrono::seconds(++bump);
        std::filesystem::last_write_time(path, stamp);
    }

    void _prime() {
        for (VeldraController* c = backend->getFirstData(); c; c = backend->getNextData(c)) {
            auto physicals = c->getAllPhysicalDisks();
            for (auto& disk : physicals) {
                auto paths = disk.getPaths();
                disk.setLastAllPhysicalPaths(paths);
            }
            c->setLastAllPhysicalDisks(physicals);
            auto logicals = c->getAllLogicalDisks();
            for (auto& logical : logicals) {
                auto members = logical.logicalToAllPhysicals(physicals);
                logical.setLastAllPhysicalDisks(members);
            }
            c->setLastLogicalDisks(logicals);
            auto enclosures = c->getAllEnclosures();
            c->setLastAllEnclosures(enclosures);
            c->setLastVDData(c->getVDData());
        }
    }

    std::filesystem::path _dir;
};

// The instance's property names in order, joined by blanks.
inline std::string propertyNames(CmpiCpp::CmpiInstance const& instance) {
    std::string names;
    for (unsigned int i = 0; i < instance.getPropertyCount(); ++i)
        names += (i ? " " : "") + instance.getPropertyNameAt(i).str();
    return names;
}
