#include "AutostartDecorator.h"
#include "CapturedMethodResult.h"
#include "LoggedProvider.h"
#include "PerfmonDecorator.h"
#include "ResultSinks.h"
#include "ScopedEnv.h"
#include "TempDir.h"
#include "TestAutostartInstance.h"
#include "TestBroker.h"
#include "TestProvider.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

using CmpiCpp::CmpiContext;
using CmpiCpp::CmpiObjectPath;
using CmpiCpp::CmpiProvider;

namespace {

std::string readFile(std::string const& path) {
    std::ifstream in(path);
    std::stringstream text;
    text << in.rdbuf();
    return text.str();
}

CmpiProvider* perfmonFactory(CmpiCpp::CmpiBroker const& broker, Logger& logger) {
    return new QLN::PerfmonDecorator(broker, logger, &TestProvider::factory);
}

CmpiProvider* autostartFactory(CmpiCpp::CmpiBroker const& broker, Logger& logger) {
    return new QLN::AutostartDecorator(broker, logger, new TestAutostartInstance(),
                                       &perfmonFactory);
}

class Chain : public testing::Test {
protected:
    void SetUp() override {
        TestProvider::state().reset();
        env.set("VELDRA_LOG", dir.file("log"));
        env.set("VELDRA_LOG_LEVEL", "info");
        env.set("VELDRA_WORKER_INTERVAL_MS", "3600000");
        env.set("VELDRA_WORKER_STAGGER_MS", "3600000");
    }
    std::string log() const { return readFile(dir.file("log")); }

    TempDir dir;
    ScopedEnv env;
    TestBroker broker;
    Logger logger{"QLNVeldra"};
    CmpiContext context;
};

} // namespace

// Faults: the outermost object lacks one of the four interfaces (the entry
// points would give null), a call is not logged or not forwarded, a failure
// is swallowed, or tearing down the chain leaks an inner layer.
TEST_F(Chain, LoggedAutostartPerfmonForwardAndTearDown) {
    CmpiProvider* outer = new QLN::LoggedProvider(broker.get(), logger, &autostartFactory);
    ASSERT_NE(dynamic_cast<CmpiCpp::CmpiInstanceProvider*>(outer), nullptr);
    ASSERT_NE(dynamic_cast<CmpiCpp::CmpiAssociationProvider*>(outer), nullptr);
    ASSERT_NE(dynamic_cast<CmpiCpp::CmpiIndicationProvider*>(outer), nullptr);
    auto* methods = dynamic_cast<CmpiCpp::CmpiMethodProvider*>(outer);
    ASSERT_NE(methods, nullptr);
    EXPECT_EQ(outer->getProviderKind(), 2);
    EXPECT_EQ(outer->getBroker().toCMPI(), broker.get());

    auto* instances = dynamic_cast<CmpiCpp::CmpiInstanceProvider*>(outer);
    PathSink names;
    instances->enumInstanceNames(context, CmpiObjectPath("root/mwq", "QLN_VDDiskDrive"), names);
    EXPECT_EQ(names.paths.size(), 1u);

    CmpiObjectPath disk("root/mwq", "QLN_VDDiskDrive");
    disk.addKey("DeviceID", "ABC-WD123");
    InstanceSink rows;
    EXPECT_THROW(instances->getInstance(context, disk, nullptr, rows), CmpiCpp::CmpiStatus);

    QLN::CapturedMethodResult result;
    methods->invokeMethod(context, disk, "Identify", CmpiCpp::CmpiArgs(), result);
    EXPECT_EQ(result.returnValue(), 0u);
    ASSERT_EQ(TestProvider::state().calls(), 1u);
    EXPECT_EQ(TestProvider::state().snapshot()[0].name, "Identify");

    outer->incRefcount();
    EXPECT_TRUE(CmpiProvider::releaseReference(outer, context, true));
    EXPECT_EQ(TestProvider::state().cleanups, 1);
    EXPECT_EQ(TestProvider::state().destroyed, 1);

    std::string text = log();
    EXPECT_NE(
        text.find("INFO QLNVeldra:LoggedProvider: enumInstanceNames root/mwq:QLN_VDDiskDrive\n"),
        std::string::npos)
        << text;
    EXPECT_NE(text.find("LoggedProvider: getInstance " + disk.str() + "\n"), std::string::npos)
        << text;
    EXPECT_NE(text.find("WARN QLNVeldra:LoggedProvider: getInstance failed"), std::string::npos)
        << text;
    EXPECT_NE(text.find("LoggedProvider: invokeMethod Identify on " + disk.str()),
              std::string::npos)
        << text;
    // The perfmon summary of the inner layer, written when it was deleted.
    EXPECT_NE(text.find("PerfmonDecorator: perfmon getInstance: 1 calls, 1 failed"),
              std::string::npos)
        << text;
    EXPECT_NE(text.find("PerfmonDecorator: perfmon invokeMethod: 1 calls, 0 failed"),
              std::string::npos)
        << text;
}

// Fault: a factory that gives nothing leaves a decorator over a null provider.
TEST_F(Chain, NullInnerProviderRefused) {
    auto nothing = [](CmpiCpp::CmpiBroker const&, Logger&) -> CmpiProvider* { return nullptr; };
    EXPECT_THROW(QLN::LoggedProvider(broker.get(), logger, nothing), CmpiCpp::CmpiStatus);
}
