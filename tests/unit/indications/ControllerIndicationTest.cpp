// The controller's two indication classes: what a subscriber and a trap
// receiver get for an event.
#include "IndicationTestSupport.h"
#include "QLN_VeldraCntlrIndication.h"
#include "QLN_VeldraIndication.h"

using Strings = std::vector<std::string>;

namespace {
std::string const controllerPath =
    "//veldra-host/root/mwq:QLN_VDArrayController.DeviceID=\"PVELD13A40\"";
}

// Catches: a property taken from the wrong record field or setter, a
// missing prefix, variables out of order, the cache size not turned into
// KiB for the trap, the real model in place of "27", an error code from the
// wrong table entry, and IndicationOIDs that disagree with the varbinds.
TEST_F(IndicationTest, CacheEventCarriesIdentityVariablesAndTheWholeTrap) {
    QLN::QLN_VeldraIndication(logger, "root/mwq")
        .sendIndication(10, 1, 21, "5.2.0", "Veldra VX in Slot 3", "QLN", "SER123", "Veldra VX",
                        "ControllerCacheStateChange", 1024, "CACHE9", controllerPath, context);
    CimInstance const got = delivered();
    EXPECT_EQ(got.className(), "QLN_VeldraIndication");
    EXPECT_EQ(text(got, "EventID"), "VELDRA-CACHE-0010");
    EXPECT_EQ(number(got, "IndicationNumber"), 1010);
    EXPECT_EQ(text(got, "Summary"), "Controller cache temporarily disabled");
    EXPECT_EQ(text(got, "ProviderName"), "QLNVeldra");
    EXPECT_EQ(text(got, "SystemCreationClassName"), "QLN_ComputerSystem");
    EXPECT_EQ(number(got, "AlertType"), 5);
    EXPECT_EQ(text(got, "AlertingManagedElement"), controllerPath);
    EXPECT_EQ(number(got, "AlertingElementFormat"), 2);
    EXPECT_EQ(text(got, "HWLogicalLocation"), "Veldra VX in Slot 3");
    EXPECT_EQ(text(got, "HWFirmwareVersion"), "Veldra Controller:5.2.0");
    EXPECT_EQ(text(got, "HWManufacturer"), "QLN");
    EXPECT_EQ(text(got, "HWSerialNumber"), "Veldra Controller:SER123");
    EXPECT_EQ(text(got, "DeviceModel"), "Veldra VX");
    EXPECT_EQ(texts(got, "VariableNames"),
              (Strings{"FailureDescription", "CacheSizeTotal", "CacheSerialNumber"}));
    EXPECT_EQ(texts(got, "VariableTypes"), (Strings{"1", "5", "1"}));
    EXPECT_EQ(texts(got, "VariableValues"),
              (Strings{"ControllerCacheStateChange", "1024", "CACHE9"}));
    EXPECT_EQ(number(got, "TrapID"), 3038);
    EXPECT_EQ(number(got, "zrqHoTrapFlags"), 8);
    EXPECT_EQ(text(got, "sysName"), "veldra-host");
    EXPECT_EQ(number(got, "zrqDaAccelTotalMemory"), 1);
    EXPECT_EQ(number(got, "zqqDaAccelStatus"), 4);
    EXPECT_EQ(number(got, "zrqDaAccelErrCode"), 1); // cache state above 20
    EXPECT_EQ(texts(got, "IndicationOIDs"),
              (Strings{"1.3.6.1.4.1.57913.0.3038", "", "", "1.3.6.1.4.1.57913.3.2.2.1.1.20.1",
                       "1.3.6.1.4.1.57913.3.2.2.1.1.2.1", "1.3.6.1.4.1.57913.3.2.2.2.1.1.1",
                       "1.3.6.1.4.1.57913.3.2.2.2.1.11.1", "1.3.6.1.4.1.57913.3.2.2.2.1.12.1",
                       "1.3.6.1.4.1.57913.3.2.2.2.1.2.1", "1.3.6.1.4.1.57913.3.2.2.2.1.5.1"}));

    RecordedTrap const sent = trap();
    EXPECT_EQ(sent.trapId, 3038u);
    EXPECT_EQ(
        varbinds(sent),
        (Strings{"1.3.6.1.4.1.57913.11.2.11.1=8", "1.3.6.1.2.1.1.5=veldra-host",
                 "1.3.6.1.4.1.57913.3.2.2.1.1.20.1=Veldra VX in Slot 3",
                 "1.3.6.1.4.1.57913.3.2.2.1.1.2.1=27", "1.3.6.1.4.1.57913.3.2.2.2.1.1.1=1",
                 "1.3.6.1.4.1.57913.3.2.2.2.1.11.1=CACHE9", "1.3.6.1.4.1.57913.3.2.2.2.1.12.1=1",
                 "1.3.6.1.4.1.57913.3.2.2.2.1.2.1=4", "1.3.6.1.4.1.57913.3.2.2.2.1.5.1=1"}));
    EXPECT_EQ(sent.variables[1].type, varbindText);
    EXPECT_EQ(sent.variables[1].valueLength, 11);
    EXPECT_EQ(sent.variables[4].type, varbindNumber);
    EXPECT_EQ(sent.variables[4].valueLength, 4);

    std::string const lines = log();
    for (char const* line :
         {"QLNVeldra:QLN_VeldraIndication: cxtor", "Creating Veldra Indication DB",
          "Send Veldra indication: 10",
          "set variable properties: Description: ControllerCacheStateChange CacheSizeTotal: 1024 "
          "CacheSerialNumber: CACHE9",
          "calling sentSnmpTrapPassThrough pass the trap 3038 to Tarvo",
          "Sent snmp trap to Tarvo 3038", "QLN_VeldraIndication: dxtor"}) {
        EXPECT_NE(lines.find(line), std::string::npos) << line << "\n" << lines;
    }
}

// Catches: the battery trap carrying accelerator status and error code, and
// the error-code map read for the wrong events.
TEST_F(IndicationTest, BatteryTrapLeavesStatusAndErrorCodeOut) {
    QLN::QLN_VeldraIndication(logger, "root/mwq")
        .sendIndication(8, 0, 5, "", "", "", "", "", "ControllerBatteryStateChange", 2048, "", "",
                        context);
    CimInstance const got = delivered();
    std::vector<std::string> const oids = texts(got, "IndicationOIDs");
    ASSERT_EQ(oids.size(), 10u);
    EXPECT_EQ(oids[0], "1.3.6.1.4.1.57913.0.3040");
    EXPECT_EQ(oids[8], "-1");
    EXPECT_EQ(oids[9], "-1");
    EXPECT_EQ(got.property("zqqDaAccelStatus"), nullptr);
    EXPECT_EQ(got.property("zrqDaAccelErrCode"), nullptr);
    // No identity text given, none set.
    EXPECT_EQ(got.property("HWFirmwareVersion"), nullptr);
    EXPECT_EQ(got.property("AlertingManagedElement"), nullptr);
    EXPECT_EQ(trap().variables.size(), 7u);
    EXPECT_EQ(number(got, "zrqDaAccelTotalMemory"), 2);

    trapRecorder() = TrapRecorder{};
    sink->clear();
    QLN::QLN_VeldraIndication(logger, "root/mwq")
        .sendIndication(11, 0, 5, "", "", "", "", "", "ControllerCacheStateChange", 0, "", "",
                        context);
    EXPECT_EQ(number(delivered(), "zrqDaAccelErrCode"), 6);
    EXPECT_EQ(number(delivered(), "zqqDaAccelStatus"), 5);
}

// Catches: a heartbeat with an alerting element or a trap, and a summary
// that does not end in the indication's own identifier.
TEST_F(IndicationTest, HeartbeatIsAnIndicationOnlyWithItsIdentifierInTheSummary) {
    QLN::QLN_VeldraIndication(logger, "root/mwq")
        .sendIndication(100, 0, 0, "", "", "", "", "", "", 0, "", controllerPath, context);
    CimInstance const got = delivered();
    EXPECT_EQ(got.property("AlertingManagedElement"), nullptr);
    EXPECT_EQ(got.property("AlertingElementFormat"), nullptr);
    EXPECT_EQ(text(got, "Summary"),
              "Veldra provider heartbeat " + text(got, "IndicationIdentifier"));
    std::vector<std::string> const oids = texts(got, "IndicationOIDs");
    ASSERT_EQ(oids.size(), 10u);
    EXPECT_EQ(oids[0], "-1");
    for (std::size_t i = 1; i < oids.size(); ++i)
        EXPECT_EQ(oids[i], "<null>") << i;
    EXPECT_EQ(got.property("TrapID"), nullptr);
    EXPECT_EQ(got.property("zrqHoTrapFlags"), nullptr);
    EXPECT_EQ(got.property("VariableNames"), nullptr);
    EXPECT_TRUE(trapRecorder().traps.empty());
    EXPECT_EQ(log().find("calling sentSnmpTrapPassThrough"), std::string::npos);
}

// Catches: the controller class using the cache table, or its slot and
// board status put in the wrong place.
TEST_F(IndicationTest, ControllerStateEventSendsTrap3015) {
    QLN::QLN_VeldraCntlrIndication(logger, "root/mwq")
        .sendIndication(2, 2, 4, "5.2.0", "Veldra VX in Slot 4", "QLN", "SER", "Veldra VX",
                        "ControllerStateChange", 0, "", controllerPath, context);
    CimInstance const got = delivered();
    EXPECT_EQ(got.className(), "QLN_VeldraCntlrIndication");
    EXPECT_EQ(texts(got, "IndicationOIDs"),
              (Strings{"1.3.6.1.4.1.57913.0.3015", "", "", "1.3.6.1.4.1.57913.3.2.2.1.1.5.2",
                       "1.3.6.1.4.1.57913.3.2.2.1.1.10.2"}));
    EXPECT_EQ(varbinds(trap()),
              (Strings{"1.3.6.1.4.1.57913.11.2.11.1=16", "1.3.6.1.2.1.1.5=veldra-host",
                       "1.3.6.1.4.1.57913.3.2.2.1.1.5.2=4", "1.3.6.1.4.1.57913.3.2.2.1.1.10.2=3"}));
    EXPECT_EQ(texts(got, "VariableValues"), (Strings{"ControllerStateChange", "0", ""}));
}
