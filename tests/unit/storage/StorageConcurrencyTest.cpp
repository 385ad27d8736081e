// The provider's worker, its request threads and the view update call the
// library at the same time while veldra-sim rewrites the file. Run under the
// thread sanitizer by scripts/test; here it checks that every reader sees a
// whole state and that the last written state wins.
#include "SimulatedControllerMRA.h"
#include "StorageTestSupport.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

using namespace storagetest;

namespace {

TEST(StorageConcurrency, ReadersWritersAndReloadsTogether) {
    TempDir dir;
    std::string path = dir.file("scenario.yaml");
    std::string const original = readText(scenarioPath("minimal.yaml"));
    replaceText(path, original);
    Logger logger("test");
    SimulatedControllerMRA root(path, logger);
    VeldraController* controller = root.getFirstData();
    u32 const startCount = controller->getDiskVectorCount();

    std::atomic<bool> stop{false};
    std::atomic<int> wrongSizes{0};
    auto reader = [&] {
        while (!stop) {
            controller->getDiskVectorCount();
            controller->getControllerDataCount();
            if (controller->getAllPhysicalDisks().size() != 4)
                ++wrongSizes;
            std::vector<VeldraLogicalDisk> last;
            controller->getLastLogicalDisks(last);
            controller->getLastAllPhysicalDisks();
        }
    };
    auto snapshotter = [&] {
        while (!stop) {
            auto disks = controller->getAllPhysicalDisks();
            controller->setLastAllPhysicalDisks(disks);
            controller->setLastLogicalDisks(controller->getAllLogicalDisks());
            controller->setLastVDData(controller->getVDData());
            controller->setConsumedDiskVectorCount(controller->getDiskVectorCount());
        }
    };
    std::thread r1(reader), r2(reader), s(snapshotter);
    std::string edited = original;
    edited.replace(edited.find("configuration: 1,"), 17, "configuration: 3,");
    for (int i = 0; i < 40; ++i)
        replaceText(path, i % 2 ? original : edited);
    replaceText(path, edited);
    stop = true;
    r1.join();
    r2.join();
    s.join();

    EXPECT_EQ(wrongSizes, 0);
    EXPECT_NE(controller->getDiskVectorCount(), startCount);
    EXPECT_EQ(controller->getAllPhysicalDisks()[3].getConfiguration(), PD_CONFIG_SPARE);
}

} // namespace
