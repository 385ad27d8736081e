// The disk drive class on simulated controllers: its keys, property order
// and the rules that leave properties out, the status table with its two
// conditional rows (shared with the extent), and Identify as the controller
// records it.
#include "CmpiStatus.h"
#include "LocatorLog.h"
#include "PhysicalTestRig.h"
#include "QLN_VDDiskDrive.h"
#include "QLN_VDStorageExtent.h"

#include <gtest/gtest.h>

using namespace physicaltest;

namespace {

std::string const ns = "root/mwq";

// One controller; `controllerExtra` and `diskFields` go into its record and
// its one disk's.
std::string oneDisk(std::string const& diskFields, std::string const& controllerExtra = "") {
    return "controllers:\n  - {serialNumber: PCTL01, model: Veldra 8i" + controllerExtra +
           ",\n     physicalDisks: [{id: 0, serialNumber: ' ZX 100 ', model: NR4000 SAS, "
           "enclosureBoxNumber: 1, bay: 3, paths: [{port: 1I, box: 1}]" +
           (diskFields.empty() ? "" : ", " + diskFields) + "}]}\n";
}

} // namespace

// Catches a property renamed, moved or given another type, and the gas gauge
// and carrier blocks coming out in the wrong place: clients and the MOF rely
// on both.
TEST(DiskDrive, FullSSDOnCarrierControllerInOrder) {
    PhysicalTestRig rig(oneDisk(
        "gasGauge: true, totalPowerOnHours: 1200, percentEnduranceUsed: "
        "0xFFFFFFFF, lifeRemaining: 77, ssdWearStatus: 1, "
        "sanitizeEraseSupported: true, blockEraseSupported: true, overWriteEraseSupported: false, "
        "carrierAuthStatus: 3, carrierOtherAuthStatus: vendor says no, "
        "encryptionStatus: 2, negotiatedSpeed: 12000000000, "
        "configuration: 2, mnpData: true",
        ", supportsLumenCarrierAuthentication: true"));
    QLN::QLN_VDDiskDrive drive(rig.logger, ns, 1, rig.disk(0, 0), rig.controllers[0]);
    CmpiCpp::CmpiInstance const instance = drive.getInstance();
    EXPECT_EQ(names(instance),
              "SystemCreationClassName CreationClassName SystemName DeviceID Name ElementName "
              "EncryptionStatus IsSanitizeEraseSupported IsCryptoScrambleEraseSupported "
              "IsBlockEraseSupported IsOverWriteEraseSupported HealthState OperationalStatus "
              "StatusDescriptions EnabledDefault EnabledState RequestedState SSDTotalPowerOnHours "
              "SSDPercentageEnduranceUsed SSDLifeRemaining SSDWearStatus TotalPowerOnHours "
              "DriveConfiguration DriveHasMNPData DriveInterface DrivePlacement "
              "DriveRotationalSpeed NegotiatedDataWidth NegotiatedSpeed "
              "LumenDriveCarrierAuthStatus OtherLumenDriveCarrierAuthStatus");
    EXPECT_EQ(text(instance, "SystemName"), "PCTL01");
    EXPECT_EQ(text(instance, "DeviceID"), "NR4000SAS-ZX100");
    EXPECT_EQ(text(instance, "Name"), " ZX 100 ");
    EXPECT_EQ(text(instance, "ElementName"), "Port 1I Box 1 Bay 3");
    EXPECT_EQ(uint16Of(instance, "EncryptionStatus"), 2);
    EXPECT_TRUE(instance.getProperty("IsBlockEraseSupported").getBool());
    EXPECT_FALSE(instance.getProperty("IsOverWriteEraseSupported").getBool());
    EXPECT_EQ(uint64Of(instance, "SSDTotalPowerOnHours"), 1200u);
    EXPECT_EQ(uint64Of(instance, "TotalPowerOnHours"), 1200u);
    // Sign-extended, not zero-extended.
    EXPECT_EQ(uint64Of(instance, "SSDPercentageEnduranceUsed"), ~0ULL);
    // The hardware's life figure never reaches the client.
    EXPECT_EQ(uint64Of(instance, "SSDLifeRemaining"), 0u);
    EXPECT_EQ(uint64Of(instance, "NegotiatedSpeed"), 12000000000ULL);
    EXPECT_EQ(instance.getProperty("DriveRotationalSpeed").getType(), CMPI_uint32);
    EXPECT_EQ(uint16Of(instance, "LumenDriveCarrierAuthStatus"), 3);
    EXPECT_EQ(text(instance, "OtherLumenDriveCarrierAuthStatus"), "vendor says no");
    EXPECT_EQ(drive.getPath(), instance.getPath());
}

// Catches the optional blocks shown when their condition is false: erase
// kinds without sanitize, SSD values without gas gauge, carrier values on a
// controller that does not authenticate, the other-status text for a status
// other than 3.
TEST(DiskDrive, ConditionalPropertiesLeftOut) {
    PhysicalTestRig plain(oneDisk("blockEraseSupported: true, carrierAuthStatus: 3"));
    CmpiCpp::CmpiInstance const a =
        QLN::QLN_VDDiskDrive(plain.logger, ns, 1, plain.disk(0, 0), plain.controllers[0])
            .getInstance();
    EXPECT_FALSE(a.getProperty("IsSanitizeEraseSupported").getBool());
    for (char const* absent :
         {"IsCryptoScrambleEraseSupported", "IsBlockEraseSupported", "IsOverWriteEraseSupported",
          "SSDTotalPowerOnHours", "SSDPercentageEnduranceUsed", "SSDLifeRemaining", "SSDWearStatus",
          "LumenDriveCarrierAuthStatus", "OtherLumenDriveCarrierAuthStatus"})
        EXPECT_FALSE(a.hasProperty(absent)) << absent;
    EXPECT_TRUE(a.hasProperty("TotalPowerOnHours"));

    PhysicalTestRig carrier(oneDisk("carrierAuthStatus: 2, carrierOtherAuthStatus: x",
                                    ", supportsLumenCarrierAuthentication: true"));
    CmpiCpp::CmpiInstance const b =
        QLN::QLN_VDDiskDrive(carrier.logger, ns, 1, carrier.disk(0, 0), carrier.controllers[0])
            .getInstance();
    EXPECT_EQ(uint16Of(b, "LumenDriveCarrierAuthStatus"), 2);
    EXPECT_FALSE(b.hasProperty("OtherLumenDriveCarrierAuthStatus"));
}

// Catches the serial-less DeviceID built without the controller number, or
// with whitespace, and the two classes' rules confused: the extent drops the
// controller number, so only SystemName keeps its disks apart.
TEST(DiskDrive, DeviceIdRulesOfDiskAndExtent) {
    PhysicalTestRig rig(R"(controllers:
  - serialNumber: PA
    physicalDisks: [{id: 0, model: NR4000 SAS, enclosureBoxNumber: 1, bay: 3}]
  - serialNumber: PB
    physicalDisks: [{id: 0, model: NR4000 SAS, enclosureBoxNumber: 1, bay: 3}]
)");
    QLN::QLN_VDDiskDrive driveA(rig.logger, ns, 1, rig.disk(0, 0), rig.controllers[0]);
    QLN::QLN_VDDiskDrive driveB(rig.logger, ns, 2, rig.disk(1, 0), rig.controllers[1]);
    QLN::QLN_VDStorageExtent extentA(rig.logger, ns, 1, rig.disk(0, 0), rig.controllers[0]);
    QLN::QLN_VDStorageExtent extentB(rig.logger, ns, 2, rig.disk(1, 0), rig.controllers[1]);

    CmpiCpp::CmpiInstance const disk = driveA.getInstance();
    EXPECT_EQ(text(disk, "DeviceID"), "1-1:3");
    EXPECT_EQ(text(disk, "Name"), "");
    EXPECT_EQ(text(driveB.getInstance(), "DeviceID"), "2-1:3");
    EXPECT_EQ(text(extentA.getInstance(), "DeviceID"), "1:3");
    EXPECT_EQ(text(extentB.getInstance(), "DeviceID"), "1:3");
    EXPECT_FALSE(extentA.getPath() == extentB.getPath());
    EXPECT_EQ(text(extentB.getInstance(), "SystemName"), "PB");
}

namespace {

struct StatusCase {
    unsigned int status;
    bool gasGauge;
    bool carrierAuthentication;
    unsigned short health;
    std::vector<unsigned short> operational;
    std::vector<std::string> descriptions;
    // The extent has no conditional rows; a conditional row shows there as unknown.
    bool extentUnknown;
};

std::vector<StatusCase> const statusCases = {
    {4,
     false,
     false,
     25,
     {6, 0x8003},
     {"Physical Disk has failed.", "Physical Disk has had a failure on all of its paths."},
     false},
    {0x8005,
     false,
     false,
     5,
     {2, 0x8005},
     {"Physical Disk is operating properly", "Physical Disk data is being rebuilt."},
     false},
    {0x8000,
     false,
     false,
     10,
     {3, 0x8000},
     {"Physical Disk is degraded.", "Physical Disk has secure erase queued."},
     false},
    {0x8001,
     false,
     false,
     10,
     {3, 0x8001},
     {"Physical Disk is degraded.", "Physical Disk has secure erase in progress."},
     false},
    {0x8002,
     false,
     false,
     10,
     {3, 0x8002},
     {"Physical Disk is degraded.", "Physical Disk has completed secure erase."},
     false},
    {0x8003,
     false,
     false,
     10,
     {3, 0x8003},
     {"Physical Disk is degraded.", "Physical Disk has had a failure on one of its paths."},
     false},
    {0x8004,
     false,
     false,
     10,
     {3, 0x8004},
     {"Physical Disk is degraded.", "Physical Disk has unknown extended status."},
     false},
    {0x8006,
     true,
     false,
     10,
     {5, 0x8006},
     {"Physical Disk is predicted to fail.", "A Solid State wear out has occurred."},
     true},
    {0x8006, false, true, 0, {0}, {"Physical Disk Unknown"}, false},
    {0x8007,
     false,
     true,
     10,
     {3, 0x8007},
     {"Physical Disk has Degraded.",
      "The physical drive was not able to be authenticated and could not be validated."},
     true},
    {0x8007, true, false, 0, {0}, {"Physical Disk Unknown"}, false},
    {1, false, false, 5, {2}, {"Physical Disk is operating properly"}, false},
    {2, false, false, 10, {5}, {"Physical Disk is predicted to fail."}, false},
    {3, false, false, 25, {6}, {"Physical Disk has failed."}, false},
    {0, false, false, 0, {0}, {"Physical Disk Unknown"}, false},
    {0x9000, false, false, 0, {0}, {"Physical Disk Unknown"}, false},
};

} // namespace

class DiskStatusTable : public ::testing::TestWithParam<StatusCase> {};

// Catches a row mapped wrongly, a conditional row taken without its
// condition, the fixed 0x8003 of the all-paths failure replaced by the
// status, and the extent taking the disk's conditional rows or reporting a
// rebuild anywhere but in the rebuilding state.
TEST_P(DiskStatusTable, DiskAndExtent) {
    StatusCase const& c = GetParam();
    PhysicalTestRig rig(
        oneDisk("status: " + std::to_string(c.status) +
                    ", totalPowerOnHours: 0, totalBlocks: 1000, blockSize: 4096" +
                    (c.gasGauge ? ", gasGauge: true" : ""),
                c.carrierAuthentication ? ", supportsLumenCarrierAuthentication: true" : ""));
    CmpiCpp::CmpiInstance const disk =
        QLN::QLN_VDDiskDrive(rig.logger, ns, 1, rig.disk(0, 0), rig.controllers[0]).getInstance();
    EXPECT_EQ(uint16Of(disk, "HealthState"), c.health);
    EXPECT_EQ(uint16List(disk, "OperationalStatus"), c.operational);
    EXPECT_EQ(strings(disk, "StatusDescriptions"), c.descriptions);

    CmpiCpp::CmpiInstance const extent =
        QLN::QLN_VDStorageExtent(rig.logger, ns, 1, rig.disk(0, 0), rig.controllers[0])
            .getInstance();
    if (c.extentUnknown) {
        EXPECT_EQ(uint16Of(extent, "HealthState"), 0);
        EXPECT_EQ(uint16List(extent, "OperationalStatus"), std::vector<unsigned short>{0});
        EXPECT_EQ(strings(extent, "StatusDescriptions"),
                  std::vector<std::string>{"Physical Disk Unknown"});
    } else {
        EXPECT_EQ(uint16Of(extent, "HealthState"), c.health);
        EXPECT_EQ(uint16List(extent, "OperationalStatus"), c.operational);
        EXPECT_EQ(strings(extent, "StatusDescriptions"), c.descriptions);
    }
    EXPECT_EQ(
        uint16List(extent, "ExtentStatus"),
        std::vector<unsigned short>{static_cast<unsigned short>(c.status == 0x8005 ? 11 : 2)});
}

INSTANTIATE_TEST_SUITE_P(EveryRow, DiskStatusTable, ::testing::ValuesIn(statusCases));

// Catches the duration passed unscaled, an argument of the wrong type still
// lighting the disk, and the controller's refusal not reported as 2.
TEST(DiskDriveIdentify, DurationTypesAndControllerAnswer) {
    PhysicalTestRig rig(oneDisk(""));
    QLN::QLN_VDDiskDrive drive(rig.logger, ns, 1, rig.disk(0, 0), rig.controllers[0]);
    CmpiCpp::CmpiArgs seconds, shortSeconds, none;
    seconds.setArg("Duration", CmpiCpp::CmpiData(static_cast<unsigned int>(7)));
    shortSeconds.setArg("Duration", CmpiCpp::CmpiData(static_cast<unsigned short>(7)));

    EXPECT_EQ(drive.invokeMethod("Identify", shortSeconds), 17u);
    EXPECT_EQ(drive.invokeMethod("Locate", seconds), 17u);
    EXPECT_TRUE(LocatorLog::read(rig.path).empty());
    EXPECT_EQ(drive.invokeMethod("Identify", none), 17u);
    EXPECT_NE(rig.log().find(":invokeMethod Identify, failed to extract Duration arg"),
              std::string::npos);

    EXPECT_EQ(drive.invokeMethod("Identify", seconds), 0u);
    std::vector<std::string> const lines = LocatorLog::read(rig.path);
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_NE(lines[0].find("controller 1 disks  ZX 100  duration 70"), std::string::npos)
        << lines[0];

    rig.change(oneDisk("", ", fail: [identifyPhysicalDisks]"));
    EXPECT_EQ(drive.invokeMethod("Identify", seconds), 2u);
}

// Catches an instance that outlived its disk answering with stale or empty
// values instead of failing, and Identify letting the failure escape.
TEST(DiskDriveIdentify, DiskGoneFromSnapshot) {
    PhysicalTestRig rig(oneDisk(""));
    QLN::QLN_VDDiskDrive drive(rig.logger, ns, 1, rig.disk(0, 0), rig.controllers[0]);
    rig.change("controllers:\n  - {serialNumber: PCTL01}\n");

    char const* const getText =
        "getInstance,findPhysicalDiskInVector could not find drive based on serial # or location";
    try {
        drive.getInstance();
        FAIL() << "no status thrown";
    } catch (CmpiCpp::CmpiStatus const& status) {
        EXPECT_EQ(status.rc(), CMPI_RC_ERROR_SYSTEM);
        EXPECT_EQ(status.msg(), getText);
    }
    EXPECT_NE(rig.log().find(getText), std::string::npos);

    CmpiCpp::CmpiArgs seconds;
    seconds.setArg("Duration", CmpiCpp::CmpiData(static_cast<unsigned int>(7)));
    EXPECT_EQ(drive.invokeMethod("Identify", seconds), 17u);
    std::string const log = rig.log();
    EXPECT_NE(log.find("invokeMethod,findPhysicalDiskInVector could not find drive"),
              std::string::npos);
    EXPECT_NE(log.find(":invokeMethod Identify, failed to extract Duration arg"),
              std::string::npos);
    EXPECT_TRUE(LocatorLog::read(rig.path).empty());
    // The path needs no hardware: the collection can still name the instance.
    EXPECT_EQ(drive.getPath().getKey("DeviceID").getString(), "NR4000SAS-ZX100");
}
