// The associations that carry more than their two references, and the one
// with three ends.
#include "AssociationTestSupport.h"
#include "QLN_VDDiskDriveDiskDriveFirmware.h"
#include "QLN_VDElementSoftwareIdentityDriver.h"
#include "QLN_VDPrimordialPoolStoragePool.h"
#include "QLN_VDSCSIInitiatorTargetLogicalUnitPath.h"
#include "QLN_VDSCSIProtocolControllerStorageVolume.h"
#include "QLN_VDStoragePoolStorageVolume.h"
#include "QLN_VDStorageVolumeStorageSetting.h"
#include "SimulatedControllerMRA.h"

#include <gtest/gtest.h>

#include <atomic>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <memory>
#include <unistd.h>

using CmpiCpp::CmpiInstance;
using CmpiCpp::CmpiObjectPath;

namespace {

// Two disks whose consumed bytes only fit 64 bits, and two volumes.
char const* const spaceScenario = R"(name: space
controllers:
  - serialNumber: PSPACE01
    model: Veldra 8i
    physloc: [5, 1]
    ports: [1I]
    physicalDisks:
      - {id: 0, serialNumber: SD0, model: NR4000 SAS, box: 1, bay: 1, enclosureBoxNumber: 1, port: 1I,
         paths: [{port: 1I, box: 1}], configuration: 2, blockSize: 4096, totalBlocks: 1000, remainingBlocks: 250}
      - {id: 1, serialNumber: SD1, model: NR4000 SAS, box: 1, bay: 2, enclosureBoxNumber: 1, port: 1I,
         paths: [{port: 1I, box: 1}], configuration: 2, blockSize: 512, totalBlocks: 8000000000, remainingBlocks: 0}
    logicalDisks:
      - {number: 0, serialNumber: SV0, dataDisks: [0], consumedPhysicalBytes: 3000000}
      - {number: 1, serialNumber: SV1, dataDisks: [1], consumedPhysicalBytes: 5000000000}
)";

class ScenarioFile {
public:
    explicit ScenarioFile(char const* text) {
        static std::atomic<int> next{0};
        _path =
            std::filesystem::temp_directory_path() /
            ("veldra-assoc-" + std::to_string(::getpid()) + "-" + std::to_string(next++) + ".yaml");
        std::ofstream(_path) << text;
    }
    ~ScenarioFile() { std::filesystem::remove(_path); }
    std::string path() const { return _path.string(); }

private:
    std::filesystem::path _path;
};

class AssociationProperties : public ::testing::Test {
protected:
    void SetUp() override { assoctest::pinHostName(); }

    Logger logger{"assoc-test"};
    QLN::QLN_VDDiskDrive drive{"1"};
    QLN::QLN_VDDiskDriveFirmware driveFirmware{"2"};
    QLN::QLN_VDSoftwareIdentityDriver driver{"1"};
    QLN::QLN_VDArraySystem system{"2"};
    QLN::QLN_VDSCSIProtocolController protocolController{"1"};
    QLN::QLN_VDStorageVolume volume{"2"};
    QLN::QLN_VDStorageSetting setting{"3"};
    QLN::QLN_VDPrimordialPool primordial{"1"};
    QLN::QLN_VDStoragePool pool{"2"};
};

} // namespace

TEST_F(AssociationProperties, FirmwarePairReportsCurrentInstalledAndNoUpgrade) {
    QLN::QLN_VDDiskDriveDiskDriveFirmware disk(logger, "root/mwq", &drive, &driveFirmware);
    QLN::QLN_VDElementSoftwareIdentityDriver element(logger, "root/mwq", &driver, &system);
    for (CmpiInstance const& instance : {disk.getInstance(), element.getInstance()}) {
        ASSERT_EQ(instance.getPropertyCount(), 4u);
        EXPECT_EQ(instance.getPropertyNameAt(2).str(), "ElementSoftwareStatus");
        CmpiCpp::CmpiData const& status = instance.getProperty("ElementSoftwareStatus");
        ASSERT_EQ(status.getType(), CMPI_uint16A);
        CmpiCpp::CmpiArray const& values = status.getArray();
        ASSERT_EQ(values.size(), 2u);
        EXPECT_EQ(values.getElementAt(0).getUint16(), 2);
        EXPECT_EQ(values.getElementAt(1).getUint16(), 6);
        EXPECT_EQ(instance.getProperty("UpgradeCondition").getType(), CMPI_uint16);
        EXPECT_EQ(instance.getProperty("UpgradeCondition").getUint16(), 3);
    }
    // Extra properties never leak into the key.
    EXPECT_EQ(disk.getPath().getKeyCount(), 2u);
}

TEST_F(AssociationProperties, VolumeMappingAndSettingCarryTheirValues) {
    QLN::QLN_VDSCSIProtocolControllerStorageVolume mapping(logger, "root/mwq", &protocolController,
                                                           &volume, 4097u);
    CmpiInstance const mapped = mapping.getInstance();
    EXPECT_EQ(mapped.getProperty("DeviceAccess").getType(), CMPI_uint16);
    EXPECT_EQ(mapped.getProperty("DeviceAccess").getUint16(), 2);
    EXPECT_EQ(mapped.getProperty("DeviceNumber").getType(), CMPI_string);
    EXPECT_EQ(mapped.getProperty("DeviceNumber").getString(), "4097");

    QLN::QLN_VDStorageVolumeStorageSetting settingData(logger, "root/mwq", &volume, &setting);
    CmpiInstance const set = settingData.getInstance();
    EXPECT_EQ(set.getProperty("IsCurrent").getType(), CMPI_uint16);
    EXPECT_EQ(set.getProperty("IsCurrent").getUint16(), 1);
    EXPECT_EQ(set.getProperty("IsDefault").getUint16(), 1);
}

// The sums come from what the controller stored, not from the live hardware,
// and need 64 bits.
TEST_F(AssociationProperties, SpaceConsumedSumsTheStoredSnapshots) {
    ScenarioFile scenario(spaceScenario);
    SimulatedControllerMRA root(scenario.path(), logger);
    VeldraController* controller = root.getFirstData();
    ASSERT_NE(controller, nullptr);

    QLN::QLN_VDPrimordialPoolStoragePool disks(logger, "root/mwq", &primordial, &pool, controller);
    QLN::QLN_VDStoragePoolStorageVolume volumes(logger, "root/mwq", &pool, &volume, controller);

    // Nothing stored yet: the live disks do not count.
    EXPECT_EQ(disks.getInstance().getProperty("SpaceConsumed").getUint64(), 0u);
    EXPECT_EQ(volumes.getInstance().getProperty("SpaceConsumed").getUint64(), 0u);

    std::vector<VeldraPhysicalDisk> physicals = controller->getAllPhysicalDisks();
    controller->setLastAllPhysicalDisks(physicals);
    controller->setLastLogicalDisks(controller->getAllLogicalDisks());

    CmpiCpp::CmpiData const consumed = disks.getInstance().getProperty("SpaceConsumed");
    EXPECT_EQ(consumed.getType(), CMPI_uint64);
    EXPECT_EQ(consumed.getUint64(), std::uint64_t{4096} * 750 + std::uint64_t{512} * 8000000000ULL);
    EXPECT_EQ(volumes.getInstance().getProperty("SpaceConsumed").getUint64(), 5003000000ULL);
    EXPECT_EQ(volumes.getPath().getKeyNameAt(0).str(), "Antecedent");
    EXPECT_EQ(disks.getPath().getKeyNameAt(0).str(), "Dependent");
}

TEST_F(AssociationProperties, SpaceConsumedOfControllerWithoutDisksIsZero) {
    SimulatedControllerMRA root(std::string(VELDRA_DATA_DIR) + "/scenarios/empty.yaml", logger);
    VeldraController* controller = root.getFirstData();
    ASSERT_NE(controller, nullptr);
    std::vector<VeldraPhysicalDisk> none = controller->getAllPhysicalDisks();
    ASSERT_TRUE(none.empty());
    controller->setLastAllPhysicalDisks(none);
    QLN::QLN_VDPrimordialPoolStoragePool disks(logger, "root/mwq", &primordial, &pool, controller);
    CmpiCpp::CmpiData const consumed = disks.getInstance().getProperty("SpaceConsumed");
    EXPECT_EQ(consumed.getType(), CMPI_uint64);
    EXPECT_EQ(consumed.getUint64(), 0u);
}

TEST_F(AssociationProperties, ThreeEndedPathWalksInRoleOrderAndReadsTargetState) {
    QLN::QLN_VDISASSCSIProtocolEndpoint initiator{"PSER0001-1I"};
    QLN::QLN_VDTSASSCSIProtocolEndpoint target{"MD0001-1I"};
    QLN::QLN_VDStorageExtent unit{"MD0001"};
    QLN::QLN_VDStorageExtent stranger{"MD0009"};
    std::uint32_t state = 2;
    QLN::QLN_VDSCSIInitiatorTargetLogicalUnitPath path(logger, "root/mwq", &initiator, &target,
                                                       &unit, nullptr, [&state] { return state; });

    CmpiObjectPath const key = path.getPath();
    EXPECT_EQ(key.getClassName().str(), "QLN_VDSCSIInitiatorTargetLogicalUnitPath");
    ASSERT_EQ(key.getKeyCount(), 3u);
    EXPECT_EQ(key.getKeyNameAt(0).str(), "Initiator");
    EXPECT_EQ(key.getKeyNameAt(1).str(), "Target");
    EXPECT_EQ(key.getKeyNameAt(2).str(), "LogicalUnit");
    EXPECT_EQ(key.getKey("Target").getObjectPath(), target.getPath());

    CmpiInstance instance = path.getInstance();
    EXPECT_EQ(instance.getPropertyNameAt(3).str(), "State");
    EXPECT_EQ(instance.getProperty("State").getType(), CMPI_uint32);
    EXPECT_EQ(instance.getProperty("State").getUint32(), 2u);
    state = 3; // read when asked, not copied at construction
    EXPECT_EQ(path.getInstance().getProperty("State").getUint32(), 3u);

    using Ends = std::vector<CmpiObjectPath>;
    EXPECT_EQ(path.otherEnd(target.getPath()), (Ends{initiator.getPath(), unit.getPath()}));
    EXPECT_EQ(path.otherEnd(initiator.getPath()), (Ends{target.getPath(), unit.getPath()}));
    EXPECT_EQ(path.otherEnd(unit.getPath()), (Ends{initiator.getPath(), target.getPath()}));
    EXPECT_EQ(path.otherEnd(unit.getPath(), "Target"), (Ends{target.getPath()}));
    EXPECT_TRUE(path.otherEnd(unit.getPath(), "LogicalUnit").empty());
    EXPECT_TRUE(path.otherEnd(stranger.getPath()).empty());
}
