// What the host view shows for a controller: names with the controller's
// index, the texts built from fresh reads, and which instances exist.
#include "DRSV_VDStorageExtent.h"
#include "DRSV_VDStorageVolume.h"
#include "InternalVeldraControllerMRA.h"
#include "ViewScenario.h"

#include <gtest/gtest.h>

using namespace view_test;

namespace {

std::vector<std::string> column(std::vector<CmpiCpp::CmpiInstance> const& rows,
                                char const* property) {
    std::vector<std::string> values;
    for (auto const& row : rows) {
        values.push_back(text(row, property));
    }
    return values;
}

} // namespace

TEST(ViewClasses, DemoControllersAreNamedByIndexAndSlot) {
    ViewScenario scenario("demo.yaml");
    auto provider = startProvider();
    auto const controllers = enumerate(*provider, "DRSV_VDController");
    EXPECT_EQ(column(controllers, "Name"),
              (std::vector<std::string>{"vmwControllerDRVD1", "vmwControllerDRVD2"}));
    EXPECT_EQ(column(controllers, "ElementName"),
              (std::vector<std::string>{"QLNVeldra 8e Controller : Slot 3 : DRVD1",
                                        "QLNVeldra 8i Controller : Embedded : DRVD2"}));
    auto const firmware = enumerate(*provider, "DRSV_VDControllerFirmware");
    ASSERT_EQ(firmware.size(), 2u);
    EXPECT_EQ(text(firmware[0], "InstanceID"), "MWQ:Veldra Controller DRVD1");
    EXPECT_EQ(text(firmware[1], "Name"), "Veldra Controller DRVD2 Firmware");
    EXPECT_EQ(text(firmware[1], "VersionString"), "4.12");
    // Both demo caches have the default battery.
    EXPECT_EQ(column(enumerate(*provider, "DRSV_VDBattery"), "DeviceID"),
              (std::vector<std::string>{"Battery on DRVD1", "Battery on DRVD2"}));
    // One volume per logical disk and one extent per physical disk.
    EXPECT_EQ(enumerate(*provider, "DRSV_VDStorageVolume").size(), 6u);
    EXPECT_EQ(enumerate(*provider, "DRSV_VDStorageExtent").size(),
              distinctDisks(scenario, 1) + distinctDisks(scenario, 2));
    // The view lives beside the main model, not in it.
    EXPECT_EQ(enumerate(*provider, "DRSV_VDController")[0].getPath().getNameSpace(), "root/cimv2");
}

TEST(ViewClasses, VolumeAndExtentTextsFollowTheDisks) {
    ViewScenario scenario("minimal.yaml");
    YAML::Node controller = scenario.controller(1);
    // A second volume that is too small for a whole gigabyte and has no members.
    YAML::Node tiny;
    tiny["number"] = 1;
    tiny["serialNumber"] = "TINY 0001";
    tiny["tolerance"] = 2;
    tiny["totalBlocks"] = 100;
    controller["logicalDisks"].push_back(tiny);
    controller["physicalDisks"][3]["configuration"] = 4;
    scenario.write();
    auto provider = startProvider();

    auto const volumes = elementNames(*provider, "DRSV_VDStorageVolume");
    ASSERT_EQ(volumes.size(), 2u);
    // 3907029168 blocks of 512 bytes: 3726 units of 2^20 blocks, 1863 GB.
    // Members are disk positions counted from 1, the spare after the data disks.
    std::string const mirror = volumes.at("DRSV_VDStorageVolume-600508B1001CMIN00000000000000001");
    EXPECT_EQ(mirror.rfind("Logical Volume 1 on DRVD1 : ", 0), 0u) << mirror;
    EXPECT_NE(mirror.find(" : 1863GB : Disk 1,2,3 : "), std::string::npos) << mirror;
    // Blanks leave the serial in the key; the text has no member part.
    std::string const small = volumes.at("DRSV_VDStorageVolume-TINY0001");
    EXPECT_NE(small.find("Logical Volume 2 on DRVD1 : "), std::string::npos) << small;
    EXPECT_NE(small.find(" : 0GB : "), std::string::npos) << small;
    EXPECT_EQ(small.find("Disk"), std::string::npos) << small;

    auto const extents = enumerate(*provider, "DRSV_VDStorageExtent");
    ASSERT_EQ(extents.size(), 4u);
    EXPECT_EQ(text(extents[0], "DeviceID"), "DRSV_VDStorageExtent-NR4000SAS-MD0000");
    EXPECT_EQ(text(extents[0], "Caption"), "Disk 1 on DRVD1");
    EXPECT_EQ(text(extents[0], "Name"), "MD0000");
    EXPECT_TRUE(extents[0].getProperty("Primordial").getBool());
    EXPECT_EQ(extents[0].getProperty("NumberOfBlocks").getUint64(), 3907029168u);
    EXPECT_NE(text(extents[0], "ElementName")
                  .find("Disk 1 on DRVD1 : Port 1I Box 1 Bay 1 : 1863GB : Data Disk : "),
              std::string::npos)
        << text(extents[0], "ElementName");
    EXPECT_NE(text(extents[2], "ElementName").find(" : Spare Disk : "), std::string::npos);
    // Configuration 4 has no role part; a disk without serial has an empty Name.
    EXPECT_EQ(text(extents[3], "ElementName").find(" Disk : "), std::string::npos)
        << text(extents[3], "ElementName");
    EXPECT_EQ(text(extents[3], "Name"), "");
}

TEST(ViewClasses, BatteryOnlyWhenTheCacheReportsOne) {
    struct Case {
        char const* what;
        int hasBattery;
        bool readFails;
        std::size_t batteries;
    };
    for (Case const& c : {Case{"present", 1, false, 1}, Case{"absent", 0, false, 0},
                          Case{"other value", 2, false, 0}, Case{"read fails", 1, true, 0}}) {
        ViewScenario scenario("minimal.yaml");
        YAML::Node controller = scenario.controller(1);
        controller["cacheHasBattery"] = c.hasBattery;
        controller["batteryStatus"] = 3;
        if (c.readFails) {
            controller["fail"].push_back("getCacheHasBattery");
        }
        scenario.write();
        auto provider = startProvider();
        auto const batteries = enumerate(*provider, "DRSV_VDBattery");
        ASSERT_EQ(batteries.size(), c.batteries) << c.what;
        if (c.batteries == 1) {
            EXPECT_EQ(text(batteries[0], "DeviceID"), "Battery on DRVD1");
            EXPECT_EQ(text(batteries[0], "SystemCreationClassName"), "QLN_ComputerSystem");
            // Charging: degraded health, partially charged.
            EXPECT_EQ(batteries[0].getProperty("HealthState").getUint16(), 10);
            EXPECT_EQ(batteries[0].getProperty("BatteryStatus").getUint16(), 11);
        }
    }
}

TEST(ViewClasses, ControllerWithoutSlotReadAndDegraded) {
    ViewScenario scenario("minimal.yaml");
    scenario.controller(1)["fail"].push_back("getPCISlotNumber");
    scenario.controller(1)["operationalStatus"] = 2;
    scenario.write();
    auto provider = startProvider();
    auto const controllers = enumerate(*provider, "DRSV_VDController");
    ASSERT_EQ(controllers.size(), 1u);
    EXPECT_EQ(text(controllers[0], "ElementName"), "QLNVeldra 8i Controller : DRVD1");
    EXPECT_EQ(controllers[0].getProperty("HealthState").getUint16(), 10);
}

// A volume or extent whose disk is not there (gone before a pass rebuilt
// the view) is still served under its keys, without what only the disk
// could tell; its keys then take the fallback texts.
TEST(ViewClasses, MissingDisksKeepKeysAndLoseTheRest) {
    ViewScenario scenario("minimal.yaml");
    Logger logger("QLNVeldra");
    std::unique_ptr<InternalVeldraControllerMRA> root(internalVeldraControllerMRAFactory(logger));
    ASSERT_NE(root, nullptr);
    VeldraController* controller = root->getFirstData();
    ASSERT_NE(controller, nullptr);

    QLN::DRSV_VDStorageVolume const volume(logger, "root/cimv2", 1, 7, controller);
    CmpiCpp::CmpiInstance const v = volume.getInstance();
    EXPECT_EQ(text(v, "DeviceID"), "Logical Volume8 on DRVD1");
    EXPECT_EQ(text(v, "ElementName"), "Logical Volume 8 on DRVD1");
    EXPECT_FALSE(v.hasProperty("HealthState"));

    QLN::DRSV_VDStorageExtent const extent(logger, "root/cimv2", 1, 9, controller);
    CmpiCpp::CmpiInstance const e = extent.getInstance();
    EXPECT_EQ(text(e, "DeviceID"), "Disk 10on DRVD1");
    EXPECT_EQ(text(e, "ElementName"), "Disk 10 on DRVD1");
    EXPECT_EQ(text(e, "Name"), "");
    EXPECT_TRUE(e.getProperty("Primordial").getBool());
    EXPECT_FALSE(e.hasProperty("NumberOfBlocks"));
}
