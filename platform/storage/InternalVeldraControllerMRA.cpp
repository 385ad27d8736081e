#include "InternalVeldraControllerMRA.h"

#include "FrameworkConfig.h"
#include "SimulatedControllerMRA.h"

#include <dlfcn.h>
#include <sys/stat.h>

#include <exception>

namespace {
bool isFile(std::string const& path) {
    struct stat st {};
    return ::stat(path.c_str(), &st) == 0 && S_ISREG(st.st_mode);
}

std::string libraryDirectory() {
    Dl_info info{};
    if (::dladdr(reinterpret_cast<void*>(&internalVeldraControllerMRAFactory), &info) == 0 ||
        !info.dli_fname)
        return "";
    std::string path = info.dli_fname;
    auto slash = path.rfind('/');
    return slash == std::string::npos ? "." : path.substr(0, slash);
}
} // namespace

std::string InternalVeldraControllerMRA::defaultScenarioPath() {
    std::string installed = libraryDirectory() + "/../share/veldra/scenarios/demo.yaml";
    if (isFile(installed))
        return installed;
    std::string source = std::string(VELDRA_STORAGE_DATA_DIR) + "/scenarios/demo.yaml";
    if (isFile(source))
        return source;
    return "";
}

InternalVeldraControllerMRA* internalVeldraControllerMRAFactory(Logger& logger) {
    try {
        std::string backend = QLN::FrameworkConfig::getString("VELDRA_STORAGE_BACKEND", "sim");
        if (backend != "sim") {
            logger.error("storage back end '%s' is not known (known: sim)", backend.c_str());
            return nullptr;
        }
        std::string scenario = QLN::FrameworkConfig::getString("VELDRA_SCENARIO", "");
        if (scenario.empty())
            scenario = InternalVeldraControllerMRA::defaultScenarioPath();
        if (scenario.empty()) {
            logger.error(
                "no scenario file: VELDRA_SCENARIO is not set and no demo.yaml is installed");
            return nullptr;
        }
        return new SimulatedControllerMRA(scenario, logger);
    } catch (std::exception const& e) {
        logger.error("storage access cannot start: %s", e.what());
        return nullptr;
    }
}
