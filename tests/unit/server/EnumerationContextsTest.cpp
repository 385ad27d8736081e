#include "EnumerationContexts.h"
#include "CimOperationError.h"

#include <gtest/gtest.h>

using namespace Cimom;

// The context table on a clock the test moves: batches, ownership, the
// per-client limit and expiry.
namespace {

using Kind = EnumerationContexts::Kind;

// "<A0/><A1/>..." with one span per element.
EnumerationContexts::Results objects(int count, Kind kind = Kind::instances) {
    EnumerationContexts::Results results;
    results.kind = kind;
    for (int i = 0; i < count; ++i) {
        std::size_t begin = results.text.size();
        results.text += "<A" + std::to_string(i) + "/>";
        results.objects.push_back({begin, results.text.size()});
    }
    return results;
}

std::string range(int from, int to) {
    std::string text;
    for (int i = from; i < to; ++i)
        text += "<A" + std::to_string(i) + "/>";
    return text;
}

int errorOf(std::function<void()> const& call) {
    try {
        call();
    } catch (CimOperationError const& e) {
        return e.code();
    }
    return 0;
}

class Contexts : public ::testing::Test {
protected:
    EnumerationContexts::Clock::time_point now{};
    EnumerationContexts table{2, [this] { return now; }};
    EnumerationContexts::Owner const alice{"10.0.0.1", "root/mwq"};
    std::chrono::seconds const minute{60};
};

} // namespace

TEST_F(Contexts, BatchesComeInOrderAndTheEndClosesTheContext) {
    auto first = table.open(alice, objects(1000), minute, 3);
    EXPECT_EQ(first.xml, range(0, 3));
    ASSERT_FALSE(first.endOfSequence());
    EXPECT_EQ(table.remaining(alice, first.context), 997u);
    // Past the half, the pulled front is dropped; later batches must not shift.
    int at = 3;
    for (std::uint32_t size : {0u, 600u, 1u, 250u}) {
        auto batch = table.pull(alice, first.context, Kind::instances, size);
        EXPECT_EQ(batch.xml, range(at, at + static_cast<int>(size)));
        at += static_cast<int>(size);
        EXPECT_EQ(batch.context, first.context);
    }
    auto last = table.pull(alice, first.context, Kind::instances, 1000);
    EXPECT_EQ(last.xml, range(at, 1000));
    EXPECT_TRUE(last.endOfSequence());
    EXPECT_EQ(table.openCount(), 0u);
    EXPECT_EQ(errorOf([&] { table.pull(alice, first.context, Kind::instances, 1); }),
              CimOperationError::invalidEnumerationContext);

    // What fits the first answer is never kept.
    EXPECT_TRUE(table.open(alice, objects(3), minute, 3).endOfSequence());
    EXPECT_TRUE(table.open(alice, objects(0), minute, 0).endOfSequence());
    EXPECT_EQ(table.openCount(), 0u);
}

TEST_F(Contexts, OnlyItsOwnerInItsNamespaceWithItsKindReachesAContext) {
    auto opened = table.open(alice, objects(5, Kind::paths), minute, 1);
    EnumerationContexts::Owner const bob{"10.0.0.2", "root/mwq"};
    EnumerationContexts::Owner const aliceElsewhere{"10.0.0.1", "root/cimv2"};
    for (auto* owner : {&bob, &aliceElsewhere})
        EXPECT_EQ(errorOf([&] { table.pull(*owner, opened.context, Kind::paths, 1); }),
                  CimOperationError::invalidEnumerationContext);
    EXPECT_EQ(errorOf([&] { table.close(bob, opened.context); }),
              CimOperationError::invalidEnumerationContext);
    EXPECT_EQ(errorOf([&] { table.pull(alice, opened.context, Kind::instances, 1); }),
              CimOperationError::invalidEnumerationContext);
    // None of that disturbed it.
    EXPECT_EQ(table.pull(alice, opened.context, Kind::paths, 9).xml, range(1, 5));
}

TEST_F(Contexts, EachClientHasItsShare) {
    EnumerationContexts::Owner const bob{"10.0.0.2", "root/mwq"};
    auto a1 = table.open(alice, objects(5), minute, 1);
    table.open(alice, objects(5), minute, 1);
    EXPECT_EQ(errorOf([&] { table.open(alice, objects(5), minute, 1); }),
              CimOperationError::serverLimitsExceeded);
    EXPECT_FALSE(table.open(bob, objects(5), minute, 1).endOfSequence());
    table.close(alice, a1.context);
    EXPECT_EQ(errorOf([&] { table.open(alice, objects(5), minute, 1); }), 0);
}

TEST_F(Contexts, UseKeepsAContextAliveAndIdlenessExpiresIt) {
    auto opened = table.open(alice, objects(5), minute, 1);
    now += std::chrono::seconds(50);
    table.pull(alice, opened.context, Kind::instances, 1);
    now += std::chrono::seconds(50);
    EXPECT_EQ(table.remaining(alice, opened.context), 3u);
    now += std::chrono::seconds(61);
    try {
        table.pull(alice, opened.context, Kind::instances, 1);
        FAIL() << "an expired context answered";
    } catch (CimOperationError const& e) {
        EXPECT_EQ(e.code(), CimOperationError::invalidEnumerationContext);
        EXPECT_NE(std::string(e.what()).find("expired"), std::string::npos) << e.what();
    }
    // An expired context no longer counts against the client's share.
    table.open(alice, objects(5), minute, 1);
    table.open(alice, objects(5), minute, 1);
    EXPECT_EQ(table.openCount(), 2u);
}
