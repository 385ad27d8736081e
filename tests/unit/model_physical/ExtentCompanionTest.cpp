// The extent's own rules, the disk's companions (package, location, the
// three firmware identities), the redundancy set's pass, and every class's
// own failure text when its disk has left the snapshot.
#include "CmpiStatus.h"
#include "PhysicalTestRig.h"
#include "QLN_VDDiskDriveFirmware.h"
#include "QLN_VDDiskDriveLocation.h"
#include "QLN_VDDiskPhysicalPackage.h"
#include "QLN_VDLumenDriveCarrierAppFirmware.h"
#include "QLN_VDLumenDriveCarrierBootldrFirmware.h"
#include "QLN_VDMediaAccessStatData.h"
#include "QLN_VDStorageExtent.h"
#include "QLN_VDStorageRedundancySet.h"

#include <gtest/gtest.h>

#include <functional>
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
         hotSwappable: true, blockSize: 512, totalBlocks: 3907029168, totalPowerOnHours: 9,
         carrierAuthStatus: 2, carrierAppFWRev: 17, carrierBootLoaderFWRev: -2}
      - {id: 1, model: KS1920, enclosureBoxNumber: 2, bay: 7, paths: [{port: 1E, box: 2}],
         hotSwappable: false}
)";

} // namespace

// Catches ConsumableBlocks and NumberOfBlocks read from different getters, a
// signed BlockSize, and a zero TotalPowerOnHours shown on the extent.
TEST(StorageExtent, PropertyOrderBlocksAndPowerOnHours) {
    PhysicalTestRig rig(twoDisks);
    QLN::QLN_VDStorageExtent extent(rig.logger, ns, 1, rig.disk(0, 0), rig.controllers[0]);
    CmpiCpp::CmpiInstance const instance = extent.getInstance();
    EXPECT_EQ(names(instance),
              "SystemCreationClassName CreationClassName SystemName DeviceID Name ElementName "
              "HealthState OperationalStatus StatusDescriptions ExtentStatus EnabledDefault "
              "EnabledState RequestedState BlockSize ConsumableBlocks NumberOfBlocks Primordial "
              "TotalPowerOnHours");
    EXPECT_EQ(text(instance, "DeviceID"), "NR4000SAS-SN0");
    EXPECT_EQ(text(instance, "ElementName"), "Port 1I Box 1 Bay 2, Port 2I Box 1 Bay 2");
    EXPECT_EQ(uint64Of(instance, "BlockSize"), 512u);
    EXPECT_EQ(uint64Of(instance, "ConsumableBlocks"), 3907029168ULL);
    EXPECT_EQ(uint64Of(instance, "NumberOfBlocks"), 3907029168ULL);
    EXPECT_TRUE(instance.getProperty("Primordial").getBool());
    EXPECT_EQ(uint64Of(instance, "TotalPowerOnHours"), 9u);

    CmpiCpp::CmpiInstance const fresh =
        QLN::QLN_VDStorageExtent(rig.logger, ns, 1, rig.disk(0, 1), rig.controllers[0])
            .getInstance();
    EXPECT_FALSE(fresh.hasProperty("TotalPowerOnHours"));
}

// Catches a package named by the serial when there is none, the serial,
// maker or model shown empty instead of left out, and RemovalConditions
// not following HotSwappable.
TEST(DiskPhysicalPackage, TagAndLeftOutTexts) {
    PhysicalTestRig rig(twoDisks);
    CmpiCpp::CmpiInstance const full =
        QLN::QLN_VDDiskPhysicalPackage(rig.logger, ns, 1, rig.disk(0, 0), rig.controllers[0])
            .getInstance();
    EXPECT_EQ(names(full), "CreationClassName Tag SerialNumber ElementName Name Manufacturer "
                           "Model HotSwappable RemovalConditions PartNumber Version Description");
    EXPECT_EQ(text(full, "Tag"), "QLN_VDDiskPhysicalPackage-NR4000SAS-SN0");
    EXPECT_EQ(text(full, "SerialNumber"), "SN 0");
    EXPECT_EQ(uint16Of(full, "RemovalConditions"), 4);

    CmpiCpp::CmpiInstance const bare =
        QLN::QLN_VDDiskPhysicalPackage(rig.logger, ns, 3, rig.disk(0, 1), rig.controllers[0])
            .getInstance();
    EXPECT_EQ(text(bare, "Tag"), "QLN_VDDiskPhysicalPackage-3-2:7");
    EXPECT_FALSE(bare.hasProperty("SerialNumber"));
    EXPECT_FALSE(bare.hasProperty("Manufacturer"));
    EXPECT_EQ(uint16Of(bare, "RemovalConditions"), 3);
    EXPECT_EQ(text(bare, "Description"), "Veldra Disk Drive Physical Package");
}

// Catches the position of a serial-less disk missing its controller number,
// the controller's model not replaced when it cannot be read, and disks of
// one controller sharing a location key.
TEST(DiskDriveLocation, PositionCaptionAndKey) {
    PhysicalTestRig rig(twoDisks);
    QLN::QLN_VDDiskDriveLocation withSerial(rig.logger, ns, 1, rig.disk(0, 0), rig.controllers[0]);
    QLN::QLN_VDDiskDriveLocation without(rig.logger, ns, 1, rig.disk(0, 1), rig.controllers[0]);
    CmpiCpp::CmpiInstance const a = withSerial.getInstance();
    EXPECT_EQ(names(a), "Name PhysicalPosition Caption Description ElementName "
                        "ElementLocationTag ElementLocationTagDesc");
    EXPECT_EQ(text(a, "PhysicalPosition"), "SN0");
    EXPECT_EQ(text(a, "Caption"),
              "Veldra 8i Physical Drive - Port 1I Box 1 Bay 2, Port 2I Box 1 Bay 2");
    EXPECT_EQ(text(a, "ElementLocationTag"), "2");
    EXPECT_EQ(uint16Of(a, "ElementLocationTagDesc"), 20);
    EXPECT_EQ(text(without.getInstance(), "PhysicalPosition"), "1-2:7");
    EXPECT_FALSE(withSerial.getPath() == without.getPath());

    rig.change(std::string(twoDisks).replace(twoDisks.find("    model: Veldra 8i"), 20,
                                             "    fail: [getModel]"));
    EXPECT_EQ(text(without.getInstance(), "ElementName"),
              "UNKNOWN Physical Drive - Port 1E Box 2 Bay 7");
}

// Catches the firmware classes swapping their texts, the carrier versions not
// printed as signed decimals, and the drive's firmware losing its version.
TEST(DiskFirmware, ThreeIdentitiesOfOneDisk) {
    PhysicalTestRig rig(twoDisks);
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
    EXPECT_EQ(text(drive, "Manufacturer"), "NR");
    EXPECT_EQ(text(drive, "VersionString"), "3.14");
    EXPECT_EQ(strings(drive, "StatusDescriptions"),
              std::vector<std::string>{"Disk Drive Firmware Status: OK"});
    EXPECT_EQ(strings(drive, "IdentityInfoValue"),
              (std::vector<std::string>{"NR4000 SAS", "Storage Device"}));

    CmpiCpp::CmpiInstance const app =
        QLN::QLN_VDLumenDriveCarrierAppFirmware(rig.logger, ns, 1, disk, rig.controllers[0])
            .getInstance();
    EXPECT_EQ(text(app, "Name"), "Lumen Drive Carrier Application Firmware");
    EXPECT_EQ(text(app, "VersionString"), "17");
    EXPECT_EQ(strings(app, "StatusDescriptions"),
              std::vector<std::string>{"Lumen Drive Carrier Application Firmware Status: OK"});
    CmpiCpp::CmpiInstance const boot =
        QLN::QLN_VDLumenDriveCarrierBootldrFirmware(rig.logger, ns, 1, disk, rig.controllers[0])
            .getInstance();
    EXPECT_EQ(text(boot, "Caption"), "Lumen Drive Carrier Bootloader Firmware");
    EXPECT_EQ(text(boot, "VersionString"), "-2");
    EXPECT_NE(text(app, "InstanceID"), text(boot, "InstanceID"));
}

namespace {

std::string volume(std::string const& spareAvailable) {
    return R"(controllers:
  - serialNumber: PCTL01
    physicalDisks:
      - {id: 0, serialNumber: D0, enclosureBoxNumber: 1, bay: 1, configuration: 2}
      - {id: 1, serialNumber: D1, enclosureBoxNumber: 1, bay: 2, configuration: 3}
    logicalDisks:
      - {number: 0, serialNumber: LD0, dataDisks: [0], spareDisks: [1], spareAvailable: )" +
           spareAvailable + "}\n";
}

std::size_t count(std::string const& text, std::string const& what) {
    std::size_t n = 0;
    for (std::size_t at = text.find(what); at != std::string::npos; at = text.find(what, at + 1))
        ++n;
    return n;
}

} // namespace

// Catches the status not following the spare, the change lines logged on
// every pass instead of once, and a vanished logical disk kept as redundant.
TEST(StorageRedundancySet, FollowsTheSpareAcrossPasses) {
    PhysicalTestRig rig(volume("true"));
    std::vector<VeldraLogicalDisk> logicals;
    rig.controllers[0]->getLastLogicalDisks(logicals);
    QLN::QLN_VDStorageRedundancySet set(rig.logger, ns, 1, logicals.at(0), rig.controllers[0]);
    CmpiCpp::CmpiContext context;
    EXPECT_EQ(names(set.getInstance()), "InstanceID ElementName RedundancyStatus "
                                        "LoadBalanceAlgorithm MinNumberNeeded MaxNumberSupported "
                                        "TypeOfSet");
    EXPECT_EQ(text(set.getInstance(), "InstanceID"), "QLN_VDStorageRedundancySet-LD0");

    set.manageDynamic(true, context);
    EXPECT_EQ(uint16Of(set.getInstance(), "RedundancyStatus"), 2);
    rig.change(volume("false"));
    set.manageDynamic(true, context);
    set.manageDynamic(true, context);
    EXPECT_EQ(uint16Of(set.getInstance(), "RedundancyStatus"), 4);
    std::string log = rig.log();
    EXPECT_EQ(count(log, "Redundancy State change, Old: 2 New: 4"), 2u); // plain and "Send"
    EXPECT_EQ(count(log, "Send Redundancy State change, Old: 2 New: 4"), 1u);

    rig.change(volume("true"));
    set.manageDynamic(false, context);
    EXPECT_EQ(uint16Of(set.getInstance(), "RedundancyStatus"), 2);
    log = rig.log();
    EXPECT_EQ(count(log, "Redundancy State change, Old: 4 New: 2"), 1u);
    EXPECT_EQ(count(log, "Send Redundancy State change, Old: 4 New: 2"), 0u);

    rig.change("controllers:\n  - {serialNumber: PCTL01}\n");
    set.manageDynamic(false, context);
    EXPECT_EQ(set.getRedundancyStatus(), 4u);
}

// Catches a class that answers for a disk no longer there, or that fails
// with another code or another class's words: each names its own failure.
TEST(DiskGoneFromSnapshot, EveryClassFailsWithStatus100AndItsOwnText) {
    PhysicalTestRig rig(twoDisks);
    VeldraPhysicalDisk const disk = rig.disk(0, 0);
    VeldraController* const controller = rig.controllers[0];
    using Make = std::function<std::unique_ptr<QLN::CmpiManagedInstance>()>;
    char const* const companion =
        "getInstance, findPhysicalDiskInVector could not find drive based on serial #";
    std::vector<std::pair<Make, std::string>> const cases = {
        {[&] {
             return std::make_unique<QLN::QLN_VDStorageExtent>(rig.logger, ns, 1, disk, controller);
         },
         "getInstance, findPhysicalDiskInVector could not find drive based on serial # or "
         "location"},
        {[&] {
             return std::make_unique<QLN::QLN_VDMediaAccessStatData>(rig.logger, ns, 1, disk,
                                                                     controller);
         },
         "getInstance,findPhysicalDiskInVector could not find drive based on serial # or location"},
        {[&] {
             return std::make_unique<QLN::QLN_VDDiskPhysicalPackage>(rig.logger, ns, 1, disk,
                                                                     controller);
         },
         companion},
        {[&] {
             return std::make_unique<QLN::QLN_VDDiskDriveLocation>(rig.logger, ns, 1, disk,
                                                                   controller);
         },
         companion},
        {[&] {
             return std::make_unique<QLN::QLN_VDDiskDriveFirmware>(rig.logger, ns, 1, disk,
                                                                   controller);
         },
         companion},
        {[&] {
             return std::make_unique<QLN::QLN_VDLumenDriveCarrierAppFirmware>(rig.logger, ns, 1,
                                                                              disk, controller);
         },
         companion},
    };
    std::vector<std::unique_ptr<QLN::CmpiManagedInstance>> instances;
    for (auto const& [make, failure] : cases)
        instances.push_back(make());
    rig.change("controllers:\n  - {serialNumber: PCTL01, model: Veldra 8i}\n");
    for (std::size_t i = 0; i < cases.size(); ++i) {
        std::string const name = instances[i]->getClassName().str();
        try {
            instances[i]->getInstance();
            ADD_FAILURE() << name << " answered for a disk that is gone";
        } catch (CmpiCpp::CmpiStatus const& status) {
            EXPECT_EQ(status.rc(), CMPI_RC_ERROR_SYSTEM) << name;
            EXPECT_EQ(status.msg(), cases[i].second) << name;
        }
        // The path stays available: the worker needs it to delete the instance.
        EXPECT_NO_THROW(instances[i]->getPath()) << name;
    }
}
