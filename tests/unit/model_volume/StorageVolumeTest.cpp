// The storage volume on scenarios: its status and tolerance tables, the
// conditional properties, a volume that left the snapshot, and Identify as
// the simulated controller records it.
#include "ArrayTestSupport.h"
#include "CmpiArgs.h"
#include "CmpiStatus.h"
#include "LocatorLog.h"
#include "QLN_VDStorageVolume.h"
#include "VeldraStorageFunctions.h"

#include <gtest/gtest.h>

#include <optional>

namespace {

// Controller 1 with four disks; `volumes` are the YAML records of the volumes.
std::string scenario(std::string const& volumes, std::string const& extra = "") {
    return "  - serialNumber: PVOL0001\n" + extra +
           "    physicalDisks: [{id: 0, serialNumber: DA, bay: 1, configuration: 2},\n"
           "                    {id: 1, serialNumber: DB, bay: 2, configuration: 2},\n"
           "                    {id: 2, serialNumber: DC, bay: 3, configuration: 3},\n"
           "                    {id: 3, serialNumber: DD, bay: 4, configuration: 2}]\n"
           "    logicalDisks: [" +
           volumes + "]\n";
}

std::string volumeRecord(std::string const& fields) {
    return "{serialNumber: LV1, dataDisks: [0, 1], spareDisks: [2]" +
           (fields.empty() ? "" : ", " + fields) + "}";
}

VeldraLogicalDisk stored(VeldraController* controller, std::string const& serial = "LV1") {
    std::vector<VeldraLogicalDisk> logicals;
    controller->getLastLogicalDisks(logicals);
    int at = findLogicalDiskInVector(serial, logicals);
    EXPECT_GE(at, 0);
    return logicals.at(static_cast<size_t>(at));
}

std::vector<unsigned short> uint16s(CmpiCpp::CmpiInstance const& instance, char const* name) {
    std::vector<unsigned short> values;
    CmpiCpp::CmpiArray const& array = instance.getProperty(name).getArray();
    for (unsigned int i = 0; i < array.size(); ++i)
        values.push_back(array.getElementAt(i).getUint16());
    return values;
}

std::vector<std::string> strings(CmpiCpp::CmpiInstance const& instance, char const* name) {
    std::vector<std::string> values;
    CmpiCpp::CmpiArray const& array = instance.getProperty(name).getArray();
    for (unsigned int i = 0; i < array.size(); ++i)
        values.push_back(array.getElementAt(i).getString());
    return values;
}

struct StatusRow {
    unsigned int status;
    std::vector<unsigned short> operational;
    unsigned short health;
    char const* first;
    bool extended;
};

class VolumeStatusTable : public ::testing::TestWithParam<StatusRow> {};

TEST_P(VolumeStatusTable, StatusMapsToOperationalHealthAndDescriptions) {
    StatusRow const& row = GetParam();
    ScenarioRig rig(ScenarioRig::controllerList,
                    scenario(volumeRecord("status: " + std::to_string(row.status))));
    VeldraLogicalDisk const logical = stored(rig.controller());
    QLN::QLN_VDStorageVolume volume(rig.logger, "root/mwq", 1, logical, rig.controller());
    CmpiCpp::CmpiInstance const instance = volume.getInstance();

    EXPECT_EQ(uint16s(instance, "OperationalStatus"), row.operational);
    EXPECT_EQ(instance.getProperty("HealthState").getUint16(), row.health);
    std::vector<std::string> expected{row.first};
    if (row.extended)
        expected.push_back(std::string("Logical Disk Extended Status: ") +
                           logical.statusToStr(logical.getStatus()));
    EXPECT_EQ(strings(instance, "StatusDescriptions"), expected);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, VolumeStatusTable,
    ::testing::Values(StatusRow{4, {6, 4}, 25, "Logical Disk has failed.", true},
                      StatusRow{0x800E, {6, 0x800E}, 25, "Logical Disk has failed.", true},
                      // Also an "encryption" state, yet the failed row wins.
                      StatusRow{0x8010, {6, 0x8010}, 25, "Logical Disk has failed.", true},
                      StatusRow{0x8000, {3, 0x8000}, 10, "Logical Disk is degraded", true},
                      StatusRow{0x8012, {3, 0x8012}, 10, "Logical Disk is degraded", true},
                      StatusRow{0x8018, {3, 0x8018}, 10, "Logical Disk is degraded", true},
                      StatusRow{2, {2}, 5, "Logical Disk is operating properly", false},
                      StatusRow{0x8014, {2}, 5, "Logical Disk is operating properly", false},
                      StatusRow{3, {6}, 25, "Logical Disk has failed.", false},
                      // Gaps in the degraded ranges and values past them are unknown.
                      StatusRow{0x800F, {0}, 0, "Logical Disk Unknown", false},
                      StatusRow{0x8019, {0}, 0, "Logical Disk Unknown", false},
                      StatusRow{0, {0}, 0, "Logical Disk Unknown", false}));

TEST(VolumeTolerance, RedundancyPropertiesFollowTheToleranceSets) {
    struct Row {
        unsigned int tolerance;
        std::optional<unsigned short> data;
        std::optional<unsigned short> package;
        bool noSinglePoint;
    };
    std::vector<Row> const rows{{0, {}, {}, false}, {1, 1, 0, false}, {3, 2, 1, true},
                                {5, 1, 1, true},    {8, 1, 2, true},  {11, 2, 1, true},
                                {12, {}, {}, true}};
    for (Row const& row : rows) {
        ScenarioRig rig(ScenarioRig::controllerList,
                        scenario(volumeRecord("tolerance: " + std::to_string(row.tolerance))));
        QLN::QLN_VDStorageVolume volume(rig.logger, "root/mwq", 1, stored(rig.controller()),
                                        rig.controller());
        CmpiCpp::CmpiInstance const instance = volume.getInstance();
        SCOPED_TRACE(row.tolerance);
        EXPECT_EQ(instance.hasProperty("DataRedundancy"), row.data.has_value());
        if (row.data) {
            EXPECT_EQ(instance.getProperty("DataRedundancy").getUint16(), *row.data);
        }
        EXPECT_EQ(instance.hasProperty("PackageRedundancy"), row.package.has_value());
        if (row.package) {
            EXPECT_EQ(instance.getProperty("PackageRedundancy").getUint16(), *row.package);
        }
        EXPECT_EQ(instance.getProperty("NoSinglePointOfFailure").getBool(), row.noSinglePoint);
        EXPECT_EQ(instance.getProperty("FaultTolerance").getUint16(), row.tolerance);
    }
}

TEST(VolumeInstance, PathKeysNamesAndOrderOfAPlainVolume) {
    ScenarioRig rig(ScenarioRig::controllerList,
                    scenario(volumeRecord("number: 0, tolerance: 1, status: 2, blockSize: 512, "
                                          "totalBlocks: 1000, stripeSize: 0x100000000, "
                                          "rapidParityPercentComplete: 0, percentComplete: 0")));
    VeldraLogicalDisk const logical = stored(rig.controller());
    QLN::QLN_VDStorageVolume volume(rig.logger, "root/mwq", 1, logical, rig.controller());
    CmpiCpp::CmpiObjectPath const path = volume.getPath();
    EXPECT_EQ(path.getKey("SystemName").getString(), "PVOL0001");
    EXPECT_EQ(path.getKey("DeviceID").getString(), "LV1");

    CmpiCpp::CmpiInstance const instance = volume.getInstance();
    // No OSName, no PercentComplete (0) and no cache-pair values (type 1).
    EXPECT_EQ(propertyNames(instance),
              "SystemCreationClassName CreationClassName SystemName DeviceID Accelerator Name "
              "NameFormat ConsumableBlocks BlockSize DeltaReservation NumberOfBlocks "
              "IsBasedOnUnderlyingRedundancy FaultTolerance ElementName NoSinglePointOfFailure "
              "DataRedundancy PackageRedundancy OperationalStatus StatusDescriptions HealthState "
              "EnabledDefault EnabledState RequestedState ExtentStatus StripeSize Deleteable "
              "EncryptionStatus RapidParityPercentComplete LogicalVolumeType SSDLumenPathStatus");
    EXPECT_EQ(instance.getProperty("ElementName").getString(),
              std::string("Logical Volume 1 (") + logical.toleranceToStr(logical.getTolerance()) +
                  ")");
    EXPECT_EQ(instance.getProperty("NumberOfBlocks").getUint64(), 1000u);
    EXPECT_EQ(instance.getProperty("RapidParityPercentComplete").getType(), CMPI_real32);
    // Only the low 32 bits of the stripe size fit the property.
    EXPECT_EQ(instance.getProperty("StripeSize").getUint32(), 0u);
    EXPECT_EQ(uint16s(instance, "ExtentStatus"), std::vector<unsigned short>{2});
}

TEST(VolumeInstance, ConditionalPropertiesAppearWhenTheyHaveSomethingToSay) {
    ScenarioRig rig(ScenarioRig::controllerList,
                    scenario(volumeRecord("number: 4, status: 0x8004, osName: /dev/sdb, "
                                          "percentComplete: 40, volumeType: 2, relatedLUN: 7, "
                                          "cacheVolumeCacheState: 3")));
    QLN::QLN_VDStorageVolume volume(rig.logger, "root/mwq", 1, stored(rig.controller()),
                                    rig.controller());
    CmpiCpp::CmpiInstance const instance = volume.getInstance();
    EXPECT_EQ(instance.getProperty("OSName").getString(), "/dev/sdb");
    EXPECT_EQ(instance.getProperty("PercentComplete").getUint16(), 40);
    EXPECT_EQ(instance.getProperty("RelatedLUN").getUint16(), 7);
    EXPECT_EQ(instance.getProperty("CacheVolumeCacheState").getUint16(), 3);
    // A member that is not connected makes the extent not ready.
    EXPECT_EQ(uint16s(instance, "ExtentStatus"), std::vector<unsigned short>{11});
    EXPECT_EQ(instance.getProperty("ElementName").getString().rfind("Logical Volume 5 (", 0), 0u);
}

TEST(VolumeInstance, AcceleratorStaysAtConstructionAndAVanishedVolumeThrows100) {
    ScenarioRig rig(ScenarioRig::controllerList,
                    scenario(volumeRecord("acceleratorStatus: 1, status: 2")));
    QLN::QLN_VDStorageVolume volume(rig.logger, "root/mwq", 1, stored(rig.controller()),
                                    rig.controller());
    rig.change(ScenarioRig::controllerList,
               scenario(volumeRecord("acceleratorStatus: 2, status: 3")));
    CmpiCpp::CmpiInstance const changed = volume.getInstance();
    EXPECT_EQ(changed.getProperty("Accelerator").getUint16(), 1);
    EXPECT_EQ(uint16s(changed, "OperationalStatus"), std::vector<unsigned short>{6});

    rig.change(ScenarioRig::controllerList, scenario(""));
    try {
        volume.getInstance();
        ADD_FAILURE() << "a volume missing from the snapshot was served";
    } catch (CmpiCpp::CmpiStatus const& status) {
        EXPECT_EQ(static_cast<int>(status.rc()), 100);
        EXPECT_EQ(status.msg(),
                  "getInstance, findLogicalDiskInVector could not find logical based on serial #");
    }
    // The worker still needs the path of a volume that has gone.
    EXPECT_EQ(volume.getPath().getKey("DeviceID").getString(), "LV1");
}

TEST(VolumeIdentify, LightsTheCurrentMembersForTenTimesTheDuration) {
    ScenarioRig rig(ScenarioRig::controllerList, scenario(volumeRecord("")));
    QLN::QLN_VDStorageVolume volume(rig.logger, "root/mwq", 1, stored(rig.controller()),
                                    rig.controller());
    CmpiCpp::CmpiArgs args;
    args.setArg("Duration", CmpiCpp::CmpiData(5u));
    EXPECT_EQ(volume.invokeMethod("Identify", args), 0u);
    std::vector<std::string> lines = LocatorLog::read(rig.path);
    ASSERT_EQ(lines.size(), 1u);
    // Data members and the spare, the disk outside the volume left dark.
    EXPECT_NE(lines[0].find("controller 1 disks DA,DB,DC duration 50"), std::string::npos)
        << lines[0];
}

TEST(VolumeIdentify, WrongCallsAre17AndAMissingVolumeOrRefusalIs2) {
    ScenarioRig rig(ScenarioRig::controllerList, scenario(volumeRecord("")));
    QLN::QLN_VDStorageVolume volume(rig.logger, "root/mwq", 1, stored(rig.controller()),
                                    rig.controller());
    CmpiCpp::CmpiArgs uint16Duration, none, uint32Duration;
    uint16Duration.setArg("Duration", CmpiCpp::CmpiData(static_cast<unsigned short>(5)));
    uint32Duration.setArg("Duration", CmpiCpp::CmpiData(5u));
    EXPECT_EQ(volume.invokeMethod("Identify", uint16Duration), 17u);
    EXPECT_EQ(volume.invokeMethod("Identify", none), 17u);
    EXPECT_EQ(volume.invokeMethod("Locate", uint32Duration), 17u);
    EXPECT_TRUE(LocatorLog::read(rig.path).empty());

    rig.change(ScenarioRig::controllerList,
               scenario(volumeRecord(""), "    fail: [identifyPhysicalDisks]\n"));
    EXPECT_EQ(volume.invokeMethod("Identify", uint32Duration), 2u);
    rig.change(ScenarioRig::controllerList, scenario(""));
    EXPECT_EQ(volume.invokeMethod("Identify", uint32Duration), 2u);
    EXPECT_TRUE(LocatorLog::read(rig.path).empty());
}

} // namespace
