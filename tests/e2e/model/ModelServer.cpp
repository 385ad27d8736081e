#include "ModelServer.h"

#include <yaml-cpp/yaml.h>

#include <unistd.h>

#include <atomic>
#include <fstream>
#include <sstream>

ModelServer::ModelServer(std::string const& scenarioFile, std::string const& scenarioText) {
    static std::atomic<int> serial{0};
    _dir = std::filesystem::temp_directory_path() /
           ("veldra-model-e2e-" + std::to_string(getpid()) + "-" + std::to_string(serial++));
    std::filesystem::create_directories(_dir);
    _scenario = _dir / std::filesystem::path(scenarioFile).filename();
    if (scenarioText.empty())
        std::filesystem::copy_file(scenarioFile, _scenario);
    else
        std::ofstream(_scenario) << scenarioText;
    _expected = std::make_unique<ScenarioExpectation>(_scenario.string());
    _cimd = std::make_unique<CimdProcess>(
        std::vector<std::string>{"--scenario", _scenario.string(), "--registration",
                                 VELDRA_DATA_DIR "/registration/veldra-cimd.yaml", "--mof-dir",
                                 VELDRA_DATA_DIR "/mof", "--provider-dir", VELDRA_LIB_DIR});
    _client = std::make_unique<WbemcliClient>(_cimd->port());
}

ModelServer::~ModelServer() {
    _cimd.reset();
    std::error_code ignored;
    std::filesystem::remove_all(_dir, ignored);
}

std::string ModelServer::locatorLog() const {
    std::ifstream in(_scenario.string() + ".locate");
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

std::vector<std::string> ModelServer::servedClasses() {
    YAML::Node const root = YAML::LoadFile(VELDRA_DATA_DIR "/registration/veldra-cimd.yaml");
    std::vector<std::string> names;
    for (auto const& provider : root["providers"]) {
        for (auto const& name : provider["classes"]) {
            std::string const text = name.as<std::string>();
            if (text.size() < 10 || text.compare(text.size() - 10, 10, "Indication") != 0)
                names.push_back(text);
        }
    }
    return names;
}
