#pragma once
// A controller of the simulated family: its current state is the scenario
// file's, its live counters those of the scenario store.
#include "Logger.h"
#include "ScenarioStore.h"
#include "VeldraController.h"

#include <memory>

class SimulatedController : public VeldraController {
public:
    // `index` is the 0-based position of the controller in the scenario.
    SimulatedController(std::shared_ptr<ScenarioStore> store, size_t index, Logger const& logger);

    VeldraControllerData getVDData() override;
    std::vector<VeldraEnclosure> getAllEnclosures() override;
    std::vector<VeldraPhysicalDisk> getAllPhysicalDisks() override;
    std::vector<VeldraLogicalDisk> getAllLogicalDisks() override;
    bool getSupportsLumenCarrierAuthentication() override;
    int identifyAllPhysicalDisks(u32 duration) override;
    int identifyPhysicalDisks(std::vector<VeldraPhysicalDisk> disks, u32 duration) override;

    u32 getDiskVectorCount() override;
    u32 getControllerDataCount() override;
    u32 getPossibleSignificantDiskVectorChangeCount() override;

private:
    VeldraControllerScenario const&
    _state(std::shared_ptr<VeldraScenario const> const& scenario) const;
    int _recordLocate(char const* operation, std::string const& what, u32 duration);

    std::shared_ptr<ScenarioStore> _store;
    size_t _index;
    Logger _logger;
};
