#include "AutostartDecorator.h"
#include "ResultSinks.h"
#include "ScopedEnv.h"
#include "TempDir.h"
#include "TestAutostartInstance.h"
#include "TestBroker.h"
#include "TestProvider.h"

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <future>
#include <memory>
#include <sstream>

using namespace std::chrono_literals;
using QLN::AutostartDecorator;

namespace {

int threadCount() {
    int count = 0;
    for ([[maybe_unused]] auto const& each :
         std::filesystem::directory_iterator("/proc/self/task")) {
        ++count;
    }
    return count;
}

// Polls, so the test waits only as long as the decorator needs.
bool waitFor(std::function<bool()> const& condition, std::chrono::milliseconds limit = 10s) {
    auto end = std::chrono::steady_clock::now() + limit;
    while (std::chrono::steady_clock::now() < end) {
        if (condition()) {
            return true;
        }
        std::this_thread::sleep_for(2ms);
    }
    return condition();
}

std::string readFile(std::string const& path) {
    std::ifstream in(path);
    std::stringstream text;
    text << in.rdbuf();
    return text.str();
}

class Autostart : public testing::Test {
protected:
    void SetUp() override {
        // A first thread makes runtimes start their own helpers (the thread
        // sanitizer has one), so that counts taken afterwards are stable.
        std::thread([] {}).join();
        TestProvider::state().reset();
        env.set("VELDRA_LOG", dir.file("log"));
        env.set("VELDRA_LOG_LEVEL", "info");
    }

    std::unique_ptr<AutostartDecorator> make(std::string const& intervalMs,
                                             std::string const& staggerMs) {
        env.set("VELDRA_WORKER_INTERVAL_MS", intervalMs);
        env.set("VELDRA_WORKER_STAGGER_MS", staggerMs);
        return std::make_unique<AutostartDecorator>(CmpiCpp::CmpiBroker(broker.get()), logger,
                                                    new TestAutostartInstance(&instancesDestroyed),
                                                    &TestProvider::factory);
    }

    TempDir dir;
    ScopedEnv env;
    TestBroker broker;
    Logger logger{"QLNVeldra"};
    std::atomic<int> instancesDestroyed{0};
};

} // namespace

// Faults: no pass at all, passes on the wrong method or namespace, passes on
// a thread that was never attached, detach missing, thread left behind.
TEST_F(Autostart, PerformWorkOnScheduleFromAttachedThread) {
    int before = threadCount();
    auto decorator = make("20", "5");
    EXPECT_EQ(threadCount(), before + 1);
    ASSERT_TRUE(waitFor([] { return TestProvider::state().calls() >= 3; }));
    decorator.reset();

    EXPECT_EQ(threadCount(), before);
    auto calls = TestProvider::state().snapshot();
    ASSERT_GE(calls.size(), 3u);
    for (auto const& call : calls) {
        EXPECT_EQ(call.name, "PerformWork");
        EXPECT_EQ(call.nameSpace, "root/mwq");
        EXPECT_EQ(call.thread, calls[0].thread);
        EXPECT_EQ(call.context, broker.threadContext());
    }
    EXPECT_NE(calls[0].thread, std::this_thread::get_id());
    EXPECT_EQ(broker.prepared, 1);
    EXPECT_EQ(broker.preparedWith, nullptr); // no request came by
    EXPECT_EQ(broker.attached, 1);
    EXPECT_EQ(broker.attachedOn.load(), calls[0].thread);
    EXPECT_EQ(broker.detached, 1);
    EXPECT_EQ(broker.detachedOn.load(), calls[0].thread);
    EXPECT_EQ(instancesDestroyed, 1);
    EXPECT_EQ(TestProvider::state().destroyed, 1);
}

// Fault: an exception or a non-zero return value ends the schedule, or is
// not logged.
TEST_F(Autostart, FailedPassesAreLoggedAndScheduleGoesOn) {
    TestProvider::state().script = {"status", "std", "five"};
    auto decorator = make("10", "0");
    ASSERT_TRUE(waitFor([] { return TestProvider::state().calls() >= 5; }));
    decorator.reset();
    std::string log = readFile(dir.file("log"));
    EXPECT_NE(
        log.find("ERROR QLNVeldra:AutostartDecorator: PerformWork failed: CMPI_RC_ERR_FAILED"),
        std::string::npos)
        << log;
    EXPECT_NE(log.find("PerformWork failed: out of luck"), std::string::npos) << log;
    EXPECT_NE(log.find("WARN QLNVeldra:AutostartDecorator: PerformWork returned 5"),
              std::string::npos)
        << log;
}

// Fault: a stop waits out the sleep (an hour here) or never joins; cleanup
// lets the thread run on into a provider that is being cleaned up.
TEST_F(Autostart, CleanupAndDestructionStopPromptly) {
    int before = threadCount();
    auto decorator = make("3600000", "0");
    ASSERT_TRUE(waitFor([] { return TestProvider::state().calls() >= 1; }));
    auto stopped =
        std::async(std::launch::async, [&] { decorator->cleanup(CmpiCpp::CmpiContext(), false); });
    ASSERT_EQ(stopped.wait_for(10s), std::future_status::ready) << "cleanup slept through the stop";
    EXPECT_EQ(TestProvider::state().cleanups, 1);
    EXPECT_EQ(broker.detached, 1);
    // The helper thread of std::async may linger a moment after its result.
    EXPECT_TRUE(waitFor([&] { return threadCount() == before; }));

    // A decorator still in its stagger stops as promptly.
    auto waiting = make("3600000", "3600000");
    auto destroyed = std::async(std::launch::async, [&] { waiting.reset(); });
    ASSERT_EQ(destroyed.wait_for(10s), std::future_status::ready)
        << "destructor slept through the stop";
    EXPECT_EQ(broker.attached, 1); // the second one never attached
    decorator.reset();
    EXPECT_TRUE(waitFor([&] { return threadCount() == before; }));
}

// Faults: the autostart class is forwarded (and lost) or other classes are
// answered by the decorator; a request's context is not used to prepare
// the worker thread.
TEST_F(Autostart, ServesItsOwnClassAndForwardsOthers) {
    auto decorator = make("3600000", "3600000");
    CMPIContext requestContext{};
    CmpiCpp::CmpiContext context(&requestContext);

    InstanceSink own;
    decorator->enumInstances(context, CmpiCpp::CmpiObjectPath("root/mwq", "qln_autostartveldra"),
                             nullptr, own);
    ASSERT_EQ(own.instances.size(), 1u);
    EXPECT_EQ(own.instances[0].getProperty("WorkerPollInterval").getUint16(), 30);
    EXPECT_EQ(broker.prepared, 1);
    EXPECT_EQ(broker.preparedWith, &requestContext);

    InstanceSink single;
    TestAutostartInstance probe;
    decorator->getInstance(context, probe.getPath(), nullptr, single);
    EXPECT_EQ(single.instances.size(), 1u);
    CmpiCpp::CmpiObjectPath wrongKey("root/mwq", "QLN_AutoStartVeldra");
    wrongKey.addKey("ProviderName", "Other");
    EXPECT_THROW(decorator->getInstance(context, wrongKey, nullptr, single), CmpiCpp::CmpiStatus);

    PathSink names;
    decorator->enumInstanceNames(context, CmpiCpp::CmpiObjectPath("root/mwq", "QLN_VDDiskDrive"),
                                 names);
    EXPECT_EQ(TestProvider::state().enumerations, 1);
    EXPECT_EQ(broker.prepared, 1); // once only
}

// Faults: the instance's seconds are not used without an override; a bad
// record or a zero interval starts a spinning thread; ownership is lost on
// a failed construction.
TEST_F(Autostart, ScheduleFromInstanceAndBadRecords) {
    env.unset("VELDRA_WORKER_INTERVAL_MS");
    env.unset("VELDRA_WORKER_STAGGER_MS");
    {
        AutostartDecorator decorator(broker.get(), logger,
                                     new TestAutostartInstance(&instancesDestroyed),
                                     &TestProvider::factory);
        EXPECT_EQ(decorator.interval(), 30s);
        EXPECT_EQ(decorator.stagger(), 18s);
        EXPECT_EQ(decorator.workerNameSpace(), "root/mwq");
    }
    EXPECT_EQ(instancesDestroyed, 1);

    EXPECT_THROW(AutostartDecorator(broker.get(), logger,
                                    new TestAutostartInstance(&instancesDestroyed, false),
                                    &TestProvider::factory),
                 CmpiCpp::CmpiStatus);
    EXPECT_EQ(instancesDestroyed, 2);

    env.set("VELDRA_WORKER_INTERVAL_MS", "0");
    EXPECT_THROW(make("0", "0"), std::runtime_error);
    EXPECT_EQ(instancesDestroyed, 3);
    EXPECT_EQ(TestProvider::state().built, TestProvider::state().destroyed);
    EXPECT_EQ(TestProvider::state().calls(), 0u);
}
