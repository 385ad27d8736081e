// A pass rebuilds the volumes and extents of a controller whose disks may
// have changed, leaves its controller and firmware, and leaves every other
// controller's view alone.
#include "ViewScenario.h"

#include <gtest/gtest.h>

#include <set>
#include <sstream>

using namespace view_test;
using provider_test::LogCapture;

namespace {

// Log lines that name this class's logger and carry this text.
int linesOf(LogCapture const& log, std::string const& className, std::string const& what) {
    std::istringstream lines(log.text());
    int n = 0;
    for (std::string line; std::getline(lines, line);) {
        if (line.find(":" + className) != std::string::npos &&
            line.find(what) != std::string::npos) {
            ++n;
        }
    }
    return n;
}

// DeviceIDs of the extents whose caption ends with this controller's name.
std::set<std::string> extentsOf(QLN::QLNVeldraProvider& provider, int controller) {
    std::string const suffix = " on DRVD" + std::to_string(controller);
    std::set<std::string> ids;
    for (auto const& row : enumerate(provider, "DRSV_VDStorageExtent")) {
        std::string const caption = text(row, "Caption");
        if (caption.size() > suffix.size() &&
            caption.compare(caption.size() - suffix.size(), suffix.size(), suffix) == 0) {
            ids.insert(text(row, "DeviceID"));
        }
    }
    return ids;
}

} // namespace

TEST(ViewRebuild, QuietPassTouchesNothing) {
    ViewScenario scenario("demo.yaml");
    auto provider = startProvider();
    LogCapture log;
    runPass(*provider);
    EXPECT_EQ(log.count("::_updateViewClassInstances"), 1);
    EXPECT_EQ(log.count("needs rescan"), 0);
    EXPECT_EQ(log.count("cxtor()"), 0);
    EXPECT_EQ(log.count("dxtor()"), 0);
}

TEST(ViewRebuild, PulledDiskRebuildsOnlyItsController) {
    ViewScenario scenario("demo.yaml");
    scenario.serialEveryDisk();
    auto provider = startProvider();
    auto const before1 = extentsOf(*provider, 1);
    auto const before2 = extentsOf(*provider, 2);
    std::size_t const volumes1 = scenario.controller(1)["logicalDisks"].size();
    std::size_t const volumes2 = scenario.controller(2)["logicalDisks"].size();
    ASSERT_EQ(before1.size(), distinctDisks(scenario, 1));

    std::string const pulledSerial =
        scenario.controller(1)["physicalDisks"][7]["serialNumber"].as<std::string>();
    scenario.pullDisk(1, 7);
    {
        LogCapture log;
        runPass(*provider);
        EXPECT_EQ(log.count("Internal controller 1 needs rescan."), 1);
        EXPECT_EQ(log.count("Internal controller 2 needs rescan."), 0);
        // Every old extent and volume of controller 1 went; none of controller 2.
        EXPECT_EQ(linesOf(log, "DRSV_VDStorageExtent", "dxtor()"),
                  static_cast<int>(before1.size()));
        EXPECT_EQ(linesOf(log, "DRSV_VDStorageVolume", "dxtor()"), static_cast<int>(volumes1));
        EXPECT_EQ(linesOf(log, "DRSV_VDController", "dxtor()"), 0);
        EXPECT_EQ(linesOf(log, "DRSV_VDControllerFirmware", "dxtor()"), 0);
    }
    auto const after1 = extentsOf(*provider, 1);
    EXPECT_EQ(after1.size(), before1.size() - 1);
    for (auto const& id : after1) {
        EXPECT_EQ(id.find(pulledSerial), std::string::npos) << id;
    }
    EXPECT_EQ(extentsOf(*provider, 2), before2);
    EXPECT_EQ(enumerate(*provider, "DRSV_VDStorageVolume").size(), volumes1 + volumes2);
    EXPECT_EQ(enumerate(*provider, "DRSV_VDController").size(), 2u);

    // The change was consumed: the next pass rebuilds nothing.
    LogCapture log;
    runPass(*provider);
    EXPECT_EQ(log.count("needs rescan"), 0);
    EXPECT_EQ(log.count("dxtor()"), 0);
}

TEST(ViewRebuild, TwoControllersRebuiltInOnePass) {
    ViewScenario scenario("demo.yaml");
    scenario.serialEveryDisk();
    auto provider = startProvider();
    std::size_t const disks1 = distinctDisks(scenario, 1);
    std::size_t const disks2 = distinctDisks(scenario, 2);
    // Disks that no volume names, so the scenario stays valid.
    scenario.pullDisk(1, 7);
    scenario.pullDisk(2, 7);
    LogCapture log;
    runPass(*provider);
    EXPECT_EQ(log.count("Internal controller 1 needs rescan."), 1);
    EXPECT_EQ(log.count("Internal controller 2 needs rescan."), 1);
    EXPECT_EQ(linesOf(log, "DRSV_VDStorageExtent", "dxtor()"), static_cast<int>(disks1 + disks2));
    EXPECT_EQ(extentsOf(*provider, 1).size(), disks1 - 1);
    EXPECT_EQ(extentsOf(*provider, 2).size(), disks2 - 1);
}

// A volume added later is numbered by its own volume number, not by where
// it stands in the list.
TEST(ViewRebuild, RebuiltVolumesTakeTheirOwnNumbers) {
    ViewScenario scenario("minimal.yaml");
    auto provider = startProvider();
    YAML::Node added;
    added["number"] = 5;
    added["serialNumber"] = "ADDED0005";
    added["tolerance"] = 2;
    added["totalBlocks"] = 3907029168u;
    added["dataDisks"].push_back(3);
    scenario.controller(1)["logicalDisks"].push_back(added);
    scenario.write();
    runPass(*provider);
    auto const volumes = elementNames(*provider, "DRSV_VDStorageVolume");
    ASSERT_EQ(volumes.size(), 2u);
    EXPECT_EQ(volumes.at("DRSV_VDStorageVolume-ADDED0005").rfind("Logical Volume 6 on DRVD1 : ", 0),
              0u);
}
