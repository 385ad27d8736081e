// The provider family's lifetime and the part of the function tables that
// needs no object: reference counting through the cleanup entries, the
// mapping of exceptions to statuses, and the indication switch.
#include "TestProvider.h"

#include <gtest/gtest.h>

#include <atomic>
#include <stdexcept>
#include <thread>
#include <vector>

using namespace CmpiCpp;

namespace {

struct Life {
    bool destroyed = false;
    int cleanups = 0;
};

} // namespace

// Catches: a provider deleted while a table still refers to it, never
// deleted (its destructor never runs at unload), or cleaned up more than once.
TEST(CmpiProviderLife, LastTableCleanupDeletesTheProviderOnce) {
    Life life;
    auto* p = new TestProvider(nullptr, &life.destroyed, &life.cleanups);
    // As the four entry points do.
    for (int i = 0; i < 4; ++i)
        p->incRefcount();
    ASSERT_EQ(p->getRefcount(), 4u);
    CMPIInstanceMI* imi = p->getInstanceMI();
    CMPIAssociationMI* ami = p->getAssociationMI();
    CMPIMethodMI* mmi = p->getMethodMI();
    CMPIIndicationMI* nmi = p->getIndicationMI();
    EXPECT_EQ(imi, p->getInstanceMI());

    EXPECT_EQ(imi->ft->cleanup(imi, nullptr, 0).rc, CMPI_RC_OK);
    EXPECT_EQ(ami->ft->cleanup(ami, nullptr, 0).rc, CMPI_RC_OK);
    EXPECT_EQ(mmi->ft->cleanup(mmi, nullptr, 0).rc, CMPI_RC_OK);
    EXPECT_FALSE(life.destroyed);
    EXPECT_EQ(life.cleanups, 0);
    EXPECT_EQ(p->getRefcount(), 1u);

    EXPECT_EQ(nmi->ft->cleanup(nmi, nullptr, 1).rc, CMPI_RC_OK);
    EXPECT_TRUE(life.destroyed);
    EXPECT_EQ(life.cleanups, 1);
}

// Catches: a throwing cleanup that leaks the provider or lets the exception
// reach the object manager.
TEST(CmpiProviderLife, ThrowingCleanupStillDeletesAndReportsStatus) {
    Life life;
    auto* p = new TestProvider(nullptr, &life.destroyed, &life.cleanups);
    p->incRefcount();
    p->before = [] { throw std::runtime_error("thread would not stop"); };
    CMPIMethodMI* mmi = p->getMethodMI();
    CMPIStatus st = mmi->ft->cleanup(mmi, nullptr, 1);
    EXPECT_EQ(st.rc, CMPI_RC_ERR_FAILED);
    EXPECT_TRUE(life.destroyed);
}

// Catches: a count that wraps below zero on an unmatched release, which would
// keep a provider alive forever or delete it a second time.
TEST(CmpiProviderLife, CountNeverGoesBelowZero) {
    Life life;
    TestProvider p(nullptr, &life.destroyed, &life.cleanups);
    EXPECT_EQ(p.decRefcount(), 0u);
    EXPECT_EQ(p.incRefcount(), 1u);
    EXPECT_EQ(p.incRefcount(), 2u);
    EXPECT_EQ(p.decRefcount(), 1u);
    EXPECT_EQ(p.decRefcount(), 0u);
    // Already at zero: a further release must neither clean up nor delete
    // (this object is on the stack, so a delete would crash the test).
    EXPECT_FALSE(CmpiProvider::releaseReference(&p, CmpiContext(), false));
    EXPECT_EQ(p.getRefcount(), 0u);
    EXPECT_EQ(life.cleanups, 0);
}

// Catches: an exception crossing into the object manager, or a failure
// reported as success.
TEST(CmpiProviderLife, ExceptionsBecomeStatuses) {
    Life life;
    TestProvider p(nullptr, &life.destroyed, &life.cleanups);
    CMPIIndicationMI* mi = p.getIndicationMI();

    EXPECT_EQ(mi->ft->enableIndications(mi, nullptr).rc, CMPI_RC_OK);
    EXPECT_TRUE(p.indicationsOn);

    p.before = [] { throw CmpiStatus(CMPI_RC_ERR_ACCESS_DENIED, "not you"); };
    EXPECT_EQ(mi->ft->disableIndications(mi, nullptr).rc, CMPI_RC_ERR_ACCESS_DENIED);
    p.before = [] { throw std::runtime_error("broken"); };
    EXPECT_EQ(mi->ft->disableIndications(mi, nullptr).rc, CMPI_RC_ERR_FAILED);
    p.before = [] { throw 42; };
    EXPECT_EQ(mi->ft->disableIndications(mi, nullptr).rc, CMPI_RC_ERR_FAILED);
    EXPECT_TRUE(p.indicationsOn); // every one of them threw before the switch

    // A table without a provider behind it answers, it does not crash.
    CMPIIndicationMI orphan{nullptr, mi->ft};
    EXPECT_EQ(mi->ft->enableIndications(&orphan, nullptr).rc, CMPI_RC_ERR_INVALID_HANDLE);
}

// Catches: filter arguments lost or swapped on the way to the virtual
// operations, and the activation flags read wrongly.
TEST(CmpiProviderLife, FilterOperationsReceiveTheirArguments) {
    Life life;
    TestProvider p(nullptr, &life.destroyed, &life.cleanups);
    CMPIIndicationMI* mi = p.getIndicationMI();
    EXPECT_EQ(
        mi->ft->authorizeFilter(mi, nullptr, nullptr, "QLN_VeldraIndication", nullptr, "owner1").rc,
        CMPI_RC_OK);
    EXPECT_EQ(p.lastNames, (std::vector<std::string>{"QLN_VeldraIndication", "owner1"}));
    EXPECT_TRUE(p.lastPath.empty());
    EXPECT_EQ(mi->ft->activateFilter(mi, nullptr, nullptr, "QLN_X", nullptr, 1).rc, CMPI_RC_OK);
    EXPECT_TRUE(p.lastFlag);
    EXPECT_EQ(mi->ft->deActivateFilter(mi, nullptr, nullptr, "QLN_X", nullptr, 0).rc, CMPI_RC_OK);
    EXPECT_FALSE(p.lastFlag);
    EXPECT_EQ(mi->ft->mustPoll(mi, nullptr, nullptr, nullptr, nullptr).rc, CMPI_RC_OK);
    EXPECT_EQ(p.lastNames, (std::vector<std::string>{""}));
    EXPECT_EQ(p.calls, (std::vector<std::string>{"authorizeFilter", "activateFilter",
                                                 "deActivateFilter", "mustPoll"}));
    EXPECT_EQ(mi->ft->ftVersion, CMPICurrentVersion);
}

// Catches: a count that is not atomic, so that cleanups arriving on several
// threads at once delete the provider twice or never.
TEST(CmpiProviderLife, ConcurrentCleanupsDeleteExactlyOnce) {
    for (int round = 0; round < 50; ++round) {
        Life life;
        auto* p = new TestProvider(nullptr, &life.destroyed, &life.cleanups);
        constexpr int kThreads = 8;
        for (int i = 0; i < kThreads; ++i)
            p->incRefcount();
        CMPIMethodMI* mi = p->getMethodMI();
        std::atomic<int> failures{0};
        std::vector<std::thread> threads;
        for (int i = 0; i < kThreads; ++i)
            threads.emplace_back([mi, &failures] {
                if (mi->ft->cleanup(mi, nullptr, 1).rc != CMPI_RC_OK)
                    ++failures;
            });
        for (auto& t : threads)
            t.join();
        EXPECT_EQ(failures.load(), 0);
        EXPECT_TRUE(life.destroyed);
        EXPECT_EQ(life.cleanups, 1);
    }
}
