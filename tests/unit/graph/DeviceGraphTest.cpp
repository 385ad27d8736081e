// The device graphs built from small scenarios: what one enclosure, one disk
// and one logical disk bring into the graph, depending on firmware, paths,
// serial numbers and spares.
#include "ProviderTestSupport.h"
#include "QLNVeldraProvider.h"

#include <fstream>
#include <gtest/gtest.h>
#include <map>
#include <memory>

using namespace provider_test;
using CmpiCpp::CmpiBroker;
using CmpiCpp::CmpiContext;

namespace {

// One controller with one enclosure (box 1) and whatever disks and volumes a
// test puts behind it.
std::string scenario(std::string const& enclosureExtra, std::string const& disks,
                     std::string const& volumes) {
    return "name: graph-test\n"
           "controllers:\n"
           "  - serialNumber: PGRAPH01\n"
           "    model: Veldra 8i\n"
           "    physloc: [5, 1]\n"
           "    ports: [1I]\n"
           "    enclosures:\n"
           "      - {enclosureBoxNumber: 1, boxNumber: 1, serialNumber: GCAGE1, driveBays: 8,\n"
           "         paths: [{port: 1I, box: 1}]" +
           enclosureExtra +
           "}\n"
           "    physicalDisks:\n" +
           disks + "    logicalDisks:\n" + volumes;
}

class DeviceGraph : public ::testing::Test {
protected:
    void build(std::string const& text) {
        _file = std::filesystem::temp_directory_path() /
                ("veldra-graph-" + std::to_string(::getpid()) + ".yaml");
        std::ofstream(_file) << text;
        ::setenv("VELDRA_SCENARIO", _file.c_str(), 1);
        Logger logger("QLNVeldra");
        _provider = std::make_unique<QLN::QLNVeldraProvider>(CmpiBroker(), logger);
    }
    void TearDown() override {
        _provider.reset();
        std::filesystem::remove(_file);
    }
    std::size_t count(char const* className) {
        Paths paths;
        _provider->enumInstanceNames(
            CmpiContext(), CmpiCpp::makeCmpiObjectPath(CmpiBroker(), "root/mwq", className), paths);
        return paths.rows.size();
    }

    std::filesystem::path _file;
    std::unique_ptr<QLN::QLNVeldraProvider> _provider;
};

std::string const oneDataDisk =
    "      - {id: 0, serialNumber: GD0, model: NR4000, box: 1, bay: 1, enclosureBoxNumber: 1,\n"
    "         port: 1I, paths: [{port: 1I, box: 1}], configuration: 2}\n";

} // namespace

TEST_F(DeviceGraph, EnclosureFirmwareOnlyWhenItReportsAVersion) {
    build(scenario("", oneDataDisk, "      []\n"));
    EXPECT_EQ(count("QLN_VDStorageEnclosure"), 1u);
    EXPECT_EQ(count("QLN_VDEnclosureFirmware"), 0u);
    EXPECT_EQ(count("QLN_VDStorageEnclosureProcessorEnclosureFirmware"), 0u);
    EXPECT_EQ(count("QLN_VDDriveCage"), 1u) << "the cage stands whatever the firmware";
    EXPECT_EQ(count("QLN_VDDriveCageDiskPhysicalPackage"), 1u)
        << "the disk in box 1 sits in the cage";
    TearDown();

    build(scenario(", fwVersion: \"2.04\"", oneDataDisk, "      []\n"));
    EXPECT_EQ(count("QLN_VDEnclosureFirmware"), 1u);
    EXPECT_EQ(count("QLN_VDStorageEnclosureProcessorEnclosureFirmware"), 1u);
}

TEST_F(DeviceGraph, EveryPathOfADiskGetsItsPortEndpointAndInitiatorPath) {
    build(scenario(
        "",
        "      - {id: 0, serialNumber: GD0, model: NR4000, box: 1, bay: 1, enclosureBoxNumber: 1,\n"
        "         port: 1I, paths: [{port: 1I, box: 1}, {port: 2I, box: 1}], configuration: 2}\n",
        "      []\n"));
    EXPECT_EQ(count("QLN_VDTSASPort"), 2u);
    EXPECT_EQ(count("QLN_VDTSASSCSIProtocolEndpoint"), 2u);
    EXPECT_EQ(count("QLN_VDDiskDriveTSASSCSIProtocolEndpoint"), 2u);
    // The controller has an initiator on 1I only: the 2I path has no partner.
    EXPECT_EQ(count("QLN_VDSCSIInitiatorTargetLogicalUnitPath"), 1u);
    EXPECT_EQ(count("QLN_VDStoragePoolStorageExtent"), 1u) << "a data disk joins the pool";
}

TEST_F(DeviceGraph, DiskWithoutSerialNumberHasNoFirmwareButEverythingElse) {
    build(
        scenario("",
                 "      - {id: 0, model: NR4000, box: 1, bay: 1, enclosureBoxNumber: 1, port: 1I,\n"
                 "         paths: [{port: 1I, box: 1}], configuration: 1, carrierAuthStatus: 2}\n",
                 "      []\n"));
    EXPECT_EQ(count("QLN_VDDiskDrive"), 1u);
    EXPECT_EQ(count("QLN_VDStorageExtent"), 1u);
    EXPECT_EQ(count("QLN_VDDiskPhysicalPackage"), 1u);
    EXPECT_EQ(count("QLN_VDDiskDriveLocation"), 1u);
    EXPECT_EQ(count("QLN_VDDiskDriveFirmware"), 0u);
    EXPECT_EQ(count("QLN_VDLumenDriveCarrierAppFirmware"), 0u)
        << "not even with an authenticated carrier";
    EXPECT_EQ(count("QLN_VDStoragePoolStorageExtent"), 0u) << "an unassigned disk joins no pool";
}

TEST_F(DeviceGraph, SparesBringTheRedundancySetAndTheStandInLink) {
    std::string const disks =
        oneDataDisk +
        "      - {id: 1, serialNumber: GD1, model: NR4000, box: 1, bay: 2, enclosureBoxNumber: 1,\n"
        "         port: 1I, paths: [{port: 1I, box: 1}], configuration: 2}\n"
        "      - {id: 2, serialNumber: GD2, model: NR4000, box: 1, bay: 3, enclosureBoxNumber: 1,\n"
        "         port: 1I, paths: [{port: 1I, box: 1}], configuration: 3}\n";
    build(scenario(
        "", disks,
        "      - {number: 0, serialNumber: 600508B1001CGRAPH0000000000000001, tolerance: 2,\n"
        "         dataDisks: [0, 1]}\n"));
    EXPECT_EQ(count("QLN_VDStorageVolume"), 1u);
    EXPECT_EQ(count("QLN_VDStorageExtentStorageVolume"), 2u);
    EXPECT_EQ(count("QLN_VDStorageRedundancySet"), 0u) << "no spare among the members, no set";
    EXPECT_EQ(count("QLN_VDSpareExtentStorageRedundancySet"), 0u);
    TearDown();

    build(scenario(
        "", disks,
        "      - {number: 0, serialNumber: 600508B1001CGRAPH0000000000000001, tolerance: 2,\n"
        "         dataDisks: [0, 1], spareDisks: [2], replaced: {2: 1}}\n"));
    EXPECT_EQ(count("QLN_VDStorageRedundancySet"), 1u);
    EXPECT_EQ(count("QLN_VDSpareExtentStorageRedundancySet"), 1u);
    EXPECT_EQ(count("QLN_VDStorageRedundancySetStorageExtent"), 2u);
    EXPECT_EQ(count("QLN_VDSpareExtentStorageExtent"), 1u) << "the spare stands in for disk 1";
}
