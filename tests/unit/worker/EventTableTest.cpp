// Every row of the hardware event table: the pass after the change sends
// exactly the alerts of the row (indication, trap number, flags, status),
// once. A quiet pass sends nothing.
#include "Broker.h"
#include "BrokerContext.h"
#include "HardwareEventRows.h"
#include "MemoryIndicationSink.h"
#include "ObjectRegistry.h"
#include "QLNUtil.h"
#include "WorkerTestSupport.h"

#include <algorithm>

using namespace Cimom;

using namespace worker_test;

namespace {

using hardware_events::Row;

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
        provider.invokeMethod(
            context,
            CmpiCpp::makeCmpiObjectPath(CmpiCpp::CmpiBroker(), "root/mwq", "QLN_VDArraySystem"),
            CmpiCpp::CmpiName("PerformWork"), CmpiCpp::CmpiArgs(), result);
    }
    // What went out since the last call, as alerts read against `expected`.
    std::vector<std::string> sent(std::vector<hardware_events::Alert> const& expected = {}) {
        std::vector<hardware_events::Alert> alerts;
        for (auto const& one : _sink->delivered()) {
            auto const& indication = one.indication;
            alerts.push_back(hardware_events::observed(
                indication.className(), expected,
                [&indication](std::string const& name) -> std::optional<std::string> {
                    auto const* value = indication.property(name);
                    if (value == nullptr)
                        return std::nullopt;
                    return value->toText();
                }));
        }
        _sink->clear();
        return hardware_events::described(alerts);
    }

    Broker _broker;
    std::unique_ptr<ObjectRegistry::Scope> _scope;
    std::shared_ptr<MemoryIndicationSink> _sink = std::make_shared<MemoryIndicationSink>();
};

} // namespace

class FirstPass : public EventTable {};

// The first pass tells what the demo starts with once; later passes say nothing more.
TEST_F(FirstPass, TellsWhatIsAlreadyBadOnce) {
    WorkingCopy copy("demo.yaml");
    auto provider = startListenedProvider();
    passWithBroker(*provider);
    auto const& first = hardware_events::firstPassOfDemo();
    EXPECT_EQ(sent(first), hardware_events::described(first));
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
    if (GetParam().setup != nullptr)
        copy.sim(GetParam().setup);
    auto provider = startListenedProvider();
    passWithBroker(*provider);
    sent(); // the survey of what was bad from the start has its own test
    passWithBroker(*provider);
    EXPECT_EQ(sent(), std::vector<std::string>{}) << "a quiet pass sends nothing";

    copy.sim(GetParam().command);
    passWithBroker(*provider);
    EXPECT_EQ(sent(GetParam().sent), hardware_events::described(GetParam().sent));
    passWithBroker(*provider);
    EXPECT_EQ(sent(), std::vector<std::string>{}) << "each event goes out once";
}

INSTANTIATE_TEST_SUITE_P(Demo, EventTable, ::testing::ValuesIn(hardware_events::rows()),
                         [](auto const& info) { return std::string(info.param.name); });
