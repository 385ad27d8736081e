#pragma once
// What the provider tests share: in-memory result sinks, and a log file that
// the framework writes to so that tests can read the exact lines.
#include "CmpiInstance.h"
#include "CmpiInstanceResult.h"
#include "CmpiObjectPath.h"
#include "CmpiObjectPathResult.h"
#include "FrameworkConfig.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <unistd.h>
#include <vector>

namespace provider_test {

struct Instances : CmpiCpp::CmpiInstanceResult {
    void returnInstance(CmpiCpp::CmpiInstance const& instance) override {
        rows.push_back(instance);
    }
    std::vector<CmpiCpp::CmpiInstance> rows;
};

struct Paths : CmpiCpp::CmpiObjectPathResult {
    void returnObjectPath(CmpiCpp::CmpiObjectPath const& path) override { rows.push_back(path); }
    std::vector<CmpiCpp::CmpiObjectPath> rows;
};

// Points the framework's log at a fresh file for the life of the object.
class LogCapture {
public:
    LogCapture() {
        _path = std::filesystem::temp_directory_path() /
                ("veldra-provider-test-" + std::to_string(::getpid()) + "-" +
                 std::to_string(_next++) + ".log");
        std::filesystem::remove(_path);
        ::setenv("VELDRA_LOG", _path.c_str(), 1);
        QLN::FrameworkConfig::reload();
    }
    ~LogCapture() {
        ::setenv("VELDRA_LOG", "stderr", 1);
        QLN::FrameworkConfig::reload();
        std::filesystem::remove(_path);
    }
    std::string text() const {
        std::ifstream in(_path);
        std::stringstream all;
        all << in.rdbuf();
        return all.str();
    }
    int count(std::string const& needle) const {
        std::string const all = text();
        int n = 0;
        for (auto at = all.find(needle); at != std::string::npos; at = all.find(needle, at + 1)) {
            ++n;
        }
        return n;
    }

private:
    static inline int _next = 0;
    std::filesystem::path _path;
};

inline void useScenario(std::string const& name) {
    ::setenv("VELDRA_SCENARIO", (std::string(VELDRA_DATA_DIR) + "/scenarios/" + name).c_str(), 1);
}

} // namespace provider_test
