#pragma once

#include "CimdProcess.h"
#include "ScenarioExpectation.h"
#include "WbemcliClient.h"

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

// veldra-cimd with the Veldra and host providers serving a private copy of a
// scenario: locator requests are written beside the scenario, so the copy
// keeps the repository's data folder clean. The folder goes with the object.
class ModelServer {
public:
    // `scenarioText` empty: the file at `scenarioFile` as it is.
    explicit ModelServer(std::string const& scenarioFile, std::string const& scenarioText = "");
    ~ModelServer();

    WbemcliClient const& client() const { return *_client; }
    ScenarioExpectation const& expected() const { return *_expected; }
    std::string scenario() const { return _scenario.string(); }
    // The locator requests the simulated controllers recorded so far.
    std::string locatorLog() const;
    std::string log() const { return _cimd->log(); }
    int port() const { return _cimd->port(); }

    // Every class the registration routes to a provider, but the indication
    // classes, which have no instances.
    static std::vector<std::string> servedClasses();

private:
    std::filesystem::path _dir;
    std::filesystem::path _scenario;
    std::unique_ptr<ScenarioExpectation> _expected;
    std::unique_ptr<CimdProcess> _cimd;
    std::unique_ptr<WbemcliClient> _client;
};
