#pragma once
// Simulated controllers read from a scenario written for the test, with the
// snapshots primed as the graph factory primes them (disks with their last
// paths). The log goes to a file of the test's own so lines can be checked.
#include "CmpiInstance.h"
#include "FrameworkConfig.h"
#include "Logger.h"
#include "SimulatedControllerMRA.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <sstream>
#include <string>
#include <unistd.h>
#include <vector>

namespace physicaltest {

class PhysicalTestRig {
public:
    explicit PhysicalTestRig(std::string const& yaml) {
        std::string dir = (std::filesystem::temp_directory_path() / "veldra-phys-XXXXXX").string();
        EXPECT_NE(::mkdtemp(dir.data()), nullptr);
        _dir = dir;
        ::setenv("VELDRA_LOG", (_dir / "log.txt").c_str(), 1);
        QLN::FrameworkConfig::reload();
        path = (_dir / "scenario.yaml").string();
        _write(yaml);
        _root = std::make_unique<SimulatedControllerMRA>(path, logger);
        for (VeldraController* c = _root->getFirstData(); c; c = _root->getNextData(c))
            controllers.push_back(c);
        _prime();
    }
    ~PhysicalTestRig() {
        _root.reset();
        ::setenv("VELDRA_LOG", "stderr", 1);
        QLN::FrameworkConfig::reload();
        std::error_code ignored;
        std::filesystem::remove_all(_dir, ignored);
    }

    // New hardware, accepted as a worker pass would accept it.
    void change(std::string const& yaml) {
        _write(yaml);
        for (VeldraController* c : controllers)
            c->getDiskVectorCount();
        _prime();
    }

    VeldraPhysicalDisk disk(std::size_t controller, std::size_t at) const {
        return controllers.at(controller)->getLastAllPhysicalDisks().at(at);
    }

    std::string log() const {
        std::stringstream all;
        all << std::ifstream(_dir / "log.txt").rdbuf();
        return all.str();
    }

    Logger logger{"QLNVeldra"};
    std::vector<VeldraController*> controllers;
    std::string path;

private:
    void _write(std::string const& yaml) {
        std::ofstream(path + ".tmp") << yaml;
        std::filesystem::rename(path + ".tmp", path);
        // A rewrite within the same second must still look changed.
        static int bump = 0;
        std::filesystem::last_write_time(path, std::filesystem::file_time_type::clock::now() +
                                                   std::chrono::seconds(++bump));
    }

    void _prime() {
        for (VeldraController* c : controllers) {
            std::vector<VeldraPhysicalDisk> disks = c->getAllPhysicalDisks();
            for (VeldraPhysicalDisk& disk : disks) {
                std::vector<VeldraPhysicalPath> paths = disk.getPaths();
                disk.setLastAllPhysicalPaths(paths);
            }
            c->setLastAllPhysicalDisks(disks);
            c->setLastLogicalDisks(c->getAllLogicalDisks());
            c->setLastVDData(c->getVDData());
        }
    }

    std::filesystem::path _dir;
    std::unique_ptr<SimulatedControllerMRA> _root;
};

// Property names in order, joined by blanks.
inline std::string names(CmpiCpp::CmpiInstance const& instance) {
    std::string all;
    for (unsigned int i = 0; i < instance.getPropertyCount(); ++i)
        all += (i ? " " : "") + instance.getPropertyNameAt(i).str();
    return all;
}

inline std::string text(CmpiCpp::CmpiInstance const& instance, char const* name) {
    return instance.getProperty(name).getString();
}

inline unsigned short uint16Of(CmpiCpp::CmpiInstance const& instance, char const* name) {
    EXPECT_EQ(instance.getProperty(name).getType(), CMPI_uint16) << name;
    return instance.getProperty(name).getUint16();
}

inline unsigned long long uint64Of(CmpiCpp::CmpiInstance const& instance, char const* name) {
    EXPECT_EQ(instance.getProperty(name).getType(), CMPI_uint64) << name;
    return instance.getProperty(name).getUint64();
}

// Array elements as text ("6 32771", "a|b"), which reads well in a comparison.
inline std::string elements(CmpiCpp::CmpiInstance const& instance, char const* name) {
    CmpiCpp::CmpiArray const array = instance.getProperty(name).getArray();
    std::string all;
    for (unsigned int i = 0; i < array.size(); ++i) {
        CmpiCpp::CmpiData const& value = array.getElementAt(i);
        all += (i ? (value.getType() == CMPI_string ? "|" : " ") : "") +
               (value.getType() == CMPI_string ? value.getString()
                                               : std::to_string(value.getUint16()));
    }
    return all;
}

} // namespace physicaltest
