#include "SimulatedController.h"

#include "LocatorLog.h"

#include <ctime>
#include <stdexcept>
#include <string>

SimulatedController::SimulatedController(std::shared_ptr<ScenarioStore> store, size_t index,
                                         Logger const& logger)
    : _store(std::move(store)), _index(index), _logger(logger) {}

VeldraControllerScenario const&
SimulatedController::_state(std::shared_ptr<VeldraScenario const> const& scenario) const {
    return scenario->controllers.at(_index);
}

VeldraControllerData SimulatedController::getVDData() {
    auto scenario = _store->current();
    return VeldraControllerData(_state(scenario).data);
}

std::vector<VeldraEnclosure> SimulatedController::getAllEnclosures() {
    auto scenario = _store->current();
    auto const& facts = _state(scenario).enclosures;
    return {facts.begin(), facts.end()};
}

std::vector<VeldraPhysicalDisk> SimulatedController::getAllPhysicalDisks() {
    auto scenario = _store->current();
    auto const& facts = _state(scenario).physicalDisks;
    return {facts.begin(), facts.end()};
}

std::vector<VeldraLogicalDisk> SimulatedController::getAllLogicalDisks() {
    auto scenario = _store->current();
    auto const& facts = _state(scenario).logicalDisks;
    return {facts.begin(), facts.end()};
}

bool SimulatedController::getSupportsLumenCarrierAuthentication() {
    auto scenario = _store->current();
    return _state(scenario).data->supportsLumenCarrierAuthentication;
}

int SimulatedController::_recordLocate(char const* operation, std::string const& what,
                                       u32 duration) {
    auto scenario = _store->current();
    auto const& data = *_state(scenario).data;
    if (data.raise.count(operation))
        throw std::runtime_error(std::string("simulated fault in ") + operation);
    if (data.fail.count(operation))
        return -1;
    char stamp[32];
    std::time_t now = std::time(nullptr);
    std::tm utc{};
    gmtime_r(&now, &utc);
    std::strftime(stamp, sizeof stamp, "%Y-%m-%dT%H:%M:%SZ", &utc);
    std::string line = std::string(stamp) + " controller " + std::to_string(_index + 1) + " " +
                       what + " duration " + std::to_string(duration);
    if (!LocatorLog::append(_store->path(), line)) {
        _logger.error("cannot record locator request in %s",
                      LocatorLog::sidecarPath(_store->path()).c_str());
        return -1;
    }
    return 0;
}

int SimulatedController::identifyAllPhysicalDisks(u32 duration) {
    return _recordLocate("identifyAllPhysicalDisks", "all disks", duration);
}

int SimulatedController::identifyPhysicalDisks(std::vector<VeldraPhysicalDisk> disks,
                                               u32 duration) {
    std::string names;
    for (auto const& disk : disks) {
        if (!names.empty())
            names += ",";
        // A disk without serial number is named by its place.
        names += disk.getSerialNumber().empty()
                     ? "box" + std::to_string(disk.getEnclosureBoxNumber()) + ":bay" +
                           std::to_string(disk.getBay())
                     : disk.getSerialNumber();
    }
    return _recordLocate("identifyPhysicalDisks",
                         "disks " + (names.empty() ? std::string("(none)") : names), duration);
}

u32 SimulatedController::getDiskVectorCount() {
    _store->refresh();
    return _store->counters(_index).diskVector;
}

u32 SimulatedController::getControllerDataCount() {
    _store->refresh();
    return _store->counters(_index).controllerData;
}

u32 SimulatedController::getPossibleSignificantDiskVectorChangeCount() {
    _store->refresh();
    return _store->counters(_index).significantDisk;
}
