// One row per kind of hardware change: the veldra-sim command, and every
// indication that the pass after it sends, by class and event id. Nothing
// else may go out for that change, and a quiet pass sends nothing.
#include "Broker.h"
#include "BrokerContext.h"
#include "MemoryIndicationSink.h"
#include "ObjectRegistry.h"
#include "QLNUtil.h"
#include "WorkerTestSupport.h"

#include <algorithm>

using namespace worker_test;

namespace {

struct Row {
    char const* name;
    char const* command;
    std::vector<std::string> sent; // "class event-id", sorted
};

void PrintTo(Row const& row, std::ostream* out) { *out << row.command; }

class EventTable : public ::testing::TestWithParam<Row> {
protected:
    void SetUp() override {
        ::setenv("VELDRA_HEARTBEAT", "false", 1);
        QLN::FrameworkConfig::reload();
        _scope = std::make_unique<ObjectRegistry::Scope>(_broker.registry());
        _broker.setIndicationSink(_sink);
    }
    // The provider takes the broker it was built with; this one collects.
    std::unique_ptr<QLN::QLNVeldraProvider> startListenedProvider() {
        auto provider = startProvider();
        QLN::QLNUtil::setBroker(CmpiCpp::CmpiBroker(_broker.cmpi()));
        provider->enableIndications();
        return provider;
    }
    void TearDown() override {
        QLN::QLNUtil::setBroker(CmpiCpp::CmpiBroker());
        ::unsetenv("VELDRA_HEARTBEAT");
        QLN::FrameworkConfig::reload();
    }
    void passWithBroker(QLN::QLNVeldraProvider& provider) {
        CmpiCpp::CmpiContext const context(_broker.newContext("root/mwq", 0)->cmpi());
        QLN::CapturedMethodResult result;
        provider.invokeMethod(context, CmpiCpp::makeCmpiObjectPath(CmpiCpp::CmpiBroker(), "root/mwq", "QLN_VDArraySystem"),
                              CmpiCpp::CmpiName("PerformWork"), CmpiCpp::CmpiArgs(), result);
    }
    std::vector<std::string> sent() {
        std::vector<std::string> rows;
        for (auto const& one : _sink->delivered()) {
            auto const id = one.indication.property("EventID");
            rows.push_back(one.indication.className() + " " + (id ? id->asString() : std::string("?")));
        }
        std::sort(rows.begin(), rows.end());
        _sink->clear();
        return rows;
    }

    Broker _broker;
    std::unique_ptr<ObjectRegistry::Scope> _scope;
    std::shared_ptr<MemoryIndicationSink> _sink = std::make_shared<MemoryIndicationSink>();
};

} // namespace

class FirstPass : public EventTable {};

// The demo starts with a failed disk, the spare rebuilding in its place, a
// disk predicted to fail, a worn SSD, a degraded fan and a rebuilding volume:
// the first pass tells each once, and later passes say nothing more.
TEST_F(FirstPass, TellsWhatIsAlreadyBadOnce) {
    WorkingCopy copy("demo.yaml");
    auto provider = startListenedProvider();
    passWithBroker(*provider);
    EXPECT_EQ(sent(), (std::vector<std::string>{"QLN_VeldraDiskDriveIndication VELDRA-DISK-0002",
                                                "QLN_VeldraDiskDriveIndication VELDRA-DISK-0003",
                                                "QLN_VeldraDiskDriveIndication VELDRA-DISK-0004",
                                                "QLN_VeldraDiskDriveIndication VELDRA-DISK-0011",
                                                "QLN_VeldraStorageEnclosureIndication VELDRA-ENCL-0005",
                                                "QLN_VeldraStorageVolumeIndication VELDRA-VOL-0003"}));
    passWithBroker(*provider);
    EXPECT_EQ(sent(), std::vector<std::string>{});
}

TEST_F(FirstPass, WithIndicationsOffIsNeverMadeUpLater) {
    WorkingCopy copy("demo.yaml");
    auto provider = startListenedProvider();
    provider->disableIndications();
    passWithBroker(*provider);
    provider->enableIndications();
    passWithBroker(*provider);
    EXPECT_EQ(sent(), std::vector<std::string>{});
}

TEST_P(EventTable, OnePassSendsWhatTheChangeCalledFor) {
    WorkingCopy copy("demo.yaml");
    auto provider = startListenedProvider();
    passWithBroker(*provider);
    sent(); // the survey of what was bad from the start has its own test
    passWithBroker(*provider);
    EXPECT_EQ(sent(), std::vector<std::string>{}) << "a quiet pass sends nothing";

    copy.sim(GetParam().command);
    passWithBroker(*provider);
    EXPECT_EQ(sent(), GetParam().sent);
    passWithBroker(*provider);
    EXPECT_EQ(sent(), std::vector<std::string>{}) << "each event goes out once";
}

INSTANTIATE_TEST_SUITE_P(
    Demo, EventTable,
    ::testing::Values(Row{"FailDisk", "fail-disk NR8K1001",
                          {"QLN_VeldraDiskDriveIndication VELDRA-DISK-0002", "QLN_VeldraStorageVolumeIndication VELDRA-VOL-0003"}},
                      Row{"DegradeDisk", "degrade-disk NR8M3001",
                          {"QLN_VeldraDiskDriveIndication VELDRA-DISK-0004"}},
                      Row{"RestoreDisk", "restore-disk NR8K1002",
                          {"QLN_VeldraDiskDriveIndication VELDRA-DISK-0001", "QLN_VeldraStorageVolumeIndication VELDRA-VOL-0001"}},
                      Row{"PullDisk", "pull-disk NR8M3002",
                          {"QLN_VeldraStorageVolumeIndication VELDRA-VOL-0003"}},
                      Row{"FailController", "fail-controller 2",
                          {"QLN_VeldraCntlrIndication VELDRA-CTRL-0002"}},
                      Row{"FailCache", "fail-cache 1",
                          {"QLN_VeldraIndication VELDRA-CACHE-0012"}},
                      Row{"FailBattery", "fail-battery 2",
                          {"QLN_VeldraIndication VELDRA-CACHE-0008"}},
                      Row{"FanFailed", "set-fan 1:2 failed",
                          {"QLN_VeldraStorageEnclosureIndication VELDRA-ENCL-0006"}},
                      Row{"FanOk", "set-fan 1:2 ok",
                          {"QLN_VeldraStorageEnclosureIndication VELDRA-ENCL-0004"}},
                      Row{"PowerSupplyDegraded", "set-power-supply 1:1 degraded",
                          {"QLN_VeldraStorageEnclosureIndication VELDRA-ENCL-0002"}},
                      Row{"PowerSupplyFailed", "set-power-supply 1:1 failed",
                          {"QLN_VeldraStorageEnclosureIndication VELDRA-ENCL-0003"}},
                      Row{"TemperatureWarning", "set-temperature 2:1 warning",
                          {"QLN_VeldraStorageEnclosureTempIndication VELDRA-TEMP-0008"}},
                      Row{"TemperatureCritical", "set-temperature 2:1 critical",
                          {"QLN_VeldraStorageEnclosureTempIndication VELDRA-TEMP-0009"}},
                      Row{"VolumeFailed", "set volume:600508B1001C7E110000000000000001 status 3",
                          {"QLN_VeldraStorageVolumeIndication VELDRA-VOL-0002"}},
                      Row{"SsdWear", "set disk:KS2T2008 ssdWearStatus 2",
                          {"QLN_VeldraDiskDriveIndication VELDRA-DISK-0011"}},
                      // Devices that come or go are told by the graph, not by an indication.
                      Row{"DeleteVolume", "delete-volume 600508B1001C4D2A0000000000000005", {}},
                      Row{"AddEnclosure", "add-enclosure --controller 2 --box 7 --serial VNEWBOX7", {}}),
    [](auto const& info) { return std::string(info.param.name); });
