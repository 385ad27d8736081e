// Worker passes against a scenario that veldra-sim changes: after each kind
// of hardware change, one pass must leave exactly the graph that a provider
// started fresh on the changed scenario builds.
#include "WorkerTestSupport.h"

#include <gtest/gtest.h>
#include <yaml-cpp/yaml.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <memory>
#include <set>

using namespace worker_test;
using CmpiCpp::CmpiBroker;
using CmpiCpp::CmpiContext;
using CmpiCpp::CmpiName;

namespace {

void expectSameGraph(QLN::QLNVeldraProvider const& worked) {
    auto fresh = startProvider();
    auto have = graphOf(worked);
    auto want = graphOf(*fresh);
    EXPECT_EQ(takeViewVolumes(have), takeViewVolumes(want));
    EXPECT_EQ(have, want) << "kept by the pass but not made fresh:\n"
                          << difference(have, want) << "made fresh but missing after the pass:\n"
                          << difference(want, have);
}

struct Change {
    char const* name;
    std::vector<std::string> commands;
};

void PrintTo(Change const& change, std::ostream* out) {
    *out << change.name;
}

class HardwareChange : public ::testing::TestWithParam<Change> {};

} // namespace

TEST(WorkerPass, QuietPassChangesNothing) {
    WorkingCopy copy("demo.yaml");
    auto provider = startProvider();
    auto const before = graphOf(*provider);
    pass(*provider);
    pass(*provider);
    EXPECT_EQ(graphOf(*provider), before);
}

// The first controller loses a disk, then the second fails its status read
// half-way through the same pass: the pass gives up, the first controller's
// pending changes never reach the graph, and the lock is free again.
TEST(WorkerPass, APassThatThrowsLeavesTheGraphAsItWas) {
    WorkingCopy copy("demo.yaml");
    auto provider = startProvider();
    pass(*provider);
    auto const before = graphOf(*provider);

    copy.sim("pull-disk NR8K1000");
    std::string const file = std::getenv("VELDRA_SCENARIO");
    YAML::Node scenario = YAML::LoadFile(file);
    scenario["controllers"][1]["operationalStatus"] = 3;
    scenario["controllers"][1]["throw"].push_back("getControllerOperationalStatus");
    std::ofstream(file + ".next") << YAML::Dump(scenario);
    std::filesystem::rename(file + ".next", file);

    QLN::CapturedMethodResult result;
    bool failed = false;
    try {
        provider->invokeMethod(
            CmpiContext(),
            CmpiCpp::makeCmpiObjectPath(CmpiBroker(), "root/mwq", "QLN_VDArraySystem"),
            CmpiName("PerformWork"), CmpiCpp::CmpiArgs(), result);
        failed = result.returnValue().value_or(0) != 0;
    } catch (...) {
        failed = true;
    }
    EXPECT_TRUE(failed) << "the caller of PerformWork hears of the failure";
    EXPECT_EQ(graphOf(*provider), before) << "changed by the failed pass:\n"
                                          << difference(graphOf(*provider), before);

    // The lock was given back: reads and the next pass go on.
    provider_test::Paths disks;
    provider->enumInstanceNames(
        CmpiContext(), CmpiCpp::makeCmpiObjectPath(CmpiBroker(), "root/mwq", "QLN_VDDiskDrive"),
        disks);
    EXPECT_FALSE(disks.rows.empty());
}

// Each change gets a pass of its own, as when an operator types the commands
// some seconds apart.
TEST_P(HardwareChange, OnePassFollowsTheHardware) {
    WorkingCopy copy("demo.yaml");
    auto provider = startProvider();
    for (std::string const& command : GetParam().commands) {
        copy.sim(command);
        pass(*provider);
    }
    expectSameGraph(*provider);
}

INSTANTIATE_TEST_SUITE_P(
    Demo, HardwareChange,
    ::testing::Values(
        Change{"PullDisk", {"pull-disk NR8K1000"}},
        Change{"PullAndInsertDisk", {"pull-disk NR8K1000", "insert-disk NR8K1000"}},
        Change{"InsertNewDisk", {"insert-disk --controller 1 --box 2 --bay 12 --serial NEWDISK1"}},
        Change{"FailDisk", {"fail-disk NR8K1001"}},
        Change{"ActivateSpare",
               {"fail-disk NR8M3000", "activate-spare 600508B1001C7E110000000000000001"}},
        Change{"DeleteVolume", {"delete-volume 600508B1001C4D2A0000000000000005"}},
        Change{"DeleteVolumeWithSpare", {"delete-volume 600508B1001C4D2A0000000000000001"}},
        Change{"AddEnclosure", {"add-enclosure --controller 2 --box 7 --serial VNEWBOX7"}},
        Change{"RemoveEnclosure", {"remove-enclosure 1:2"}},
        Change{"CreateVolume",
               {"delete-volume 600508B1001C4D2A0000000000000005",
                "create-volume --controller 1 --serial 600508B1001C4D2A00000000000000AA "
                "--disks KS2T2010,KS2T2011 --spares KS2T2012"}}),
    [](auto const& info) { return std::string(info.param.name); });
