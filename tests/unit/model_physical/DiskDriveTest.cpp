// The disk drive on simulated controllers: keys, property order and the
// rules that leave properties out, the status table with its two
// conditional rows (shared with the extent), and Identify as the
// controller records it.
#include "CmpiStatus.h"
#include "LocatorLog.h"
#include "PhysicalTestSupport.h"
#include "QLN_VDDiskDrive.h"
#include "QLN_VDStorageExtent.h"

#include <gtest/gtest.h>

using namespace physicaltest;

namespace {

std::string const ns = "root/mwq";

// One controller with one disk; the two texts extend their records.
std::string oneDisk(std::string const& diskFields, std::string const& controllerFields = "") {
    return "controllers:\n  - {serialNumber: PCTL01, model: Veldra 8i" + controllerFields +
           ",\n     physicalDisks: [{id: 0, serialNumber: ' ZX 100 ', model: NR4000 SAS, "
           "enclosureBoxNumber: 1, bay: 3, paths: [{port: 1I, box: 1}]" +
           (diskFields.empty() ? "" : ", " + diskFields) + "}]}\n";
}

CmpiCpp::CmpiInstance diskOf(ScenarioRig& rig) {
    return QLN::QLN_VDDiskDrive(rig.logger, ns, 1, rig.disk(0, 0), rig.controllers[0])
        .getInstance();
}

char const* const carrierController = ", supportsLumenCarrierAuthentication: true";

} // namespace

// Catches a property renamed, moved or retyped, the SSD and carrier blocks
// out of place, the endurance zero-extended and the life figure sent.
TEST(DiskDrive, FullSSDOnCarrierControllerInOrder) {
    ScenarioRig rig(oneDisk("gasGauge: true, totalPowerOnHours: 1200, lifeRemaining: 77, "
                            "percentEnduranceUsed: 0xFFFFFFFF, sanitizeEraseSupported: true, "
                            "blockEraseSupported: true, overWriteEraseSupported: false, "
                            "carrierAuthStatus: 3, carrierOtherAuthStatus: vendor says no, "
                            "encryptionStatus: 2",
                            carrierController));
    CmpiCpp::CmpiInstance const instance = diskOf(rig);
    EXPECT_EQ(names(instance),
              "SystemCreationClassName CreationClassName SystemName DeviceID Name ElementName "
              "EncryptionStatus IsSanitizeEraseSupported IsCryptoScrambleEraseSupported "
              "IsBlockEraseSupported IsOverWriteEraseSupported HealthState OperationalStatus "
              "StatusDescriptions EnabledDefault EnabledState RequestedState SSDTotalPowerOnHours "
              "SSDPercentageEnduranceUsed SSDLifeRemaining SSDWearStatus TotalPowerOnHours "
              "DriveConfiguration DriveHasMNPData DriveInterface DrivePlacement "
              "DriveRotationalSpeed NegotiatedDataWidth NegotiatedSpeed "
              "LumenDriveCarrierAuthStatus OtherLumenDriveCarrierAuthStatus");
    EXPECT_EQ(text(instance, "DeviceID"), "NR4000SAS-ZX100");
    EXPECT_EQ(text(instance, "Name"), " ZX 100 ");
    EXPECT_TRUE(instance.getProperty("IsBlockEraseSupported").getBool());
    EXPECT_FALSE(instance.getProperty("IsOverWriteEraseSupported").getBool());
    EXPECT_EQ(uint64Of(instance, "TotalPowerOnHours"), 1200u);
    EXPECT_EQ(uint64Of(instance, "SSDPercentageEnduranceUsed"), ~0ULL);
    EXPECT_EQ(uint64Of(instance, "SSDLifeRemaining"), 0u);
    EXPECT_EQ(text(instance, "OtherLumenDriveCarrierAuthStatus"), "vendor says no");
}

// Catches an optional block shown although its condition is false.
TEST(DiskDrive, ConditionalPropertiesLeftOut) {
    ScenarioRig plain(oneDisk("blockEraseSupported: true, carrierAuthStatus: 3"));
    CmpiCpp::CmpiInstance const a = diskOf(plain);
    for (char const* absent :
         {"IsCryptoScrambleEraseSupported", "IsBlockEraseSupported", "IsOverWriteEraseSupported",
          "SSDTotalPowerOnHours", "SSDPercentageEnduranceUsed", "SSDLifeRemaining", "SSDWearStatus",
          "LumenDriveCarrierAuthStatus", "OtherLumenDriveCarrierAuthStatus"})
        EXPECT_FALSE(a.hasProperty(absent)) << absent;

    ScenarioRig carrier(
        oneDisk("carrierAuthStatus: 2, carrierOtherAuthStatus: x", carrierController));
    CmpiCpp::CmpiInstance const b = diskOf(carrier);
    EXPECT_EQ(uint16Of(b, "LumenDriveCarrierAuthStatus"), 2);
    EXPECT_FALSE(b.hasProperty("OtherLumenDriveCarrierAuthStatus"));
}

// Catches the serial-less DeviceID without the controller number, and the
// disk's and extent's rules confused (the extent has no controller number,
// so only SystemName keeps its disks apart).
TEST(DiskDrive, DeviceIdRulesOfDiskAndExtent) {
    ScenarioRig rig(R"(controllers:
  - {serialNumber: PA, physicalDisks: [{id: 0, model: NR4000, enclosureBoxNumber: 1, bay: 3}]}
  - {serialNumber: PB, physicalDisks: [{id: 0, model: NR4000, enclosureBoxNumber: 1, bay: 3}]}
)");
    CmpiCpp::CmpiInstance const diskA = diskOf(rig);
    EXPECT_EQ(text(diskA, "DeviceID"), "1-1:3");
    EXPECT_EQ(text(diskA, "Name"), "");
    EXPECT_EQ(text(QLN::QLN_VDDiskDrive(rig.logger, ns, 2, rig.disk(1, 0), rig.controllers[1])
                       .getInstance(),
                   "DeviceID"),
              "2-1:3");
    QLN::QLN_VDStorageExtent extentA(rig.logger, ns, 1, rig.disk(0, 0), rig.controllers[0]);
    QLN::QLN_VDStorageExtent extentB(rig.logger, ns, 2, rig.disk(1, 0), rig.controllers[1]);
    EXPECT_EQ(text(extentA.getInstance(), "DeviceID"), "1:3");
    EXPECT_EQ(text(extentB.getInstance(), "DeviceID"), "1:3");
    EXPECT_FALSE(extentA.getPath() == extentB.getPath());
}

namespace {

struct StatusCase {
    unsigned int status;
    char const* unlock; // the disk or controller field that enables a conditional row
    unsigned short health;
    char const* operational;
    char const* descriptions;
    bool extentUnknown; // a conditional row: the extent has none
};

// clang-format off
std::vector<StatusCase> const statusCases = {
    {4, "", 25, "6 32771", "Physical Disk has failed.|Physical Disk has had a failure on all of its paths.", false},
    {0x8005, "", 5, "2 32773", "Physical Disk is operating properly|Physical Disk data is being rebuilt.", false},
    {0x8000, "", 10, "3 32768", "Physical Disk is degraded.|Physical Disk has secure erase queued.", false},
    {0x8001, "", 10, "3 32769", "Physical Disk is degraded.|Physical Disk has secure erase in progress.", false},
    {0x8002, "", 10, "3 32770", "Physical Disk is degraded.|Physical Disk has completed secure erase.", false},
    {0x8003, "", 10, "3 32771", "Physical Disk is degraded.|Physical Disk has had a failure on one of its paths.", false},
    {0x8004, "", 10, "3 32772", "Physical Disk is degraded.|Physical Disk has unknown extended status.", false},
    {0x8006, "gas", 10, "5 32774", "Physical Disk is predicted to fail.|A Solid State wear out has occurred.", true},
    {0x8006, "carrier", 0, "0", "Physical Disk Unknown", false},
    {0x8007, "carrier", 10, "3 32775", "Physical Disk has Degraded.|The physical drive was not able to be authenticated and could not be validated.", true},
    {0x8007, "gas", 0, "0", "Physical Disk Unknown", false},
    {1, "", 5, "2", "Physical Disk is operating properly", false},
    {2, "", 10, "5", "Physical Disk is predicted to fail.", false},
    {3, "", 25, "6", "Physical Disk has failed.", false},
    {0, "", 0, "0", "Physical Disk Unknown", false},
    {0x9000, "", 0, "0", "Physical Disk Unknown", false},
};
// clang-format on

} // namespace

class DiskStatusTable : public ::testing::TestWithParam<StatusCase> {};

// Catches a row mapped wrongly, a conditional row taken without its
// condition, the all-paths failure sending its own value instead of 0x8003,
// the extent taking the disk's conditional rows, and a rebuild reported by
// the extent in any other state.
TEST_P(DiskStatusTable, DiskAndExtent) {
    StatusCase const& c = GetParam();
    std::string const unlock = c.unlock;
    ScenarioRig rig(
        oneDisk("status: " + std::to_string(c.status) + (unlock == "gas" ? ", gasGauge: true" : ""),
                unlock == "carrier" ? carrierController : ""));
    CmpiCpp::CmpiInstance const disk = diskOf(rig);
    EXPECT_EQ(uint16Of(disk, "HealthState"), c.health);
    EXPECT_EQ(elements(disk, "OperationalStatus"), c.operational);
    EXPECT_EQ(elements(disk, "StatusDescriptions"), c.descriptions);

    CmpiCpp::CmpiInstance const extent =
        QLN::QLN_VDStorageExtent(rig.logger, ns, 1, rig.disk(0, 0), rig.controllers[0])
            .getInstance();
    EXPECT_EQ(uint16Of(extent, "HealthState"), c.extentUnknown ? 0 : c.health);
    EXPECT_EQ(elements(extent, "OperationalStatus"), c.extentUnknown ? "0" : c.operational);
    EXPECT_EQ(elements(extent, "StatusDescriptions"),
              c.extentUnknown ? "Physical Disk Unknown" : c.descriptions);
    EXPECT_EQ(elements(extent, "ExtentStatus"), c.status == 0x8005 ? "11" : "2");
}

INSTANTIATE_TEST_SUITE_P(EveryRow, DiskStatusTable, ::testing::ValuesIn(statusCases));

// Catches the duration passed unscaled, an argument of another type or a
// missing one still lighting the disk, the controller's refusal not given as
// 2, and a disk gone from the snapshot escaping as an exception.
TEST(DiskDriveIdentify, ArgumentsControllerAnswerAndGoneDisk) {
    ScenarioRig rig(oneDisk(""));
    QLN::QLN_VDDiskDrive drive(rig.logger, ns, 1, rig.disk(0, 0), rig.controllers[0]);
    CmpiCpp::CmpiArgs seconds, shortSeconds, none;
    seconds.setArg("Duration", CmpiCpp::CmpiData(7u));
    shortSeconds.setArg("Duration", CmpiCpp::CmpiData(static_cast<unsigned short>(7)));
    char const* const warning = ":invokeMethod Identify, failed to extract Duration arg";

    EXPECT_EQ(drive.invokeMethod("Identify", shortSeconds), 17u);
    EXPECT_EQ(drive.invokeMethod("Locate", seconds), 17u);
    EXPECT_EQ(rig.log().find(warning), std::string::npos);
    EXPECT_EQ(drive.invokeMethod("Identify", none), 17u);
    EXPECT_NE(rig.log().find(warning), std::string::npos);
    EXPECT_TRUE(LocatorLog::read(rig.path).empty());

    EXPECT_EQ(drive.invokeMethod("Identify", seconds), 0u);
    std::vector<std::string> const lines = LocatorLog::read(rig.path);
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_NE(lines[0].find("controller 1 disks  ZX 100  duration 70"), std::string::npos);

    rig.change(oneDisk("", ", fail: [identifyPhysicalDisks]"));
    EXPECT_EQ(drive.invokeMethod("Identify", seconds), 2u);

    std::size_t const recorded = LocatorLog::read(rig.path).size();
    rig.change("controllers:\n  - {serialNumber: PCTL01}\n");
    EXPECT_EQ(drive.invokeMethod("Identify", seconds), 17u);
    EXPECT_NE(rig.log().find("invokeMethod,findPhysicalDiskInVector could not find drive based "
                             "on serial # or location"),
              std::string::npos);
    EXPECT_EQ(LocatorLog::read(rig.path).size(), recorded);
}

// Catches an instance that outlived its disk answering with stale values,
// or failing with another code or text, or losing its path (the worker
// needs the path to delete it).
TEST(DiskDrive, GoneFromSnapshotFailsWithStatus100) {
    ScenarioRig rig(oneDisk(""));
    QLN::QLN_VDDiskDrive drive(rig.logger, ns, 1, rig.disk(0, 0), rig.controllers[0]);
    rig.change("controllers:\n  - {serialNumber: PCTL01}\n");
    char const* const failure =
        "getInstance,findPhysicalDiskInVector could not find drive based on serial # or location";
    try {
        drive.getInstance();
        FAIL() << "no status thrown";
    } catch (CmpiCpp::CmpiStatus const& status) {
        EXPECT_EQ(status.rc(), CMPI_RC_ERROR_SYSTEM);
        EXPECT_EQ(status.msg(), failure);
    }
    EXPECT_NE(rig.log().find(failure), std::string::npos);
    EXPECT_EQ(drive.getPath().getKey("DeviceID").getString(), "NR4000SAS-ZX100");
}
