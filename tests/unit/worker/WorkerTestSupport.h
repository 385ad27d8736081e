#pragma once
// What the worker tests share: a scenario copy that veldra-sim edits, a
// provider started on it, and one pass run as the autostart thread runs it.
#include "CapturedMethodResult.h"
#include "CmpiArgs.h"
#include "ProviderTestSupport.h"
#include "QLNVeldraProvider.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <iterator>
#include <memory>
#include <set>
#include <string>

namespace worker_test {

class WorkingCopy {
public:
    explicit WorkingCopy(std::string const& scenario) {
        _dir = std::filesystem::temp_directory_path() /
               ("veldra-worker-" + std::to_string(::getpid()) + "-" + std::to_string(_next++));
        std::filesystem::create_directories(_dir);
        _file = _dir / "scenario.yaml";
        std::filesystem::copy_file(std::string(VELDRA_DATA_DIR) + "/scenarios/" + scenario, _file);
        ::setenv("VELDRA_SCENARIO", _file.c_str(), 1);
    }
    ~WorkingCopy() { std::filesystem::remove_all(_dir); }

    void sim(std::string const& command) const { ASSERT_TRUE(trySim(command)) << command; }
    // False when veldra-sim refused the command (the file is then unchanged).
    bool trySim(std::string const& command) const {
        std::string const line = std::string(VELDRA_BIN_DIR) + "/veldra-sim --scenario " +
                                 _file.string() + " " + command + " > /dev/null 2>&1";
        return std::system(line.c_str()) == 0;
    }

private:
    static inline int _next = 0;
    std::filesystem::path _dir;
    std::filesystem::path _file;
};

inline std::unique_ptr<QLN::QLNVeldraProvider> startProvider() {
    Logger logger("QLNVeldra");
    return std::make_unique<QLN::QLNVeldraProvider>(CmpiCpp::CmpiBroker(), logger);
}

inline void pass(QLN::QLNVeldraProvider& provider) {
    CmpiCpp::CmpiObjectPath const path =
        CmpiCpp::makeCmpiObjectPath(CmpiCpp::CmpiBroker(), "root/mwq", "QLN_VDArraySystem");
    QLN::CapturedMethodResult result;
    provider.invokeMethod(CmpiCpp::CmpiContext(), path, CmpiCpp::CmpiName("PerformWork"),
                          CmpiCpp::CmpiArgs(), result);
    ASSERT_EQ(result.returnValue().value_or(99), 0u);
}

inline std::multiset<std::string> graphOf(QLN::QLNVeldraProvider const& provider) {
    std::vector<std::string> const paths = provider.instancePaths();
    return {paths.begin(), paths.end()};
}

// What one side has and the other lacks, one path a line, for a readable failure.
inline std::string difference(std::multiset<std::string> const& left,
                              std::multiset<std::string> const& right) {
    std::vector<std::string> only;
    std::set_difference(left.begin(), left.end(), right.begin(), right.end(),
                        std::back_inserter(only));
    std::string text;
    for (std::string const& path : only) {
        text += "  " + path + "\n";
    }
    return text;
}

// A start numbers the host view's volumes by their place in the list, a
// rebuild by their own volume numbers; once a volume is deleted the two
// differ on purpose, so those are compared by count only.
inline std::size_t takeViewVolumes(std::multiset<std::string>& graph) {
    return std::erase_if(graph, [](std::string const& path) {
        return path.find(":DRSV_VDStorageVolume.") != std::string::npos;
    });
}

} // namespace worker_test
