// Methods run without the provider lock. Once passes delete instances, a
// method may still hold a disk that a pass is removing: it must finish on a
// live object (the sanitizers of the concurrency run watch for that).
#include "WorkerTestSupport.h"

#include <atomic>
#include <thread>
#include <vector>

using namespace worker_test;

TEST(MethodBesidePass, IdentifyOnDisksWhilePassesPullAndInsertThem) {
    WorkingCopy copy("demo.yaml");
    auto provider = startProvider();
    provider_test::Paths disks;
    provider->enumInstanceNames(
        CmpiCpp::CmpiContext(),
        CmpiCpp::makeCmpiObjectPath(CmpiCpp::CmpiBroker(), "root/mwq", "QLN_VDDiskDrive"), disks);
    ASSERT_FALSE(disks.rows.empty());

    std::atomic<bool> done{false};
    std::atomic<int> answered{0};
    std::atomic<int> unanswered{0};
    std::vector<std::thread> callers;
    for (int t = 0; t < 2; ++t) {
        callers.emplace_back([&] {
            CmpiCpp::CmpiArgs in;
            in.setArg("Duration", CmpiCpp::CmpiData(1u));
            while (!done) {
                for (CmpiCpp::CmpiObjectPath const& disk : disks.rows) {
                    QLN::CapturedMethodResult result;
                    provider->invokeMethod(CmpiCpp::CmpiContext(), disk,
                                           CmpiCpp::CmpiName("Identify"), in, result);
                    (result.returnValue().has_value() ? answered : unanswered) += 1;
                }
            }
        });
    }
    for (int round = 0; round < 6; ++round) {
        copy.sim("pull-disk NR8K1000");
        pass(*provider);
        copy.sim("insert-disk NR8K1000");
        pass(*provider);
    }
    done = true;
    for (std::thread& caller : callers) {
        caller.join();
    }
    EXPECT_GT(answered.load(), 0);
    EXPECT_EQ(unanswered.load(), 0) << "every call returns a value, found or not";
}
