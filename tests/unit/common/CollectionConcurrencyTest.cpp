#include "CmpiManagedInstanceCollection.h"
#include "ResultSinks.h"
#include "TestAssociation.h"
#include "TestInstance.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>
#include <vector>

using CmpiCpp::CmpiContext;
using CmpiCpp::CmpiObjectPath;

// Faults caught (under the thread sanitizer above all): a lookup, an
// enumeration or an association walk racing the writer's index updates.
// Readers enumerate, look up by path and by index and walk associations
// while a writer keeps adding and deleting instances with associations.
TEST(CollectionConcurrency, ReadersBesideWriter) {
    Logger logger("test");
    QLN::CmpiManagedInstanceCollection collection(logger);
    auto* system = new TestInstance("QLN_System", "s");
    collection.createInstance(system);
    for (int i = 0; i < 20; ++i) {
        auto* disk = new TestInstance("QLN_Disk", "fixed" + std::to_string(i));
        collection.createInstance(disk);
        collection.createInstance(
            new TestAssociation("QLN_SystemDisk", "GroupComponent", system, "PartComponent", disk));
    }

    std::atomic<bool> done{false};
    std::atomic<long> reads{0};
    std::atomic<bool> lostFixed{false};
    auto reader = [&] {
        CmpiContext context;
        while (!done.load()) {
            PathSink names;
            collection.enumInstanceNames(names, context, CmpiObjectPath("root/mwq", "QLN_Disk"));
            if (names.paths.size() < 20) {
                lostFixed = true;
            }
            InstanceSink rows;
            collection.associators(rows, context, system->getPath(), {}, {}, {}, {}, nullptr);
            if (collection.getManagedInstance(TestInstance::pathOf("QLN_Disk", "fixed7")) ==
                nullptr) {
                lostFixed = true;
            }
            unsigned int size = collection.size();
            if (size > 0) {
                // The index may be past the end by now; null is the allowed answer.
                collection.getManagedInstance(size - 1);
            }
            collection.getManagedInstance(TestInstance::pathOf("QLN_Disk", "moving3"));
            ++reads;
            // Readers of a shared mutex may starve the writer; real requests
            // come with gaps between them.
            std::this_thread::yield();
        }
    };

    std::vector<std::thread> readers;
    for (int i = 0; i < 3; ++i) {
        readers.emplace_back(reader);
    }
    // Runs until the readers have really overlapped with it.
    for (int round = 0; round < 100 || reads.load() < 50; ++round) {
        std::vector<CmpiObjectPath> made;
        for (int i = 0; i < 5; ++i) {
            auto* disk = new TestInstance("QLN_Disk", "moving" + std::to_string(i));
            collection.createInstance(disk);
            auto* link = new TestAssociation("QLN_SystemDisk", "GroupComponent", system,
                                             "PartComponent", disk);
            collection.createInstance(link);
            made.push_back(link->getPath());
            made.push_back(disk->getPath());
        }
        // Associations go before their ends, as the worker does it.
        for (auto const& path : made) {
            collection.deleteInstance(path);
        }
        if (round % 25 == 0) {
            collection.cleanup();
        }
    }
    done = true;
    for (auto& each : readers) {
        each.join();
    }
    EXPECT_FALSE(lostFixed.load());
    EXPECT_GT(reads.load(), 0);
    EXPECT_EQ(collection.size(), 41u);
}
