#include "SimulatedControllerMRA.h"

SimulatedControllerMRA::SimulatedControllerMRA(std::string const& scenarioPath,
                                               Logger const& logger)
    : _logger(logger), _store(std::make_shared<ScenarioStore>(scenarioPath, logger)) {
    _logger.info("simulated controllers from %s: %zu", scenarioPath.c_str(),
                 _store->controllerCount());
    _syncControllers();
}

void SimulatedControllerMRA::_syncControllers() {
    std::lock_guard<std::mutex> lock(_mutex);
    while (_controllers.size() < _store->controllerCount())
        _controllers.push_back(
            std::make_unique<SimulatedController>(_store, _controllers.size(), _logger));
}

VeldraController* SimulatedControllerMRA::getFirstData() {
    _syncControllers();
    std::lock_guard<std::mutex> lock(_mutex);
    return _controllers.empty() ? nullptr : _controllers.front().get();
}

VeldraController* SimulatedControllerMRA::getNextData(VeldraController* controller) {
    _syncControllers();
    std::lock_guard<std::mutex> lock(_mutex);
    for (size_t i = 0; i + 1 < _controllers.size(); ++i)
        if (_controllers[i].get() == controller)
            return _controllers[i + 1].get();
    return nullptr;
}
