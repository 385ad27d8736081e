// End to end: every trap number the provider knows, sent through the
// indication classes and libQLNMPMRA.so, as snmptrapd with our MIB loaded
// prints it. Catches a varbind that resolves to no MIB object or to the
// wrong one, variables out of order, and a trap that never arrives.
#include "Broker.h"
#include "BrokerContext.h"
#include "MemoryIndicationSink.h"
#include "ObjectRegistry.h"
#include "QLNUtil.h"
#include "QLN_VeldraCntlrIndication.h"
#include "QLN_VeldraDiskDriveIndication.h"
#include "QLN_VeldraIndication.h"
#include "QLN_VeldraStorageEnclosureIndication.h"
#include "QLN_VeldraStorageEnclosureTempIndication.h"
#include "QLN_VeldraStorageVolumeIndication.h"
#include "ScopedEnv.h"
#include "TempDir.h"
#include "TrapReceiver.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>

using namespace Cimom;

namespace {

std::string const mib = "QLN-VELDRA-MIB::";

struct Expected {
    std::string notification;
    std::vector<std::string> objects; // after zrqHoTrapFlags and sysName
    std::function<void(CMPIContext const*, Logger&)> send;
};

std::vector<std::string> const accelerator = {"zrqDaCtrlrHwLocation.1", "zrqDaCtrlrModel.1",
                                              "zqrDaAccelCtrlrIndex.1", "zrqDaAccelSerialNumber.1",
                                              "zrqDaAccelTotalMemory.1"};
std::vector<std::string> disk(bool wear) {
    std::vector<std::string> names = {
        "zrqDaCtrlrHwLocation.1",         "zrqDaPhyDrvCntlrIndex.1.65539",
        "zrqDaPhyDrvIndex.1.65539",       "zrqDaPhyDrvLocationString.1.65539",
        "zrqDaPhyDrvType.1.65539",        "zrqDaPhyDrvModel.1.65539",
        "zrqDaPhyDrvFWRev.1.65539",       "zrqDaPhyDrvSerialNum.1.65539",
        "zrqDaPhyDrvFailureCode.1.65539", "zrqDaPhyDrvStatus.1.65539",
        "zrqDaPhyDrvBusNumber.1.65539"};
    if (wear)
        names.push_back("zrqDaPhyDrvSSDWearStatus.1.65539");
    return names;
}
std::vector<std::string> box(char const* status) {
    return {"zrqSsBoxCntlrHwLocation.1.2", "zrqSsBoxCntlrIndex.1.2",    "zrqSsBoxBusIndex.1.2",
            "zrqSsBoxVendor.1.2",          "zrqSsBoxModel.1.2",         "zrqSsBoxSerialNumber.1.2",
            std::string(status) + ".1.2",  "zrqSsBoxLocationString.1.2"};
}

void controller(QLN::QLN_VeldraIndication&& sender, int event, CMPIContext const* context) {
    sender.sendIndication(event, 1, 3, "5.2.0", "Veldra VX in Slot 3", "QLN", "SER", "Veldra VX",
                          "ControllerCacheStateChange", 2048, "CACHE1", "path", context);
}
void diskEvent(Logger& logger, int event, CMPIContext const* context) {
    QLN::QLN_VeldraDiskDriveIndication(logger, "root/mwq")
        .sendIndication(event, 1, 3, "HPD7", "Logical Volume 1", "Bay 3", "Veldra VX in Slot 3",
                        "S1", "MB4000", 1, (1 << 16) + 3, 3, 7, 1, "reason",
                        "DiskDriveStatusChange", "path", context);
}
void fanOrSupply(Logger& logger, int event, CMPIContext const* context) {
    QLN::QLN_VeldraStorageEnclosureIndication(logger, "root/mwq")
        .sendIndication(event, "Port 1E Box 2", "Veldra VX in Slot 3", "ENC1", "D3700", "QLN", 1, 1,
                        "path", context);
}
void temperature(Logger& logger, int event, CMPIContext const* context) {
    QLN::QLN_VeldraStorageEnclosureTempIndication(logger, "root/mwq")
        .sendIndication(event, "Port 1E Box 2", "ENC1", "D3700", 1, 1, "path", context);
}

} // namespace

TEST(TrapDelivery, EveryTrapNumberReachesSnmptrapdWithItsVariablesInOrder) {
    TrapReceiver receiver(std::string(VELDRA_BASE_MIB_DIR) + ":" + VELDRA_DATA_DIR + "/mib");
    TempDir dir;
    ScopedEnv env;
    env.set("VELDRA_LOG", dir.file("log"));
    env.set("VELDRA_HOSTNAME", "veldra-host");
    env.set("VELDRA_TRAP_DESTINATIONS", receiver.destination());
    env.unset("VELDRA_INDICATION_DB");
    Broker broker;
    ObjectRegistry::Scope scope(broker.registry());
    auto sink = std::make_shared<MemoryIndicationSink>();
    broker.setIndicationSink(sink);
    QLN::QLNUtil::setBroker(CmpiCpp::CmpiBroker(broker.cmpi()));
    CMPIContext const* context = broker.newContext("root/mwq", 0)->cmpi();
    Logger logger("QLNVeldra");

    std::vector<Expected> const expected = {
        {"zrqDaCntlrStatusChange",
         {"zrqDaCtrlrSlot.1", "zrqDaCtrlrBoardStatus.1"},
         [](CMPIContext const* c, Logger& l) {
             QLN::QLN_VeldraCntlrIndication(l, "root/mwq")
                 .sendIndication(1, 1, 3, "5.2.0", "Veldra VX in Slot 3", "QLN", "SER", "Veldra VX",
                                 "ControllerStateChange", 0, "", "path", c);
         }},
        {"zrqDaLogDrvStatusChange",
         {"zrqDaCtrlrHwLocation.1", "zrqDaLogDrvCtlrIndex.1.3", "zqrDaLogDrvIndex.1.3",
          "zrqDaLogDrvStatus.1.3"},
         [](CMPIContext const* c, Logger& l) {
             QLN::QLN_VeldraStorageVolumeIndication(l, "root/mwq")
                 .sendIndication(1, "Logical Volume 3 (RAID 5)", 1, 2, 2, {}, {2},
                                 "StorageVolumeStateChange", "path", c);
         }},
        {"zrqDaAccelStatusChange",
         [] {
             auto names = accelerator;
             names.insert(names.end(), {"zqqDaAccelStatus.1", "zrqDaAccelErrCode.1"});
             return names;
         }(),
         [](CMPIContext const* c, Logger& l) {
             controller(QLN::QLN_VeldraIndication(l, "root/mwq"), 9, c);
         }},
        {"zrqDaAccelBatteryFailed", accelerator,
         [](CMPIContext const* c, Logger& l) {
             controller(QLN::QLN_VeldraIndication(l, "root/mwq"), 8, c);
         }},
        {"zrqDaPhyDrvStatusChange", disk(false),
         [](CMPIContext const* c, Logger& l) { diskEvent(l, 2, c); }},
        {"zrqDaPhyDrvSSDWearStatusChange", disk(true),
         [](CMPIContext const* c, Logger& l) { diskEvent(l, 9, c); }},
        {"zrqSsBoxTempCritical",
         {"zrqVDEncTempTrapStatus.1.2"},
         [](CMPIContext const* c, Logger& l) { temperature(l, 9, c); }},
        {"zrqSsBoxTempWarning",
         {"zrqVDEncTempTrapStatus.1.2"},
         [](CMPIContext const* c, Logger& l) { temperature(l, 8, c); }},
        {"zrqSsBoxTempOK",
         {"zrqVDEncTempTrapStatus.1.2"},
         [](CMPIContext const* c, Logger& l) { temperature(l, 7, c); }},
        {"zrqSsBoxFanStatusChange", box("zrqSsBoxFanStatus"),
         [](CMPIContext const* c, Logger& l) { fanOrSupply(l, 5, c); }},
        {"zrqSsBoxPowerSupplyStatusChange", box("zrqSsBoxPowerSupplyStatus"),
         [](CMPIContext const* c, Logger& l) { fanOrSupply(l, 3, c); }},
    };
    for (Expected const& one : expected) {
        one.send(context, logger);
    }

    auto const traps = receiver.waitFor(expected.size());
    ASSERT_EQ(traps.size(), expected.size()) << receiver.output();
    EXPECT_EQ(sink->count(), expected.size()) << "each trap goes with its indication";
    for (std::size_t i = 0; i < traps.size(); ++i) {
        TrapReceiver::Trap const& trap = traps[i];
        Expected const& want = expected[i];
        ASSERT_EQ(trap.size(), want.objects.size() + 4) << want.notification << "\n"
                                                        << receiver.output();
        EXPECT_EQ(trap[0].oid, "SNMPv2-MIB::sysUpTime.0") << want.notification;
        EXPECT_EQ(trap[1].oid, "SNMPv2-MIB::snmpTrapOID.0");
        EXPECT_EQ(trap[1].value, mib + want.notification);
        EXPECT_EQ(trap[2].oid, mib + "zrqHoTrapFlags");
        EXPECT_EQ(trap[3].oid, "SNMPv2-MIB::sysName");
        EXPECT_EQ(trap[3].value, "veldra-host");
        for (std::size_t v = 0; v < want.objects.size(); ++v) {
            EXPECT_EQ(trap[4 + v].oid, mib + want.objects[v]) << want.notification;
        }
    }
    // Spot checks of values as a receiver reads them.
    EXPECT_EQ(traps[1][4].value, "Logical Volume 3 (RAID 5)");
    EXPECT_EQ(traps[4][12].value, "7") << "the 16-bit failure code";
    EXPECT_EQ(traps[9][10].value, "5") << "fan degraded";
    QLN::QLNUtil::setBroker(CmpiCpp::CmpiBroker());
}
