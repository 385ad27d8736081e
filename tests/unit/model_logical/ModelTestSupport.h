#pragma once
// A scenario written to a temporary file and the simulated controllers that
// read it, with the snapshots primed the way the graph factory primes them.
// The log goes to a file of the test's own so that lines can be checked.
#include "CmpiInstance.h"
#include "FrameworkConfig.h"
#include "Logger.h"
#include "SimulatedControllerMRA.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <sstream>
#include <string>
#include <unistd.h>
#include <vector>

namespace modeltest {

class ScenarioRig {
public:
    explicit ScenarioRig(std::string const& yaml) {
        std::string pattern =
            (std::filesystem::temp_directory_path() / "veldra-model-XXXXXX").string();
        char* made = ::mkdtemp(pattern.data());
        EXPECT_NE(made, nullptr);
        _dir = pattern;
        _logPath = (_dir / "log.txt").string();
        ::setenv("VELDRA_LOG", _logPath.c_str(), 1);
        QLN::FrameworkConfig::reload();
        _scenario = (_dir / "scenario.yaml").string();
        write(yaml);
        _root = std::make_unique<SimulatedControllerMRA>(_scenario, logger);
        for (VeldraController* c = _root->getFirstData(); c; c = _root->getNextData(c)) {
            controllers.push_back(c);
            prime(c);
        }
    }
    ~ScenarioRig() {
        _root.reset();
        ::setenv("VELDRA_LOG", "stderr", 1);
        QLN::FrameworkConfig::reload();
        std::error_code ignored;
        std::filesystem::remove_all(_dir, ignored);
    }

    // Replaces the hardware the way veldra-sim does (write beside, rename).
    // The snapshots stay as they were until prime() is called again.
    void write(std::string const& yaml) {
        std::string const temp = _scenario + ".tmp";
        std::ofstream(temp) << yaml;
        std::filesystem::rename(temp, _scenario);
        // The back end looks at the file when a live counter is read, as the
        // worker does at the start of each pass.
        for (VeldraController* controller : controllers)
            controller->getDiskVectorCount();
    }

    // Stores the current hardware as the accepted snapshot.
    static void prime(VeldraController* controller) {
        std::vector<VeldraPhysicalDisk> physicals = controller->getAllPhysicalDisks();
        controller->setLastAllPhysicalDisks(physicals);
        controller->setLastLogicalDisks(controller->getAllLogicalDisks());
        controller->setLastVDData(controller->getVDData());
    }

    std::string log() const {
        std::ifstream in(_logPath);
        std::stringstream all;
        all << in.rdbuf();
        return all.str();
    }

    Logger logger{"QLNVeldra"};
    std::vector<VeldraController*> controllers;

private:
    std::filesystem::path _dir;
    std::string _logPath;
    std::string _scenario;
    std::unique_ptr<SimulatedControllerMRA> _root;
};

inline std::vector<std::string> propertyNames(CmpiCpp::CmpiInstance const& instance) {
    std::vector<std::string> names;
    for (unsigned int i = 0; i < instance.getPropertyCount(); ++i)
        names.push_back(instance.getPropertyNameAt(i).str());
    return names;
}

inline std::string text(CmpiCpp::CmpiInstance const& instance, char const* name) {
    return instance.getProperty(name).getString();
}

inline unsigned short uint16Of(CmpiCpp::CmpiInstance const& instance, char const* name) {
    CmpiCpp::CmpiData const& value = instance.getProperty(name);
    EXPECT_EQ(value.getType(), CMPI_uint16) << name;
    return value.getUint16();
}

inline unsigned long long uint64Of(CmpiCpp::CmpiInstance const& instance, char const* name) {
    CmpiCpp::CmpiData const& value = instance.getProperty(name);
    EXPECT_EQ(value.getType(), CMPI_uint64) << name;
    return value.getUint64();
}

inline std::string firstText(CmpiCpp::CmpiInstance const& instance, char const* name) {
    return instance.getProperty(name).getArray().getElementAt(0).getString();
}

inline unsigned short firstU16(CmpiCpp::CmpiInstance const& instance, char const* name) {
    return instance.getProperty(name).getArray().getElementAt(0).getUint16();
}

} // namespace modeltest
