// Readers of the host view beside passes that rebuild it: every answer is
// whole (each controller with all of its extents, none twice) and no read
// touches a freed instance, which the thread sanitizer would report.
#include "ViewScenario.h"

#include <gtest/gtest.h>

#include <atomic>
#include <set>
#include <thread>

using namespace view_test;

TEST(ViewConcurrency, ReadersNeverSeeAHalfRebuiltView) {
    ViewScenario scenario("minimal.yaml");
    auto provider = startProvider();
    std::size_t const disks = scenario.controller(1)["physicalDisks"].size();
    YAML::Node const spare = scenario.controller(1)["physicalDisks"][3];

    std::atomic<bool> done{false};
    std::atomic<int> reads{0};
    std::atomic<int> wrong{0};
    auto reader = [&] {
        while (!done.load()) {
            auto const extents = enumerate(*provider, "DRSV_VDStorageExtent");
            std::set<std::string> ids;
            for (auto const& row : extents) {
                ids.insert(text(row, "DeviceID"));
            }
            // The disk list has one of two sizes; anything else is a view caught between.
            bool const whole = ids.size() == extents.size() &&
                               (extents.size() == disks || extents.size() == disks - 1);
            if (!whole) {
                ++wrong;
            }
            provider_test::Paths names;
            provider->enumInstanceNames(CmpiCpp::CmpiContext(), viewPath("DRSV_VDStorageVolume"),
                                        names);
            if (names.rows.size() != 1) {
                ++wrong;
            }
            ++reads;
        }
    };
    std::vector<std::thread> readers;
    for (int i = 0; i < 3; ++i) {
        readers.emplace_back(reader);
    }
    // Pull and put back the fourth disk; each pass rebuilds the view.
    for (int round = 0; round < 40; ++round) {
        if (round % 2 == 0) {
            scenario.pullDisk(1, 3);
        } else {
            scenario.controller(1)["physicalDisks"].push_back(spare);
            scenario.write();
        }
        runPass(*provider);
    }
    done = true;
    for (auto& thread : readers) {
        thread.join();
    }
    EXPECT_GT(reads.load(), 0);
    EXPECT_EQ(wrong.load(), 0);
}
