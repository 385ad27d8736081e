// The storage group's status consolidation over real array systems on a
// simulated scenario: the reduction (unknown counts as failed), the worst
// status winning, and which log line a change writes.
#include "ModelTestSupport.h"
#include "QLN_VDArraySystem.h"
#include "QLN_VDStorageSpecificCollection.h"

#include <gtest/gtest.h>

#include <memory>

using namespace modeltest;

namespace {

std::string const ns = "root/mwq";

// Controller 1 is fine, 2 degraded, 3 cannot tell its status, 4 failed.
char const* const groupScenario = R"(
controllers:
  - {serialNumber: GOOD, operationalStatus: 1}
  - {serialNumber: SLOW, operationalStatus: 2}
  - {serialNumber: MUTE, fail: [getControllerOperationalStatus]}
  - {serialNumber: DEAD, operationalStatus: 3}
)";

class StorageGroup : public ::testing::Test {
protected:
    StorageGroup() : rig(groupScenario), group(rig.logger, ns) {
        CmpiCpp::CmpiContext context;
        for (unsigned int i = 0; i < rig.controllers.size(); ++i) {
            systems.push_back(std::make_unique<QLN::QLN_VDArraySystem>(rig.logger, ns, i + 1,
                                                                       rig.controllers[i]));
            systems.back()->manageDynamic(false, context);
        }
    }
    // The array systems of the given controller numbers, as the worker hands them over.
    std::vector<QLN::QLN_VDArraySystem*> pick(std::initializer_list<unsigned int> numbers) {
        std::vector<QLN::QLN_VDArraySystem*> out;
        for (unsigned int number : numbers)
            out.push_back(systems.at(number - 1).get());
        return out;
    }
    void pass(std::initializer_list<unsigned int> numbers, bool indications = false) {
        group.manageDynamic(indications, CmpiCpp::CmpiContext(), pick(numbers));
    }
    unsigned short shown() { return firstU16(group.getInstance(), "GroupOperationalStatus"); }
    std::string shownText() { return firstText(group.getInstance(), "GroupStatusDescriptions"); }

    ScenarioRig rig;
    QLN::QLN_VDStorageSpecificCollection group;
    std::vector<std::unique_ptr<QLN::QLN_VDArraySystem>> systems;
};

} // namespace

TEST_F(StorageGroup, ArraySystemsHaveTheStatusesTheScenarioMeans) {
    ASSERT_EQ(systems.size(), 4u);
    EXPECT_EQ(systems[0]->getStatus(), 2);
    EXPECT_EQ(systems[1]->getStatus(), 3);
    EXPECT_EQ(systems[2]->getStatus(), 0);
    EXPECT_EQ(systems[3]->getStatus(), 6);
}

// Catches a change logged when nothing changed, and the first-status flag
// cleared by a pass that found all arrays fine.
TEST_F(StorageGroup, AllFineLogsNoChange) {
    pass({1});
    pass({1}, true);
    EXPECT_EQ(shown(), 2);
    EXPECT_EQ(shownText(), "Storage Arrays are operating properly");
    std::string const log = rig.log();
    EXPECT_EQ(log.find("Controller Operational Status"), std::string::npos);
    EXPECT_NE(log.find("QLNVeldra:QLN_VDStorageSpecificCollection: indications enabled"),
              std::string::npos);
    // The flag is still set: the first change is told as "bad".
    pass({1, 2});
    EXPECT_NE(rig.log().find("Controller Operational Status bad, 3"), std::string::npos);
}

// Catches unknown folded as unknown (the group must count it as failed) and
// a degraded array hiding a failed one.
TEST_F(StorageGroup, UnknownCountsAsFailedAndWorstWins) {
    pass({1, 3});
    EXPECT_EQ(shown(), 6);
    EXPECT_EQ(shownText(),
              "One or more of the Array Controllers have failed, one or more of the Storage "
              "Enclosures have failed, one or more of the logical drives have failed");
    pass({2, 1});
    EXPECT_EQ(shown(), 3);
    EXPECT_NE(shownText().find("are not OK but not failed"), std::string::npos);
    pass({4, 2});
    EXPECT_EQ(shown(), 6);
    pass({2, 4});
    EXPECT_EQ(shown(), 6);
}

// Catches the "bad" line written for every change, or the "change" line for
// the first one even when the first change is towards the better of two
// non-OK values.
TEST_F(StorageGroup, FirstChangeIsBadLaterOnesAreChanges) {
    pass({4}, true);
    pass({2}, true);
    pass({1});
    std::string const log = rig.log();
    EXPECT_NE(log.find("Controller Operational Status bad, 6"), std::string::npos);
    EXPECT_NE(log.find("Send Controller Operational Status bad, 6"), std::string::npos);
    EXPECT_NE(log.find("Controller Operational Status change, Old: 6 New: 3"), std::string::npos);
    EXPECT_NE(log.find("Send Controller Operational Status change, Old: 6 New: 3"),
              std::string::npos);
    EXPECT_NE(log.find("Controller Operational Status change, Old: 3 New: 2"), std::string::npos);
    // Without the flag the line that would announce an indication is not written.
    EXPECT_EQ(log.find("Send Controller Operational Status change, Old: 3 New: 2"),
              std::string::npos);
    EXPECT_EQ(log.find("Controller Operational Status bad, 3"), std::string::npos);
    EXPECT_EQ(shown(), 2);
}
