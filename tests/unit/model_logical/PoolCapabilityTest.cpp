// Pools, capabilities and settings on simulated controllers: the space sums
// (stored snapshot against live disks), the data-disk rule of the
// capabilities, and the redundancy of a volume's setting.
#include "CmpiStatus.h"
#include "ModelTestSupport.h"
#include "QLN_VDPrimordialPool.h"
#include "QLN_VDStorageCapabilities.h"
#include "QLN_VDStoragePool.h"
#include "QLN_VDStorageSetting.h"

#include <gtest/gtest.h>

#include <optional>

using namespace modeltest;

namespace {

std::string const ns = "root/mwq";

VeldraCFUArray arrayWithId(std::string const& id) {
    VeldraCFUArray array;
    array.setArrayID(id);
    return array;
}

// Four disks of every role, one with 4 KiB blocks, capacities beyond 32 bits.
std::string poolScenario(std::string const& firstDiskRemaining, std::string const& extraDisk) {
    return R"(
controllers:
  - serialNumber: PPOOL01
    physloc: [5, 3]
    pciSlotNumber: 3
    physicalDisks:
      - {id: 0, serialNumber: D0, configuration: 2, blockSize: 512, totalBlocks: 3907029168, remainingBlocks: )" +
           firstDiskRemaining + R"(}
      - {id: 1, serialNumber: D1, configuration: 2, blockSize: 4096, totalBlocks: 1000000000, remainingBlocks: 2000}
      - {id: 2, serialNumber: D2, configuration: 3, blockSize: 512, totalBlocks: 100, remainingBlocks: 100}
)" + extraDisk;
}

std::string const unassignedDisk = "      - {id: 3, serialNumber: D3, configuration: 1, blockSize: "
                                   "512, totalBlocks: 50, remainingBlocks: 10}\n";

unsigned long long const totalSpace =
    3907029168ULL * 512 + 1000000000ULL * 4096 + 100ULL * 512 + 50ULL * 512;

} // namespace

// Catches: a sum over data disks only, 32-bit products, and either sum read
// from the wrong source (total must stay with the snapshot, remaining must
// follow the hardware).
TEST(PoolSpace, TotalFromSnapshotRemainingFromHardware) {
    ScenarioRig rig(poolScenario("1000", unassignedDisk));
    VeldraController* controller = rig.controllers.at(0);
    QLN::QLN_VDStoragePool pool(rig.logger, ns, 1, arrayWithId("1"), controller);
    QLN::QLN_VDPrimordialPool primordial(rig.logger, ns, 1, controller);

    unsigned long long const remaining =
        1000ULL * 512 + 2000ULL * 4096 + 100ULL * 512 + 10ULL * 512;
    for (CmpiCpp::CmpiInstance const& instance : {pool.getInstance(), primordial.getInstance()}) {
        EXPECT_EQ(uint64Of(instance, "TotalManagedSpace"), totalSpace);
        EXPECT_EQ(uint64Of(instance, "RemainingManagedSpace"), remaining);
    }

    // The hardware moves on (a disk pulled, space taken) before the worker
    // accepts it: the total keeps the accepted disks, the remaining space does not.
    rig.write(poolScenario("7", ""));
    unsigned long long const liveRemaining = 7ULL * 512 + 2000ULL * 4096 + 100ULL * 512;
    for (CmpiCpp::CmpiInstance const& instance : {pool.getInstance(), primordial.getInstance()}) {
        EXPECT_EQ(uint64Of(instance, "TotalManagedSpace"), totalSpace);
        EXPECT_EQ(uint64Of(instance, "RemainingManagedSpace"), liveRemaining);
    }

    ScenarioRig::prime(controller);
    EXPECT_EQ(uint64Of(pool.getInstance(), "TotalManagedSpace"), totalSpace - 50ULL * 512);
}

TEST(PoolSpace, ControllerWithoutDisksHasNoSpace) {
    ScenarioRig rig("controllers:\n  - serialNumber: PEMPTY\n");
    QLN::QLN_VDPrimordialPool primordial(rig.logger, ns, 1, rig.controllers.at(0));
    CmpiCpp::CmpiInstance const instance = primordial.getInstance();
    EXPECT_EQ(uint64Of(instance, "TotalManagedSpace"), 0u);
    EXPECT_EQ(uint64Of(instance, "RemainingManagedSpace"), 0u);
}

// Catches mixed-up identities of the two pools and a PoolID made up when the
// serial number cannot be read.
TEST(PoolIdentity, KeysNamesAndPoolIds) {
    ScenarioRig rig(R"(
controllers:
  - serialNumber: PFIRST
    physloc: [5, 3]
  - serialNumber: PSECOND
    physloc: [1]
    fail: [getControllerSerialNumber]
)");
    QLN::QLN_VDStoragePool pool1(rig.logger, ns, 1, arrayWithId("1"), rig.controllers.at(0));
    QLN::QLN_VDPrimordialPool primordial1(rig.logger, ns, 1, rig.controllers.at(0));
    QLN::QLN_VDStoragePool pool2(rig.logger, ns, 2, arrayWithId("1"), rig.controllers.at(1));
    QLN::QLN_VDPrimordialPool primordial2(rig.logger, ns, 2, rig.controllers.at(1));

    CmpiCpp::CmpiInstance const p1 = pool1.getInstance();
    EXPECT_EQ(text(p1, "InstanceID"), "QLN_VDStoragePool-1-1");
    EXPECT_EQ(text(p1, "ElementName"), "Veldra in PCI Slot 3: Array 1");
    EXPECT_EQ(text(p1, "PoolID"), "PFIRST:1");
    CmpiCpp::CmpiInstance const r1 = primordial1.getInstance();
    EXPECT_EQ(text(r1, "InstanceID"), "QLN_VDPrimordialPool-1");
    EXPECT_EQ(text(r1, "ElementName"), "Veldra in PCI Slot 3: Primordial Pool");
    EXPECT_EQ(text(r1, "PoolID"), "PFIRST");

    CmpiCpp::CmpiInstance const p2 = pool2.getInstance();
    EXPECT_EQ(text(p2, "InstanceID"), "QLN_VDStoragePool-2-1");
    EXPECT_EQ(text(p2, "PoolID"), "");
    EXPECT_FALSE(primordial2.getInstance().hasProperty("PoolID"));

    // The path is the key alone and equals what the instance carries.
    EXPECT_EQ(pool2.getPath(), p2.getPath());
    EXPECT_EQ(pool2.getPath().getKeyCount(), 1u);
    EXPECT_FALSE(pool1.getPath() == pool2.getPath());
}

struct RedundancyCase {
    int dataDisks;
    unsigned short dataRedundancy;
    bool noSinglePointOfFailure;
    unsigned short packageRedundancy;
};

class CapabilitiesRule : public ::testing::TestWithParam<RedundancyCase> {};

// Catches a count that includes spares or unassigned disks, and any rule
// other than the parity of the count for the data redundancy.
TEST_P(CapabilitiesRule, FollowsTheNumberOfDataDisks) {
    RedundancyCase const c = GetParam();
    std::string yaml = "controllers:\n  - serialNumber: PCAP\n    physicalDisks:\n";
    for (int i = 0; i < c.dataDisks; ++i)
        yaml += "      - {id: " + std::to_string(i) + ", serialNumber: DATA" + std::to_string(i) +
                ", configuration: 2}\n";
    yaml += "      - {id: 90, serialNumber: SPARE, configuration: 3}\n";
    yaml += "      - {id: 91, serialNumber: LOOSE, configuration: 1}\n";
    ScenarioRig rig(yaml);

    QLN::QLN_VDStorageCapabilities concrete(rig.logger, ns, 1, arrayWithId("1"),
                                            rig.controllers.at(0));
    QLN::QLN_VDStorageCapabilities primordial(rig.logger, ns, 1, arrayWithId(""),
                                              rig.controllers.at(0));
    for (CmpiCpp::CmpiInstance const& instance :
         {concrete.getInstance(), primordial.getInstance()}) {
        SCOPED_TRACE(text(instance, "InstanceID"));
        EXPECT_EQ(uint16Of(instance, "DataRedundancyDefault"), c.dataRedundancy);
        EXPECT_EQ(uint16Of(instance, "DataRedundancyMax"), c.dataRedundancy);
        EXPECT_EQ(uint16Of(instance, "DataRedundancyMin"), 1);
        EXPECT_EQ(instance.getProperty("NoSinglePointOfFailure").getBool(),
                  c.noSinglePointOfFailure);
        EXPECT_EQ(instance.getProperty("NoSinglePointOfFailureDefault").getBool(),
                  c.noSinglePointOfFailure);
        EXPECT_EQ(uint16Of(instance, "PackageRedundancyDefault"), c.packageRedundancy);
        EXPECT_EQ(uint16Of(instance, "PackageRedundancyMax"), c.packageRedundancy);
        EXPECT_EQ(uint16Of(instance, "PackageRedundancyMin"), 0);
        EXPECT_EQ(uint16Of(instance, "ElementType"), 5);
    }
}

INSTANTIATE_TEST_SUITE_P(
    DataDisks, CapabilitiesRule,
    ::testing::Values(RedundancyCase{0, 2, false, 0}, RedundancyCase{1, 1, false, 0},
                      RedundancyCase{2, 2, true, 1}, RedundancyCase{3, 1, true, 1},
                      RedundancyCase{4, 2, true, 2}, RedundancyCase{5, 1, true, 2}));

// Catches the slot cases swapped and the array part added to the primordial
// pool's capabilities.
TEST(CapabilitiesIdentity, NamesBySlotAndArray) {
    ScenarioRig rig(R"(
controllers:
  - {serialNumber: S1, pciSlotNumber: 4}
  - {serialNumber: S2, pciSlotNumber: 0}
  - {serialNumber: S3, pciSlotNumber: -1}
  - {serialNumber: S4, fail: [getPCISlotNumber]}
)");
    struct Row {
        unsigned int index;
        std::string arrayId, instanceId, elementName;
    };
    for (Row const& row :
         {Row{1, "1", "QLN_VDStorageCapabilities-1-1", "Veldra in Slot 4: Array 1"},
          Row{1, "", "QLN_VDStorageCapabilities-1", "Veldra in Slot 4"},
          Row{2, "", "QLN_VDStorageCapabilities-2", "Veldra Embedded 2"},
          Row{3, "1", "QLN_VDStorageCapabilities-3-1", "Veldra External 3: Array 1"},
          Row{4, "", "QLN_VDStorageCapabilities-4", "Veldra UNKNOWN-4"}}) {
        QLN::QLN_VDStorageCapabilities capabilities(
            rig.logger, ns, row.index, arrayWithId(row.arrayId), rig.controllers.at(row.index - 1));
        CmpiCpp::CmpiInstance const instance = capabilities.getInstance();
        EXPECT_EQ(text(instance, "InstanceID"), row.instanceId);
        EXPECT_EQ(text(instance, "ElementName"), row.elementName);
    }
}

namespace {
std::string settingScenario(bool withMirror) {
    std::string yaml = R"(
controllers:
  - serialNumber: PSET
    physicalDisks:
      - {id: 0, serialNumber: D0, configuration: 2}
      - {id: 1, serialNumber: D1, configuration: 2}
    logicalDisks:
      - {number: 0, serialNumber: LD-PLAIN, tolerance: 0, dataDisks: [0]}
      - {number: 2, serialNumber: LD-TRIPLE, tolerance: 6, dataDisks: [1]}
      - {number: 3, serialNumber: LD-WIDE, tolerance: 8, dataDisks: [1]}
)";
    if (withMirror)
        yaml += "      - {number: 1, serialNumber: LD-MIRROR, tolerance: 2, dataDisks: [0, 1]}\n";
    return yaml;
}

std::optional<unsigned short> optionalU16(CmpiCpp::CmpiInstance const& instance, char const* name) {
    if (!instance.hasProperty(name))
        return std::nullopt;
    return uint16Of(instance, name);
}
} // namespace

// Catches redundancy invented for an unknown tolerance, the goal/max/min
// triples out of step, and a vanished volume served from stale data.
TEST(StorageSetting, RedundancyByToleranceAndVanishedVolume) {
    ScenarioRig rig(settingScenario(true));
    VeldraController* controller = rig.controllers.at(0);
    std::vector<VeldraLogicalDisk> logicals = controller->getAllLogicalDisks();
    auto settingOf = [&](std::string const& serial) {
        for (VeldraLogicalDisk const& logical : logicals)
            if (logical.getSerialNumber() == serial)
                return std::make_unique<QLN::QLN_VDStorageSetting>(rig.logger, ns, 1, logical,
                                                                   controller);
        ADD_FAILURE() << serial;
        return std::unique_ptr<QLN::QLN_VDStorageSetting>();
    };

    struct Row {
        std::string serial;
        bool noSinglePointOfFailure;
        std::optional<unsigned short> data, package;
    };
    for (Row const& row :
         {Row{"LD-PLAIN", false, std::nullopt, std::nullopt}, Row{"LD-MIRROR", true, 2, 1},
          Row{"LD-TRIPLE", true, 2, 1}, Row{"LD-WIDE", true, 1, 2}}) {
        SCOPED_TRACE(row.serial);
        CmpiCpp::CmpiInstance const instance = settingOf(row.serial)->getInstance();
        EXPECT_EQ(text(instance, "InstanceID"), "QLN_VDStorageSetting-" + row.serial);
        EXPECT_EQ(instance.getProperty("DeltaReservationGoal").getType(), CMPI_uint8);
        EXPECT_EQ(instance.getProperty("NoSinglePointOfFailure").getBool(),
                  row.noSinglePointOfFailure);
        for (char const* name : {"DataRedundancyGoal", "DataRedundancyMax", "DataRedundancyMin"})
            EXPECT_EQ(optionalU16(instance, name), row.data) << name;
        for (char const* name :
             {"PackageRedundancyGoal", "PackageRedundancyMax", "PackageRedundancyMin"})
            EXPECT_EQ(optionalU16(instance, name), row.package) << name;
    }

    std::unique_ptr<QLN::QLN_VDStorageSetting> mirror = settingOf("LD-MIRROR");
    rig.write(settingScenario(false));
    ScenarioRig::prime(controller);
    try {
        mirror->getInstance();
        FAIL() << "a volume gone from the snapshot must not be served";
    } catch (CmpiCpp::CmpiStatus const& status) {
        EXPECT_EQ(static_cast<int>(status.rc()), 100);
        EXPECT_EQ(status.msg(),
                  "getInstance, findLogicalDiskInVector could not find logical based on serial #");
    }
    EXPECT_NE(rig.log().find(
                  "ERROR QLNVeldra:QLN_VDStorageSetting: getInstance, findLogicalDiskInVector"),
              std::string::npos);
    // The path needs no hardware and survives the volume.
    EXPECT_EQ(mirror->getPath().getKey("InstanceID").getString(), "QLN_VDStorageSetting-LD-MIRROR");
}
