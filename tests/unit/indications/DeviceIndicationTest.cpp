// The volume, disk and enclosure indication classes: device indexes in the
// OIDs, their trap tables, and the events that send less or nothing.
#include "IndicationTestSupport.h"
#include "QLN_VeldraDiskDriveIndication.h"
#include "QLN_VeldraStorageEnclosureIndication.h"
#include "QLN_VeldraStorageEnclosureTempIndication.h"
#include "QLN_VeldraStorageVolumeIndication.h"

using Strings = std::vector<std::string>;

namespace {

std::vector<std::string> oidsOf(RecordedTrap const& trap) {
    std::vector<std::string> out;
    for (varbind const& v : trap.variables)
        out.push_back(IndicationTest::valueOf(v));
    return out;
}

void sendDisk(Logger& logger, CMPIContext const* context, int event, std::uint16_t previous,
              std::uint16_t current, std::string const& serial = "S1",
              std::uint16_t driveInterface = 2) {
    QLN::QLN_VeldraDiskDriveIndication(logger, "root/mwq")
        .sendIndication(event, previous, current, "HPD7", "Logical Volume 1 (RAID 5)",
                        "Port 1I Box 1 Bay 3", "Veldra VX in Slot 3", serial, "MB4000", 1,
                        (1 << 16) + 3, driveInterface, 0x21, 1, "Too many media errors",
                        "DiskDriveStatusChange", "disk-path", context);
}

} // namespace

// Catches: the volume number not counted from 1 in OIDs and value alike, a
// detail status outside the table not giving 1, the status lists missing or
// swapped, and the trap line logged before the trap.
TEST_F(IndicationTest, VolumeEventIndexesFromOneAndCarriesItsStatusLists) {
    QLN::QLN_VeldraStorageVolumeIndication(logger, "root/mwq")
        .sendIndication(3, "Logical Volume 1 (RAID 1)", 2, 0, 0x8001, {2}, {3, 0x8001},
                        "StorageVolumeStateChange", "volume-path", context);
    CimInstance const got = delivered();
    EXPECT_EQ(text(got, "HWLogicalLocation"), "Logical Volume 1 (RAID 1)");
    EXPECT_EQ(texts(got, "DeviceOperationalStatus"), (Strings{"3", std::to_string(0x8001)}));
    EXPECT_EQ(texts(got, "DeviceOperationalStatusPrevious"), (Strings{"2"}));
    EXPECT_EQ(texts(got, "VariableNames"), (Strings{"FailureDescription"}));
    EXPECT_EQ(number(got, "zqrDaLogDrvIndex"), 1);
    EXPECT_EQ(number(got, "zrqDaLogDrvStatus"), 1);
    EXPECT_EQ(texts(got, "IndicationOIDs"),
              (Strings{"1.3.6.1.4.1.57913.0.3034", "", "", "1.3.6.1.4.1.57913.3.2.2.1.1.20.2",
                       "1.3.6.1.4.1.57913.3.2.3.1.1.1.2.1", "1.3.6.1.4.1.57913.3.2.3.1.1.2.2.1",
                       "1.3.6.1.4.1.57913.3.2.3.1.1.4.2.1"}));
    EXPECT_EQ(oidsOf(trap()),
              (Strings{"12", "veldra-host", "Logical Volume 1 (RAID 1)", "2", "1", "1"}));
    std::string const lines = log();
    auto const sentAt = lines.find("Sent snmp trap to Tarvo 3034");
    EXPECT_NE(lines.find("Send Veldra Storage Volume indication: 3"), std::string::npos);
    EXPECT_NE(lines.find("Creating Veldra Indication Storage Volume DB"), std::string::npos);
    ASSERT_NE(sentAt, std::string::npos) << lines;
    EXPECT_GT(lines.find("Veldra Storage Volume sending SNMP trap info"), sentAt);
}

// Catches: a known detail status mapped wrongly, an empty change name
// dropping the trap too, empty lists sent as empty arrays, and an event
// past the table sending a trap or the trap line.
TEST_F(IndicationTest, VolumeWithoutChangeNameKeepsItsTrapAndLateEventsHaveNone) {
    QLN::QLN_VeldraStorageVolumeIndication(logger, "root/mwq")
        .sendIndication(3, "", 0, 4, 0x800B, {}, {}, "", "", context);
    CimInstance const got = delivered();
    EXPECT_EQ(got.property("VariableNames"), nullptr);
    EXPECT_EQ(got.property("DeviceOperationalStatus"), nullptr);
    EXPECT_EQ(got.property("DeviceOperationalStatusPrevious"), nullptr);
    EXPECT_EQ(text(got, "HWLogicalLocation"), "");
    EXPECT_EQ(number(got, "zrqDaLogDrvStatus"), 16);
    EXPECT_EQ(number(got, "zqrDaLogDrvIndex"), 5);
    EXPECT_EQ(trap().trapId, 3034u);

    // The last event of the table, then one past it that has a record.
    sink->clear();
    trapRecorder() = TrapRecorder{};
    QLN::QLN_VeldraStorageVolumeIndication(logger, "root/mwq")
        .sendIndication(13, "v", 0, 0, 0, {}, {}, "StorageVolumeStateChange", "", context);
    EXPECT_EQ(number(delivered(), "zrqDaLogDrvStatus"), 1);
    EXPECT_EQ(number(delivered(), "zrqHoTrapFlags"), 12);

    sink->clear();
    trapRecorder() = TrapRecorder{};
    env.set("VELDRA_INDICATION_DB", dir.write("db.yaml", R"(classes:
  QLN_VeldraStorageVolumeIndication:
    14: {providerName: P, eventID: E, indicationNumber: 1, description: D, summary: S, eventCategory: 4,
         alertType: 5, probableCause: 1, probableCauseDescription: C, recommendedActions: R}
)"));
    QLN::QLN_VeldraStorageVolumeIndication(logger, "root/mwq")
        .sendIndication(14, "v", 0, 0, 0, {}, {}, "StorageVolumeStateChange", "", context);
    EXPECT_EQ(texts(delivered(), "IndicationOIDs")[0], "-1");
    EXPECT_EQ(delivered().property("TrapID"), nullptr);
    EXPECT_TRUE(trapRecorder().traps.empty());
    // Only the two events with a trap logged it.
    std::string const lines = log();
    std::size_t count = 0;
    for (auto at = lines.find("Veldra Storage Volume sending SNMP trap info");
         at != std::string::npos;
         at = lines.find("Veldra Storage Volume sending SNMP trap info", at + 1)) {
        ++count;
    }
    EXPECT_EQ(count, 2u) << lines;
}

// Catches: the wear trap without its wear variable, the 16-bit failure code
// sent as 32 bits, a placeholder serial made into a hardware serial, the
// drive type map, and Drive/Disk prefixes mixed up.
TEST_F(IndicationTest, DiskWearEventCarriesWearAndSixteenBitCode) {
    sendDisk(logger, context, 6, 1, 5, "NoSerialNum-7");
    CimInstance const got = delivered();
    EXPECT_EQ(got.property("HWSerialNumber"), nullptr);
    EXPECT_EQ(text(got, "zrqDaPhyDrvSerialNum"), "NoSerialNum-7");
    EXPECT_EQ(text(got, "HWFirmwareVersion"), "Veldra Physical Drive:HPD7");
    EXPECT_EQ(text(got, "HWPhysicalLocation"), "Port 1I Box 1 Bay 3");
    EXPECT_EQ(text(got, "DeviceControllerLogicalLocation"), "Veldra VX in Slot 3");
    EXPECT_EQ(texts(got, "VariableValues"),
              (Strings{"DiskDriveStatusChange", "2", "Too many media errors"}));
    EXPECT_EQ(number(got, "TrapID"), 3049);
    EXPECT_EQ(number(got, "zrqDaPhyDrvSSDWearStatus"), 5);
    EXPECT_EQ(number(got, "zrqDaPhyDrvType"), 3);
    EXPECT_EQ(number(got, "zrqDaPhyDrvFailureCode"), 0);
    std::vector<std::string> const oids = texts(got, "IndicationOIDs");
    ASSERT_EQ(oids.size(), 15u);
    EXPECT_EQ(oids[3], "1.3.6.1.4.1.57913.3.2.2.1.1.20.1");
    EXPECT_EQ(oids[5], "1.3.6.1.4.1.57913.3.2.5.1.1.2.1.65539");
    EXPECT_EQ(oids[14], "1.3.6.1.4.1.57913.3.2.5.1.1.73.1.65539");
    RecordedTrap const sent = trap();
    ASSERT_EQ(sent.variables.size(), 14u);
    EXPECT_EQ(oidsOf(sent), (Strings{"12", "veldra-host", "Veldra VX in Slot 3", "1", "65539",
                                     "Logical Volume 1 (RAID 5)", "3", "MB4000", "HPD7",
                                     "NoSerialNum-7", "0", "8", "1", "5"}));
    EXPECT_EQ(sent.variables[10].valueLength, 2);
    EXPECT_EQ(sent.variables[3].oidLength, 15);
    EXPECT_EQ(sent.variables[2].oidLength, 14);
}

// Catches: the status trap with a wear variable, the failure code not
// passed where the table passes it, and the silent cases or event 3
// sending a trap.
TEST_F(IndicationTest, DiskStatusEventsAndTheSilentCases) {
    sendDisk(logger, context, 2, 1, 3, "S1", 1);
    CimInstance const got = delivered();
    EXPECT_EQ(text(got, "HWSerialNumber"), "Veldra Physical Disk:S1");
    EXPECT_EQ(texts(got, "IndicationOIDs")[14], "-1");
    EXPECT_EQ(got.property("zrqDaPhyDrvSSDWearStatus"), nullptr);
    EXPECT_EQ(number(got, "zrqDaPhyDrvFailureCode"), 0x21);
    EXPECT_EQ(number(got, "zrqDaPhyDrvType"), 1);
    EXPECT_EQ(trap().variables.size(), 13u);

    // Back from losing one path, and an OK disk losing one: nothing at all.
    sink->clear();
    trapRecorder() = TrapRecorder{};
    sendDisk(logger, context, 1, 0x8003, 1);
    sendDisk(logger, context, 5, 1, 0x8003);
    EXPECT_EQ(sink->count(), 0u);
    EXPECT_TRUE(trapRecorder().traps.empty());
    EXPECT_EQ(log().find("Failed"), std::string::npos);

    // A degraded disk losing a path is news, with code 0.
    sendDisk(logger, context, 5, 3, 0x8003);
    EXPECT_EQ(number(delivered(), "zrqDaPhyDrvStatus"), 2);
    EXPECT_EQ(number(delivered(), "zrqDaPhyDrvFailureCode"), 0);

    sink->clear();
    trapRecorder() = TrapRecorder{};
    sendDisk(logger, context, 3, 1, 0x8005);
    EXPECT_EQ(texts(delivered(), "IndicationOIDs")[0], "-1");
    EXPECT_TRUE(trapRecorder().traps.empty());
}

// Catches: box numbers not counted from 1, the fan and power supply columns
// swapped, and an event of the other enclosure class sending a trap.
TEST_F(IndicationTest, EnclosureStatusColumnTellsFanFromPowerSupply) {
    QLN::QLN_VeldraStorageEnclosureIndication(logger, "root/mwq")
        .sendIndication(5, "Port 1E Box 1", "Veldra VX in Slot 3", "ENC1", "D3700", "QLN", 1, 0,
                        "encl-path", context);
    CimInstance const got = delivered();
    EXPECT_EQ(text(got, "HWSerialNumber"), "Veldra Enclosure:ENC1");
    EXPECT_EQ(text(got, "HWLogicalLocation"), "Port 1E Box 1");
    EXPECT_EQ(got.property("VariableNames"), nullptr);
    EXPECT_EQ(number(got, "zrqSsBoxBusIndex"), 1);
    EXPECT_EQ(texts(got, "IndicationOIDs"),
              (Strings{"1.3.6.1.4.1.57913.0.8029", "", "", "1.3.6.1.4.1.57913.8.2.1.1.18.1.1",
                       "1.3.6.1.4.1.57913.8.2.1.1.1.1.1", "1.3.6.1.4.1.57913.8.2.1.1.2.1.1",
                       "1.3.6.1.4.1.57913.8.2.1.1.6.1.1", "1.3.6.1.4.1.57913.8.2.1.1.4.1.1",
                       "1.3.6.1.4.1.57913.8.2.1.1.17.1.1", "1.3.6.1.4.1.57913.8.2.1.1.7.1.1",
                       "1.3.6.1.4.1.57913.8.2.1.1.23.1.1"}));
    EXPECT_EQ(oidsOf(trap()), (Strings{"12", "veldra-host", "Veldra VX in Slot 3", "1", "1", "QLN",
                                       "D3700", "ENC1", "5", "Port 1E Box 1"}));

    sink->clear();
    trapRecorder() = TrapRecorder{};
    QLN::QLN_VeldraStorageEnclosureIndication(logger, "root/mwq")
        .sendIndication(2, "p", "c", "s", "m", "v", 0, 2, "", context);
    EXPECT_EQ(trap().trapId, 8031u);
    EXPECT_EQ(texts(delivered(), "IndicationOIDs")[9], "1.3.6.1.4.1.57913.8.2.1.1.11.0.3");

    // Event 7 belongs to the temperature class: this class has a record but no trap.
    sink->clear();
    trapRecorder() = TrapRecorder{};
    env.set("VELDRA_INDICATION_DB", dir.write("db.yaml", R"(classes:
  QLN_VeldraStorageEnclosureIndication:
    7: {providerName: P, eventID: E, indicationNumber: 1, description: D, summary: S, eventCategory: 6,
        alertType: 5, probableCause: 1, probableCauseDescription: C, recommendedActions: R}
)"));
    QLN::QLN_VeldraStorageEnclosureIndication(logger, "root/mwq")
        .sendIndication(7, "p", "c", "s", "m", "v", 0, 0, "", context);
    EXPECT_EQ(texts(delivered(), "IndicationOIDs"),
              (Strings{"-1", "<null>", "<null>", "<null>", "<null>", "<null>", "<null>", "<null>",
                       "<null>", "<null>", "<null>"}));
    EXPECT_TRUE(trapRecorder().traps.empty());
}

// Catches: the temperature traps numbered upwards with the events, and the
// box index or status in the wrong place.
TEST_F(IndicationTest, TemperatureTrapsFallAsEventsRise) {
    std::vector<std::pair<int, unsigned int>> const expected = {{7, 8011}, {8, 8010}, {9, 8009}};
    for (auto const& [event, trapNumber] : expected) {
        QLN::QLN_VeldraStorageEnclosureTempIndication(logger, "root/mwq")
            .sendIndication(event, "p", "ENC1", "D3700", 0, 1, "", context);
    }
    auto const& traps = trapRecorder().traps;
    ASSERT_EQ(traps.size(), 3u);
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_EQ(traps[i].trapId, expected[i].second);
        ASSERT_EQ(traps[i].variables.size(), 3u);
        EXPECT_EQ(oidOf(traps[i].variables[2]), "1.3.6.1.4.1.57913.8.2.1.1.9.0.2");
        EXPECT_EQ(valueOf(traps[i].variables[2]), std::to_string(i + 2));
    }
    EXPECT_EQ(texts(sink->delivered()[2].indication, "IndicationOIDs"),
              (Strings{"1.3.6.1.4.1.57913.0.8009", "", "", "1.3.6.1.4.1.57913.8.2.1.1.9.0.2"}));
}
