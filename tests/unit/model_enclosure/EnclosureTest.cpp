// The enclosure, its processor, location and firmware on scenarios: "N/A"
// texts, the letter tests, the status table, and what an enclosure that has
// left the snapshot does to each class.
#include "EnclosureRig.h"
#include "QLN_VDEnclosureFirmware.h"
#include "QLN_VDStorageEnclosure.h"
#include "QLN_VDStorageEnclosureLocation.h"
#include "QLN_VDStorageEnclosureProcessor.h"

#include <gtest/gtest.h>

namespace {

std::string const described =
    "{enclosureBoxNumber: 3, boxNumber: 7, serialNumber: SJB01, model: JBOD-12, "
    "manufacturer: Morvane, fwVersion: '2.10', paths: [{port: 1E, box: 7}, {port: 2E, box: 7}]}";
std::string const bare = "{enclosureBoxNumber: 4, boxNumber: 1, paths: [{port: 1I, box: 1}]}";

TEST(StorageEnclosure, KeysTextsAndNotAvailableForEmptyTexts) {
    EnclosureRig rig(described + ", " + bare);
    QLN::QLN_VDStorageEnclosure full(rig.logger, "root/mwq", 2, rig.stored(3), rig.controller());
    QLN::QLN_VDStorageEnclosure empty(rig.logger, "root/mwq", 2, rig.stored(4), rig.controller());

    // The Tag holds the enclosure box number, not the box number shown.
    EXPECT_EQ(full.getPath().getKey("Tag").getString(), "2-3");
    CmpiCpp::CmpiInstance const a = full.getInstance();
    EXPECT_EQ(propertyNames(a), "CreationClassName Tag SerialNumber ElementName Name Manufacturer "
                                "Model PartNumber Version Description RemovalConditions Location");
    EXPECT_EQ(a.getProperty("SerialNumber").getString(), "SJB01");
    EXPECT_EQ(a.getProperty("Model").getString(), "JBOD-12");
    EXPECT_EQ(a.getProperty("ElementName").getString(), "Port 1E Box 7, Port 2E Box 7");
    EXPECT_EQ(a.getProperty("PartNumber").getString(), "N/A");
    EXPECT_EQ(a.getProperty("Location").getUint16(), 2);

    CmpiCpp::CmpiInstance const b = empty.getInstance();
    EXPECT_EQ(b.getProperty("SerialNumber").getString(), "N/A");
    EXPECT_EQ(b.getProperty("Manufacturer").getString(), "N/A");
    EXPECT_EQ(b.getProperty("Model").getString(), "N/A");
    EXPECT_EQ(b.getProperty("Location").getUint16(), 1);

    // The construction-time values serve the worker's searches.
    EXPECT_EQ(full.getBoxNumber(), 7u);
    EXPECT_EQ(full.getPortString(), "1E,2E");
    EXPECT_EQ(full.getPaths().size(), 2u);
}

TEST(StorageEnclosure, LocationAndLocationTagReadLettersOfTheirTexts) {
    // Any capital I wins, wherever it stands; then E or X; else unknown.
    EXPECT_EQ(QLN::QLN_VDStorageEnclosure::locationOf("Port 2E Box 1, Port 1I Box 1"), 1);
    EXPECT_EQ(QLN::QLN_VDStorageEnclosure::locationOf("Port 1X Box 2"), 2);
    EXPECT_EQ(QLN::QLN_VDStorageEnclosure::locationOf("Port 1 Box 2"), 0);
    EXPECT_EQ(QLN::QLN_VDStorageEnclosure::locationOf(""), 0);
    EXPECT_EQ(QLN::QLN_VDStorageEnclosureLocation::locationTagOf("1I,2E"), "Internal");
    EXPECT_EQ(QLN::QLN_VDStorageEnclosureLocation::locationTagOf("3E"), "External");
    EXPECT_EQ(QLN::QLN_VDStorageEnclosureLocation::locationTagOf("5X"), "External");
    EXPECT_EQ(QLN::QLN_VDStorageEnclosureLocation::locationTagOf(""), "Unknown");
}

struct ProcessorRow {
    unsigned int overall;
    unsigned short operational;
    unsigned short health;
};

class EnclosureProcessorStatus : public ::testing::TestWithParam<ProcessorRow> {};

TEST_P(EnclosureProcessorStatus, OverallStatusLeadsAndSubsystemsFollowUntranslated) {
    ProcessorRow const& row = GetParam();
    EnclosureRig rig(
        "{enclosureBoxNumber: 1, boxNumber: 5, overallStatus: " + std::to_string(row.overall) +
        ", fanStatus: 0x8002, powerSupplyStatus: 0x8005, tempSensorStatus: 0x800B, "
        "paths: [{port: 1E, box: 5}]}");
    QLN::QLN_VDStorageEnclosureProcessor processor(rig.logger, "root/mwq", 1, rig.stored(1),
                                                   rig.controller());
    CmpiCpp::CmpiInstance const instance = processor.getInstance();
    EXPECT_EQ(uint16s(instance, "OperationalStatus"),
              (std::vector<unsigned short>{row.operational, 0x8002, 0x8005, 0x800B}));
    EXPECT_EQ(instance.getProperty("HealthState").getUint16(), row.health);
}

INSTANTIATE_TEST_SUITE_P(Rows, EnclosureProcessorStatus,
                         ::testing::Values(ProcessorRow{2, 2, 5}, ProcessorRow{3, 3, 10},
                                           // 20, not the 25 of a failed disk.
                                           ProcessorRow{6, 6, 20}, ProcessorRow{4, 0, 0},
                                           ProcessorRow{5, 0, 0}));

TEST(EnclosureProcessor, IdentityTexts) {
    EnclosureRig rig(described);
    QLN::QLN_VDStorageEnclosureProcessor processor(rig.logger, "root/mwq", 2, rig.stored(3),
                                                   rig.controller());
    EXPECT_EQ(processor.getPath().getKey("Name").getString(), "2-3");
    CmpiCpp::CmpiInstance const instance = processor.getInstance();
    EXPECT_EQ(propertyNames(instance),
              "CreationClassName Name NameFormat ElementName IdentifyingDescriptions "
              "OtherIdentifyingInfo HealthState OperationalStatus EnabledDefault EnabledState "
              "RequestedState Dedicated OtherDedicatedDescriptions");
    // Ports, then the box number as shown.
    EXPECT_EQ(strings(instance, "OtherIdentifyingInfo"), std::vector<std::string>{"1E,2E:7"});
}

TEST(EnclosureLocation, PositionTagAndLocationPartsBehindThePciSlot) {
    EnclosureRig rig("{enclosureBoxNumber: 3, boxNumber: 7, paths: [{port: 1I, box: 7}, "
                     "{port: 2E, box: 7}]}, {enclosureBoxNumber: 4, boxNumber: 8}");
    QLN::QLN_VDStorageEnclosureLocation location(rig.logger, "root/mwq", 1, rig.stored(3),
                                                 rig.controller());
    QLN::QLN_VDStorageEnclosureLocation other(rig.logger, "root/mwq", 1, rig.stored(4),
                                              rig.controller());
    // Two enclosures of one controller must not share a location path.
    EXPECT_FALSE(location.getPath() == other.getPath());

    CmpiCpp::CmpiInstance const instance = location.getInstance();
    EXPECT_EQ(instance.getProperty("PhysicalPosition").getString(), "1-3");
    EXPECT_EQ(instance.getProperty("ElementName").getString(), "Port 1I Box 7, Port 2E Box 7");
    EXPECT_EQ(instance.getProperty("ElementLocationTag").getString(), "Internal");
    EXPECT_EQ(instance.getProperty("ElementLocationTagDesc").getUint16(), 19);
    EXPECT_EQ(strings(instance, "LocationInfoDesc"), (std::vector<std::string>{"PCI Slot", "Box"}));
    EXPECT_EQ(uint16s(instance, "LocationInformation"), (std::vector<unsigned short>{3, 7}));
    EXPECT_EQ(other.getInstance().getProperty("ElementLocationTag").getString(), "Unknown");
}

TEST(EnclosureLocation, AnExternalControllerNamesOnlyTheBox) {
    EnclosureRig rig("{enclosureBoxNumber: 1, boxNumber: 2, paths: [{port: 1E, box: 2}]}",
                     "[0, 0, 0, 0, 0, 0, 0, 0]");
    QLN::QLN_VDStorageEnclosureLocation location(rig.logger, "root/mwq", 1, rig.stored(1),
                                                 rig.controller());
    CmpiCpp::CmpiInstance const instance = location.getInstance();
    EXPECT_EQ(strings(instance, "LocationInfoDesc"), std::vector<std::string>{"Box"});
    EXPECT_EQ(uint16s(instance, "LocationInformation"), std::vector<unsigned short>{2});
}

TEST(EnclosureFirmware, SoftwareIdentityOfTheProcessor) {
    EnclosureRig rig(described + ", {enclosureBoxNumber: 5, fwVersion: 'rev B'}");
    QLN::QLN_VDEnclosureFirmware firmware(rig.logger, "root/mwq", 2, rig.stored(3),
                                          rig.controller());
    EXPECT_EQ(firmware.getPath().getKey("InstanceID").getString(),
              "MWQ:QLN_VDEnclosureFirmware-2-3");
    CmpiCpp::CmpiInstance const instance = firmware.getInstance();
    EXPECT_EQ(instance.getProperty("Name").getString(), "Storage Enclosure Processor Firmware");
    EXPECT_EQ(instance.getProperty("Manufacturer").getString(), "Morvane");
    EXPECT_EQ(instance.getProperty("VersionString").getString(), "2.10");
    EXPECT_EQ(instance.getProperty("MajorVersion").getUint16(), 2);
    EXPECT_EQ(instance.getProperty("MinorVersion").getUint16(), 10);
    EXPECT_EQ(instance.getProperty("ElementName").getString(), "JBOD-12");
    EXPECT_EQ(strings(instance, "IdentityInfoValue"),
              (std::vector<std::string>{"MWQ:JBOD-12", "Storage Device"}));

    // No manufacturer or model: left out; a version the parser refuses shows
    // as text without numbers.
    QLN::QLN_VDEnclosureFirmware plain(rig.logger, "root/mwq", 2, rig.stored(5), rig.controller());
    CmpiCpp::CmpiInstance const bareInstance = plain.getInstance();
    EXPECT_FALSE(bareInstance.hasProperty("Manufacturer"));
    EXPECT_FALSE(bareInstance.hasProperty("ElementName"));
    EXPECT_EQ(bareInstance.getProperty("VersionString").getString(), "rev B");
    EXPECT_FALSE(bareInstance.hasProperty("MajorVersion"));
}

TEST(EnclosureRemoval, EveryClassThrows100WithItsOwnTextButKeepsItsPath) {
    EnclosureRig rig(described);
    VeldraEnclosure const record = rig.stored(3);
    QLN::QLN_VDStorageEnclosure enclosure(rig.logger, "root/mwq", 1, record, rig.controller());
    QLN::QLN_VDStorageEnclosureProcessor processor(rig.logger, "root/mwq", 1, record,
                                                   rig.controller());
    QLN::QLN_VDStorageEnclosureLocation location(rig.logger, "root/mwq", 1, record,
                                                 rig.controller());
    QLN::QLN_VDEnclosureFirmware firmware(rig.logger, "root/mwq", 1, record, rig.controller());
    rig.replace("");

    std::string const enclosureText =
        "100 getInstance, findEnclosureInVector could not find enclosure";
    EXPECT_EQ(thrownBy(enclosure), enclosureText);
    EXPECT_EQ(thrownBy(processor), enclosureText);
    EXPECT_EQ(thrownBy(firmware), enclosureText);
    EXPECT_EQ(thrownBy(location),
              "100 getInstance, findEnclosureInVector could not find drive based on serial #");
    EXPECT_EQ(enclosure.getPath().getKey("Tag").getString(), "1-3");
    EXPECT_EQ(processor.getPath().getKey("Name").getString(), "1-3");
}

} // namespace
