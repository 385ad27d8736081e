// The provider object on its own: forwarding under the mutex, the one status
// it throws, method dispatch and the indication switch.
#include "QLNVeldraProvider.h"
#include "Broker.h"
#include "BrokerContext.h"
#include "CapturedMethodResult.h"
#include "CmpiArgs.h"
#include "CmpiStatus.h"
#include "MemoryIndicationSink.h"
#include "ObjectRegistry.h"
#include "ProviderTestSupport.h"
#include "QLNUtil.h"
#include "QLN_AutoStartVeldra.h"

#include <future>
#include <gtest/gtest.h>
#include <memory>

using namespace Cimom;

using namespace provider_test;
using CmpiCpp::CmpiBroker;
using CmpiCpp::CmpiContext;
using CmpiCpp::CmpiName;
using CmpiCpp::CmpiObjectPath;

namespace {

CmpiObjectPath pathOf(char const* className) {
    CmpiObjectPath path = CmpiCpp::makeCmpiObjectPath(CmpiBroker(), "root/mwq", className);
    path.addKey("Name", "nothing-here");
    return path;
}

std::unique_ptr<QLN::QLNVeldraProvider> makeProvider() {
    useScenario("demo.yaml");
    Logger logger("QLNVeldra");
    return std::make_unique<QLN::QLNVeldraProvider>(CmpiBroker(), logger);
}

std::uint32_t call(QLN::QLNVeldraProvider& provider, CmpiObjectPath const& path,
                   char const* method) {
    QLN::CapturedMethodResult result;
    provider.invokeMethod(CmpiContext(), path, CmpiName(method), CmpiCpp::CmpiArgs(), result);
    EXPECT_TRUE(result.returnValue().has_value());
    return result.returnValue().value_or(0xffffffff);
}

} // namespace

TEST(QLNVeldraProvider, UnknownPathIsNotFoundAndLeavesTheMutexFree) {
    auto provider = makeProvider();
    Instances rows;
    try {
        provider->getInstance(CmpiContext(), pathOf("QLN_VDDiskDrive"), nullptr, rows);
        FAIL() << "getInstance of an unknown path must throw";
    } catch (CmpiCpp::CmpiStatus const& status) {
        EXPECT_EQ(status.rc(), CMPI_RC_ERR_NOT_FOUND);
    }
    // A mutex left locked would hang this read; run it apart and give up after a while.
    auto next = std::async(std::launch::async, [&] {
        Instances more;
        provider->enumInstances(CmpiContext(), pathOf("QLN_VeldraIndication"), nullptr, more);
        return more.rows.size();
    });
    ASSERT_EQ(next.wait_for(std::chrono::seconds(10)), std::future_status::ready);
    EXPECT_EQ(next.get(), 0u);
}

TEST(QLNVeldraProvider, MethodsAnswerWithValuesNotExceptions) {
    auto provider = makeProvider();
    EXPECT_EQ(call(*provider, pathOf("QLN_VDStorageEnclosure"), "Identify"), 17u);
    EXPECT_EQ(call(*provider, pathOf("QLN_VDDiskDrive"), "Identify"), 17u)
        << "no such disk: 17, not a throw";
    EXPECT_EQ(call(*provider, pathOf("QLN_VDArraySystem"), "NoSuchMethod"), 17u);
    // The worker's name is matched as a CIM name, without regard to case, whatever the path.
    EXPECT_EQ(call(*provider, pathOf("QLN_VDStorageEnclosure"), "performwork"), 0u);
}

TEST(QLNVeldraProvider, IndicationSwitchFollowsTheFilterCalls) {
    auto provider = makeProvider();
    CmpiCpp::CmpiSelectExp filter;
    CmpiObjectPath const path = pathOf("QLN_VeldraIndication");
    EXPECT_FALSE(provider->indicationsEnabled());
    provider->activateFilter(CmpiContext(), filter, "QLN_VeldraIndication", path, false);
    EXPECT_TRUE(provider->indicationsEnabled()) << "any activation turns delivery on";
    provider->deActivateFilter(CmpiContext(), filter, "QLN_VeldraIndication", path, true);
    EXPECT_TRUE(provider->indicationsEnabled()) << "even the last deactivation leaves it on";
    provider->disableIndications();
    EXPECT_FALSE(provider->indicationsEnabled());
    provider->enableIndications();
    EXPECT_TRUE(provider->indicationsEnabled());
    EXPECT_EQ(provider->getProviderKind(), 2);
}

TEST(QLNVeldraProvider, LogsItsLifeUnderTheCallersSource) {
    LogCapture log;
    makeProvider().reset();
    EXPECT_EQ(log.count("QLNVeldra: cxtor()"), 1) << log.text();
    EXPECT_EQ(log.count("dxtor() unloading provider"), 1) << log.text();
}

TEST(QLNVeldraProvider, ConstructionFailsWhenTheHardwareCannotBeRead) {
    useScenario("no-such-scenario.yaml");
    Logger logger("QLNVeldra");
    EXPECT_THROW(QLN::QLNVeldraProvider(CmpiBroker(), logger), std::exception);
}

TEST(QLN_AutoStartVeldra, CarriesTheWorkerScheduleAndTheStartingHost) {
    ::setenv("VELDRA_HOSTNAME", "first-host", 1);
    Logger logger("QLNVeldra");
    QLN::QLN_AutoStartVeldra autostart(logger, "root/mwq");
    ::setenv("VELDRA_HOSTNAME", "renamed-host", 1);
    CmpiCpp::CmpiInstance const instance = autostart.getInstance();
    ::unsetenv("VELDRA_HOSTNAME");

    EXPECT_EQ(instance.getPath().getHost().str(), "renamed-host")
        << "the path shows the host of the moment";
    std::vector<std::string> names;
    for (unsigned int i = 0; i < instance.getPropertyCount(); ++i) {
        names.push_back(instance.getPropertyNameAt(i).str());
    }
    EXPECT_EQ(names, (std::vector<std::string>{"ProviderName", "WorkerMethodNameSpace",
                                               "WorkerPollInterval", "WorkerPollIntervalStagger",
                                               "ProviderStartedHostname"}));
    EXPECT_EQ(instance.getProperty("WorkerPollInterval").getType(), CMPI_uint16);
    EXPECT_EQ(instance.getProperty("WorkerPollInterval").getUint16(), 30);
    EXPECT_EQ(instance.getProperty("WorkerPollIntervalStagger").getUint16(), 18);
    EXPECT_EQ(instance.getProperty("ProviderStartedHostname").getString(), "first-host");
    EXPECT_EQ(instance.getProperty("WorkerMethodNameSpace").getString(), "root/mwq");
}

// Catches: a heartbeat sent before any filter was activated, one sent
// although the framework's switch is off, and one that never reaches the
// object manager.
TEST(QLNVeldraProvider, HeartbeatGoesOutWhenIndicationsAndTheSwitchAreOn) {
    Broker broker;
    ObjectRegistry::Scope scope(broker.registry());
    auto sink = std::make_shared<MemoryIndicationSink>();
    broker.setIndicationSink(sink);
    CmpiContext const context(broker.newContext("root/mwq", 0)->cmpi());
    auto const pass = [&](QLN::QLNVeldraProvider& provider) {
        QLN::CapturedMethodResult result;
        provider.invokeMethod(context, pathOf("QLN_AutoStartVeldra"), CmpiName("PerformWork"),
                              CmpiCpp::CmpiArgs(), result);
    };

    ::setenv("VELDRA_HEARTBEAT", "true", 1);
    QLN::FrameworkConfig::reload();
    auto provider = makeProvider();
    QLN::QLNUtil::setBroker(CmpiBroker(broker.cmpi()));
    pass(*provider);
    EXPECT_EQ(sink->count(), 0u) << "no filter activated yet";
    provider->enableIndications();
    pass(*provider);
    pass(*provider);
    ASSERT_EQ(sink->count(), 2u);
    auto const beats = sink->delivered();
    EXPECT_EQ(beats[0].nameSpace, "root/mwq");
    EXPECT_EQ(beats[0].indication.className(), "QLN_VeldraIndication");
    EXPECT_EQ(
        beats[0].indication.property("Summary")->asString().rfind("Veldra provider heartbeat ", 0),
        0u);
    EXPECT_NE(beats[0].indication.property("IndicationIdentifier")->asString(),
              beats[1].indication.property("IndicationIdentifier")->asString());

    ::setenv("VELDRA_HEARTBEAT", "false", 1);
    QLN::FrameworkConfig::reload();
    auto quiet = makeProvider();
    quiet->enableIndications();
    pass(*quiet);
    EXPECT_EQ(sink->count(), 2u) << "the framework's heartbeat switch is off";
    ::unsetenv("VELDRA_HEARTBEAT");
    QLN::FrameworkConfig::reload();
    QLN::QLNUtil::setBroker(CmpiBroker());
}
