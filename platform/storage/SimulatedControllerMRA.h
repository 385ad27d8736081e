#pragma once
// The root of the simulated back end: one scenario store and a handle for
// every controller it names. Handles live as long as the root; a controller
// that a reload adds is appended to the chain.
#include "InternalVeldraControllerMRA.h"
#include "ScenarioStore.h"
#include "SimulatedController.h"

#include <memory>
#include <mutex>
#include <vector>

class SimulatedControllerMRA : public InternalVeldraControllerMRA {
public:
    // Throws ScenarioError when the scenario cannot be read.
    SimulatedControllerMRA(std::string const& scenarioPath, Logger const& logger);

    VeldraController* getFirstData() override;
    VeldraController* getNextData(VeldraController* controller) override;

    std::shared_ptr<ScenarioStore> store() const { return _store; }

private:
    void _syncControllers();

    Logger _logger;
    std::shared_ptr<ScenarioStore> _store;
    std::mutex _mutex;
    std::vector<std::unique_ptr<SimulatedController>> _controllers;
};
