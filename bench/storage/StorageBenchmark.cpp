// The simulated back end at the size of a large installation: 16 controllers
// with 256 disks each. Figures: time to load the scenario, the memory it
// takes (resident set growth, which includes the parser's transient tree,
// and the heap the loaded state keeps), the cost of one
// snapshot copy of all disks of a controller, and of a counter read when the
// file did not change.
#include "ScenarioGenerator.h"
#include "SimulatedControllerMRA.h"
#include "VeldraStorageFunctions.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <fstream>
#include <malloc.h>
#include <memory>
#include <unistd.h>

namespace {

constexpr int controllers = 16;
constexpr int disksPerController = 256;

std::string const& scenarioFile() {
    static std::string const path = [] {
        std::string file = "/tmp/veldra-bench-" + std::to_string(::getpid()) + ".yaml";
        std::ofstream(file) << ScenarioGenerator::generate(controllers, disksPerController);
        return file;
    }();
    return path;
}

double heapInUseMiB() {
    return static_cast<double>(::mallinfo2().uordblks) / (1024.0 * 1024.0);
}

double residentMiB() {
    long pages = 0, resident = 0;
    std::ifstream("/proc/self/statm") >> pages >> resident;
    return static_cast<double>(resident) * static_cast<double>(::sysconf(_SC_PAGESIZE)) /
           (1024.0 * 1024.0);
}

Logger& quietLogger() {
    static Logger logger("bench");
    return logger;
}

void BM_LoadScenario16x256(benchmark::State& state) {
    std::string const& file = scenarioFile();
    double growth = 0, retained = 0;
    for (auto _ : state) {
        double before = residentMiB();
        double heapBefore = heapInUseMiB();
        auto root = std::make_unique<SimulatedControllerMRA>(file, quietLogger());
        retained = heapInUseMiB() - heapBefore; // what the loaded state keeps
        growth =
            std::max(growth, residentMiB() -
                                 before); // the first load shows it; later ones reuse freed memory
        benchmark::DoNotOptimize(root->getFirstData());
    }
    state.counters["rss_growth_MiB"] = growth;
    state.counters["heap_retained_MiB"] = retained;
    state.counters["disks"] = controllers * disksPerController;
}
BENCHMARK(BM_LoadScenario16x256)->Unit(benchmark::kMillisecond)->Iterations(5);

// The provider's priming: every disk stamped with its routes, then stored.
struct Primed {
    std::unique_ptr<SimulatedControllerMRA> root =
        std::make_unique<SimulatedControllerMRA>(scenarioFile(), quietLogger());
    VeldraController* controller = root->getFirstData();
    Primed() {
        auto disks = controller->getAllPhysicalDisks();
        for (auto& d : disks) {
            auto paths = d.getPaths();
            d.setLastAllPhysicalPaths(paths);
        }
        controller->setLastAllPhysicalDisks(disks);
    }
};

void BM_GetLastAllPhysicalDisks256(benchmark::State& state) {
    Primed primed;
    for (auto _ : state) {
        auto disks = primed.controller->getLastAllPhysicalDisks();
        benchmark::DoNotOptimize(disks.data());
    }
    state.counters["disks"] = disksPerController;
}
BENCHMARK(BM_GetLastAllPhysicalDisks256)->Unit(benchmark::kMicrosecond);

void BM_GetAllPhysicalDisks256(benchmark::State& state) {
    Primed primed;
    for (auto _ : state) {
        auto disks = primed.controller->getAllPhysicalDisks();
        benchmark::DoNotOptimize(disks.data());
    }
}
BENCHMARK(BM_GetAllPhysicalDisks256)->Unit(benchmark::kMicrosecond);

// One pass of the provider's disk comparison for a controller without change.
void BM_CompareAllPhysicalDisks256(benchmark::State& state) {
    Primed primed;
    auto previous = primed.controller->getLastAllPhysicalDisks();
    auto current = primed.controller->getAllPhysicalDisks();
    for (auto& d : current) {
        auto paths = d.getPaths();
        d.setLastAllPhysicalPaths(paths);
    }
    for (auto _ : state) {
        std::vector<VeldraPhysicalDisk> added, removed;
        findNewVDPhysicalDisks(previous, current, added);
        findRemovedVDPhysicalDisks(previous, current, removed);
        u32 changed = 0, index = 0;
        for (auto const& d : current)
            changed |= d.compare(previous, index);
        benchmark::DoNotOptimize(changed);
    }
}
BENCHMARK(BM_CompareAllPhysicalDisks256)->Unit(benchmark::kMillisecond);

void BM_CounterReadUnchangedFile(benchmark::State& state) {
    Primed primed;
    for (auto _ : state)
        benchmark::DoNotOptimize(primed.controller->getDiskVectorCount());
}
BENCHMARK(BM_CounterReadUnchangedFile)->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    ::unlink(scenarioFile().c_str());
    return 0;
}
