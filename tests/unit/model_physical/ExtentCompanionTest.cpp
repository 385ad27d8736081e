// The extent's own rules, the disk's companions (package, location, the
// three firmware identities), the redundancy set's pass, and each class's
// own failure text when its disk has left the snapshot.
#include "CmpiStatus.h"
#include "PhysicalTestSupport.h"
#include "QLN_VDDiskDriveFirmware.h"
#include "QLN_VDDiskDriveLocation.h"
#include "QLN_VDDiskPhysicalPackage.h"
#include "QLN_VDLumenDriveCarrierAppFirmware.h"
#include "QLN_VDLumenDriveCarrierBootldrFirmware.h"
#include "QLN_VDMediaAccessStatData.h"
#include "QLN_VDStorageExtent.h"
#include "QLN_VDStorageRedundancySet.h"

#include <gtest/gtest.h>

#include <memory>

using namespace physicaltest;

namespace {

std::string const ns = "root/mwq";

std::string const twoDisks = R"(controllers:
  - serialNumber: PCTL01
    model: Veldra 8i
    physicalDisks:
      - {id: 0, serialNumber: SN 0, model: NR4000 SAS, manufacturer: NR, firmwareRevision: "3.14",
         enclosureBoxNumber: 1, bay: 2, paths: [{port: 1I, box: 1}, {port: 2I, box: 1}],
         blockSize: 512, totalBlocks: 3907029168, totalPowerOnHours: 9,
         carrierAuthStatus: 2, carrierAppFWRev: 17, carrierBootLoaderFWRev: -2}
      - {id: 1, model: KS1920, enclosureBoxNumber: 2, bay: 7, paths: [{port: 1E, box: 2}],
         hotSwappable: false, totalPowerOnHours: 0}
)";

std::size_t count(std::string const& text, std::string const& what) {
    std::size_t n = 0;
    for (std::size_t at = text.find(what); at != std::string::npos; at = text.find(what, at + 1))
        ++n;
    return n;
}

} // namespace

// Catches the two block counts read from different getters, a signed
// BlockSize, and a zero TotalPowerOnHours shown on the extent.
TEST(StorageExtent, PropertyOrderBlocksAndPowerOnHours) {
    ScenarioRig rig(twoDisks);
    CmpiCpp::CmpiInstance const instance =
        QLN::QLN_VDStorageExtent(rig.logger, ns, 1, rig.disk(0, 0), rig.controllers[0])
            .getInstance();
    EXPECT_EQ(names(instance),
              "SystemCreationClassName CreationClassName SystemName DeviceID Name ElementName "
              "HealthState OperationalStatus StatusDescriptions ExtentStatus EnabledDefault "
              "EnabledState RequestedState BlockSize ConsumableBlocks NumberOfBlocks Primordial "
              "TotalPowerOnHours");
    EXPECT_EQ(text(instance, "ElementName"), "Port 1I Box 1 Bay 2, Port 2I Box 1 Bay 2");
    EXPECT_EQ(uint64Of(instance, "BlockSize"), 512u);
    EXPECT_EQ(uint64Of(instance, "ConsumableBlocks"), 3907029168ULL);
    EXPECT_EQ(uint64Of(instance, "NumberOfBlocks"), 3907029168ULL);
    EXPECT_EQ(uint64Of(instance, "TotalPowerOnHours"), 9u);
    EXPECT_FALSE(QLN::QLN_VDStorageExtent(rig.logger, ns, 1, rig.disk(0, 1), rig.controllers[0])
                     .getInstance()
                     .hasProperty("TotalPowerOnHours"));
}

// Catches a serial-less disk's package and location named without the
// controller number, empty texts shown instead of left out, RemovalConditions
// not following HotSwappable, and the controller's unreadable model not
// replaced in the location's caption.
TEST(DiskPackageAndLocation, KeysTextsAndFallbacks) {
    ScenarioRig rig(twoDisks);
    using Package = QLN::QLN_VDDiskPhysicalPackage;
    CmpiCpp::CmpiInstance const full =
        Package(rig.logger, ns, 1, rig.disk(0, 0), rig.controllers[0]).getInstance();
    EXPECT_EQ(names(full), "CreationClassName Tag SerialNumber ElementName Name Manufacturer "
                           "Model HotSwappable RemovalConditions PartNumber Version Description");
    EXPECT_EQ(text(full, "Tag"), "QLN_VDDiskPhysicalPackage-NR4000SAS-SN0");
    EXPECT_EQ(uint16Of(full, "RemovalConditions"), 4);
    CmpiCpp::CmpiInstance const bare =
        Package(rig.logger, ns, 3, rig.disk(0, 1), rig.controllers[0]).getInstance();
    EXPECT_EQ(text(bare, "Tag"), "QLN_VDDiskPhysicalPackage-3-2:7");
    EXPECT_FALSE(bare.hasProperty("SerialNumber"));
    EXPECT_EQ(uint16Of(bare, "RemovalConditions"), 3);

    QLN::QLN_VDDiskDriveLocation withSerial(rig.logger, ns, 1, rig.disk(0, 0), rig.controllers[0]);
    QLN::QLN_VDDiskDriveLocation without(rig.logger, ns, 1, rig.disk(0, 1), rig.controllers[0]);
    CmpiCpp::CmpiInstance const a = withSerial.getInstance();
    EXPECT_EQ(text(a, "PhysicalPosition"), "SN0");
    EXPECT_EQ(text(a, "Caption"),
              "Veldra 8i Physical Drive - Port 1I Box 1 Bay 2, Port 2I Box 1 Bay 2");
    EXPECT_EQ(text(without.getInstance(), "PhysicalPosition"), "1-2:7");
    EXPECT_FALSE(withSerial.getPath() == without.getPath());
    std::string failing = twoDisks;
    failing.replace(failing.find("model: Veldra 8i"), 16, "fail: [getModel]");
    rig.change(failing);
    EXPECT_EQ(text(without.getInstance(), "ElementName"),
              "UNKNOWN Physical Drive - Port 1E Box 2 Bay 7");
}

// Catches the firmware classes swapping texts, the carrier versions not
// printed as signed decimals, and the drive's firmware losing its version.
TEST(DiskFirmware, ThreeIdentitiesOfOneDisk) {
    ScenarioRig rig(twoDisks);
    VeldraPhysicalDisk const disk = rig.disk(0, 0);
    CmpiCpp::CmpiInstance const drive =
        QLN::QLN_VDDiskDriveFirmware(rig.logger, ns, 1, disk, rig.controllers[0]).getInstance();
    EXPECT_EQ(names(drive),
              "InstanceID Caption Name Description IsEntity Manufacturer Classifications "
              "ClassificationDescriptions OperationalStatus StatusDescriptions HealthState "
              "VersionString MajorVersion MinorVersion ElementName TargetTypes IdentityInfoType "
              "IdentityInfoValue");
    EXPECT_EQ(text(drive, "InstanceID"), "MWQ:QLN_VDDiskDriveFirmware-NR4000SAS-SN0");
    EXPECT_EQ(text(drive, "ElementName"), "Disk Drive Firmware");
    EXPECT_EQ(text(drive, "VersionString"), "3.14");
    EXPECT_EQ(elements(drive, "StatusDescriptions"), "Disk Drive Firmware Status: OK");
    EXPECT_EQ(elements(drive, "IdentityInfoValue"), "NR4000 SAS|Storage Device");

    CmpiCpp::CmpiInstance const app =
        QLN::QLN_VDLumenDriveCarrierAppFirmware(rig.logger, ns, 1, disk, rig.controllers[0])
            .getInstance();
    EXPECT_EQ(text(app, "Name"), "Lumen Drive Carrier Application Firmware");
    EXPECT_EQ(text(app, "VersionString"), "17");
    EXPECT_EQ(elements(app, "StatusDescriptions"),
              "Lumen Drive Carrier Application Firmware Status: OK");
    CmpiCpp::CmpiInstance const boot =
        QLN::QLN_VDLumenDriveCarrierBootldrFirmware(rig.logger, ns, 1, disk, rig.controllers[0])
            .getInstance();
    EXPECT_EQ(text(boot, "Caption"), "Lumen Drive Carrier Bootloader Firmware");
    EXPECT_EQ(text(boot, "VersionString"), "-2");
}

// Catches the status not following the spare, the change lines logged on
// every pass instead of once, the "Send" line without indications, and a
// vanished logical disk kept as redundant.
TEST(StorageRedundancySet, FollowsTheSpareAcrossPasses) {
    auto volume = [](char const* spareAvailable) {
        return std::string("controllers:\n  - serialNumber: PCTL01\n    physicalDisks:\n"
                           "      - {id: 0, serialNumber: D0, configuration: 2}\n"
                           "      - {id: 1, serialNumber: D1, configuration: 3}\n"
                           "    logicalDisks:\n      - {number: 0, serialNumber: LD0, "
                           "dataDisks: [0], spareDisks: [1], spareAvailable: ") +
               spareAvailable + "}\n";
    };
    ScenarioRig rig(volume("true"));
    std::vector<VeldraLogicalDisk> logicals;
    rig.controllers[0]->getLastLogicalDisks(logicals);
    QLN::QLN_VDStorageRedundancySet set(rig.logger, ns, 1, logicals.at(0), rig.controllers[0]);
    CmpiCpp::CmpiContext context;
    EXPECT_EQ(text(set.getInstance(), "InstanceID"), "QLN_VDStorageRedundancySet-LD0");
    set.manageDynamic(true, context);
    EXPECT_EQ(uint16Of(set.getInstance(), "RedundancyStatus"), 2);

    rig.change(volume("false"));
    set.manageDynamic(true, context);
    set.manageDynamic(true, context);
    EXPECT_EQ(uint16Of(set.getInstance(), "RedundancyStatus"), 4);
    EXPECT_EQ(count(rig.log(), "Redundancy State change, Old: 2 New: 4"), 2u); // plain and "Send"
    EXPECT_EQ(count(rig.log(), "Send Redundancy State change, Old: 2 New: 4"), 1u);

    rig.change(volume("true"));
    set.manageDynamic(false, context);
    EXPECT_EQ(uint16Of(set.getInstance(), "RedundancyStatus"), 2);
    EXPECT_EQ(count(rig.log(), "Redundancy State change, Old: 4 New: 2"), 1u);
    // Passes without a change log nothing.
    EXPECT_EQ(count(rig.log(), "Redundancy State change"), 3u);

    rig.change("controllers:\n  - {serialNumber: PCTL01}\n");
    set.manageDynamic(false, context);
    EXPECT_EQ(set.getRedundancyStatus(), 4u);
}

// Catches a class answering for a disk that is gone, or failing with another
// code or another class's words, or losing the path the worker deletes by.
TEST(DiskGoneFromSnapshot, EveryClassFailsWithStatus100AndItsOwnText) {
    ScenarioRig rig(twoDisks);
    VeldraPhysicalDisk const d = rig.disk(0, 0);
    VeldraController* const c = rig.controllers[0];
    std::string const companion =
        "getInstance, findPhysicalDiskInVector could not find drive based on serial #";
    std::vector<std::pair<std::unique_ptr<QLN::CmpiManagedInstance>, std::string>> cases;
    cases.emplace_back(std::make_unique<QLN::QLN_VDStorageExtent>(rig.logger, ns, 1, d, c),
                       companion + " or location");
    cases.emplace_back(std::make_unique<QLN::QLN_VDMediaAccessStatData>(rig.logger, ns, 1, d, c),
                       "getInstance,findPhysicalDiskInVector could not find drive based on "
                       "serial # or location");
    cases.emplace_back(std::make_unique<QLN::QLN_VDDiskPhysicalPackage>(rig.logger, ns, 1, d, c),
                       companion);
    cases.emplace_back(std::make_unique<QLN::QLN_VDDiskDriveLocation>(rig.logger, ns, 1, d, c),
                       companion);
    cases.emplace_back(std::make_unique<QLN::QLN_VDDiskDriveFirmware>(rig.logger, ns, 1, d, c),
                       companion);
    rig.change("controllers:\n  - {serialNumber: PCTL01, model: Veldra 8i}\n");
    for (auto const& [instance, failure] : cases) {
        std::string const name = instance->getClassName().str();
        try {
            instance->getInstance();
            ADD_FAILURE() << name << " answered for a disk that is gone";
        } catch (CmpiCpp::CmpiStatus const& status) {
            EXPECT_EQ(status.rc(), CMPI_RC_ERROR_SYSTEM) << name;
            EXPECT_EQ(status.msg(), failure) << name;
        }
        EXPECT_NO_THROW(instance->getPath()) << name;
    }
}
