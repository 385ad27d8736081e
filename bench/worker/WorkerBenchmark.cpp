// Worker passes on the size of a large installation: 16 controllers with 256
// disks each. Figures: a quiet pass (nothing changed), a pass after one disk
// failed, a pass after all 256 disks of one controller were pulled and one
// after they were put back, and the 99th percentile of an enumeration of all
// disks while a pass runs every second (a pass holds the provider lock, so
// that is what a client waits for).
#include "CapturedMethodResult.h"
#include "CmpiArgs.h"
#include "CmpiInstanceResult.h"
#include "CmpiObjectPathResult.h"
#include "FrameworkConfig.h"
#include "QLNVeldraProvider.h"

#include <benchmark/benchmark.h>
#include <yaml-cpp/yaml.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <thread>
#include <unistd.h>

namespace {

std::string const directory = "/tmp/veldra-worker-bench-" + std::to_string(::getpid());
std::string const scenario = directory + "/scenario.yaml";
std::string const full = directory + "/full.yaml";
std::string const pulled = directory + "/pulled.yaml";
std::string const oneFailed = directory + "/one-failed.yaml";

// The versions of the hardware that the benchmarks swap in. veldra-sim
// rewrites the whole file, which at this size takes seconds, so the
// versions are made here with one edit each.
void prepare() {
    static bool done = false;
    if (done) {
        return;
    }
    done = true;
    std::filesystem::create_directories(directory);
    std::string const generate =
        std::string(VELDRA_BIN_DIR) +
        "/veldra-sim generate --controllers 16 --disks-per-controller 256 --output " + full;
    if (std::system(generate.c_str()) != 0) {
        std::abort();
    }
    YAML::Node failing = YAML::LoadFile(full);
    failing["controllers"][8]["physicalDisks"][100]["status"] = 3;
    YAML::Emitter failedOut;
    failedOut << failing;
    std::ofstream(oneFailed) << failedOut.c_str();

    // All disks of the first controller go to its pulled list, as 256
    // pull-disk commands would leave them.
    YAML::Node hardware = YAML::LoadFile(full);
    YAML::Node first = hardware["controllers"][0];
    YAML::Node gone(YAML::NodeType::Sequence);
    for (YAML::Node disk : first["physicalDisks"]) {
        gone.push_back(YAML::Clone(disk));
    }
    first["pulled"] = gone;
    first["physicalDisks"] = YAML::Node(YAML::NodeType::Sequence);
    YAML::Emitter out;
    out << hardware;
    std::ofstream(pulled) << out.c_str();
    ::setenv("VELDRA_SCENARIO", scenario.c_str(), 1);
    ::setenv("VELDRA_LOG", "/dev/null", 1);
    QLN::FrameworkConfig::reload();
}

// A rename, as veldra-sim writes, so that the back end sees a new file.
void become(std::string const& version) {
    std::string const next = scenario + ".next";
    std::filesystem::copy_file(version, next, std::filesystem::copy_options::overwrite_existing);
    std::filesystem::rename(next, scenario);
}

std::unique_ptr<QLN::QLNVeldraProvider> startProvider() {
    prepare();
    become(full);
    Logger logger("QLNVeldra");
    return std::make_unique<QLN::QLNVeldraProvider>(CmpiCpp::CmpiBroker(), logger);
}

void pass(QLN::QLNVeldraProvider& provider) {
    QLN::CapturedMethodResult result;
    provider.invokeMethod(
        CmpiCpp::CmpiContext(),
        CmpiCpp::makeCmpiObjectPath(CmpiCpp::CmpiBroker(), "root/mwq", "QLN_VDArraySystem"),
        CmpiCpp::CmpiName("PerformWork"), CmpiCpp::CmpiArgs(), result);
}

void BM_QuietPass(benchmark::State& state) {
    auto provider = startProvider();
    pass(*provider);
    for (auto _ : state) {
        pass(*provider);
    }
    state.counters["instances"] = provider->instanceCount();
}
BENCHMARK(BM_QuietPass)->Unit(benchmark::kMillisecond);

void BM_PassAfterOneDiskFailed(benchmark::State& state) {
    auto provider = startProvider();
    pass(*provider);
    bool failed = false;
    for (auto _ : state) {
        state.PauseTiming();
        become(failed ? full : oneFailed);
        failed = !failed;
        state.ResumeTiming();
        pass(*provider);
    }
}
BENCHMARK(BM_PassAfterOneDiskFailed)->Unit(benchmark::kMillisecond)->Iterations(10);

void BM_PassAfter256DisksPulled(benchmark::State& state) {
    auto provider = startProvider();
    pass(*provider);
    for (auto _ : state) {
        state.PauseTiming();
        become(pulled);
        state.ResumeTiming();
        pass(*provider);
        state.PauseTiming();
        become(full);
        pass(*provider);
        state.ResumeTiming();
    }
}
BENCHMARK(BM_PassAfter256DisksPulled)->Unit(benchmark::kMillisecond)->Iterations(5);

void BM_PassAfter256DisksInserted(benchmark::State& state) {
    auto provider = startProvider();
    pass(*provider);
    for (auto _ : state) {
        state.PauseTiming();
        become(pulled);
        pass(*provider);
        become(full);
        state.ResumeTiming();
        pass(*provider);
    }
}
BENCHMARK(BM_PassAfter256DisksInserted)->Unit(benchmark::kMillisecond)->Iterations(5);

struct Discard : CmpiCpp::CmpiInstanceResult {
    void returnInstance(CmpiCpp::CmpiInstance const&) override { ++count; }
    std::size_t count = 0;
};

// Each iteration is one enumeration of all disks; a pass with a disk
// failing or coming back runs every second beside them.
void BM_EnumerateDisksBesidePasses(benchmark::State& state) {
    auto provider = startProvider();
    pass(*provider);
    std::atomic<bool> stop{false};
    std::thread worker([&] {
        bool failed = false;
        while (!stop) {
            become(failed ? full : oneFailed);
            failed = !failed;
            pass(*provider);
            for (int i = 0; i < 10 && !stop; ++i) {
                std::this_thread::sleep_for(std::chrono::milliseconds(100));
            }
        }
    });
    auto const disks =
        CmpiCpp::makeCmpiObjectPath(CmpiCpp::CmpiBroker(), "root/mwq", "QLN_VDDiskDrive");
    std::vector<double> waits;
    std::size_t returned = 0;
    for (auto _ : state) {
        auto const start = std::chrono::steady_clock::now();
        Discard sink;
        provider->enumInstances(CmpiCpp::CmpiContext(), disks, nullptr, sink);
        double const seconds =
            std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
        state.SetIterationTime(seconds);
        waits.push_back(seconds);
        returned = sink.count;
    }
    stop = true;
    worker.join();
    std::sort(waits.begin(), waits.end());
    state.counters["p50_ms"] = waits[waits.size() / 2] * 1000;
    state.counters["p99_ms"] = waits[std::min(waits.size() - 1, waits.size() * 99 / 100)] * 1000;
    state.counters["max_ms"] = waits.back() * 1000;
    state.counters["disks"] = static_cast<double>(returned);
}
BENCHMARK(BM_EnumerateDisksBesidePasses)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->MinTime(10.0);

} // namespace

BENCHMARK_MAIN();
