// Subscriptions below the HTTP level: the query subset, the state file, the
// per-listener queue with its retries, and which subscription gets what.
#include "IndicationDispatcher.h"
#include "ListenerQueue.h"
#include "SubscriptionStore.h"
#include "WqlFilter.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <mutex>
#include <thread>
#include <unistd.h>

using namespace Cimom;

namespace {

using namespace std::chrono_literals;

CimInstance alert(std::string const& cls, int severity, std::string const& text = "disk failed") {
    CimInstance instance(CimObjectPath("root/mwq", cls));
    instance.setProperty("PerceivedSeverity",
                         CimValue::uint16(static_cast<std::uint16_t>(severity)));
    instance.setProperty("Description", CimValue::string(text));
    instance.setProperty("Urgent", CimValue::boolean(severity > 4));
    return instance;
}

struct Folder {
    std::filesystem::path path =
        std::filesystem::temp_directory_path() /
        ("subs-" + std::to_string(getpid()) + "-" + std::to_string(serial++));
    Folder() { std::filesystem::create_directories(path); }
    ~Folder() { std::filesystem::remove_all(path); }
    std::string file(char const* name) const { return (path / name).string(); }
    static inline std::atomic<int> serial{0};
};

// Waits for a condition the queue's thread brings about.
template <class Test> bool eventually(Test test) {
    for (int i = 0; i < 400; ++i) {
        if (test())
            return true;
        std::this_thread::sleep_for(5ms);
    }
    return test();
}

SubscriptionStore::Filter filter(std::string const& name, std::string const& query,
                                 std::string const& ns = "") {
    return {name, "", query, "WQL", ns, WqlFilter::parse(query)};
}

} // namespace

TEST(WqlFilter, TheSubsetSubscribersUse) {
    struct Row {
        char const* query;
        int severity;
        bool matches;
    };
    Row const rows[] = {
        {"SELECT * FROM CIM_AlertIndication", 2, true},
        {"select * from QLN_VeldraIndication where PerceivedSeverity = 6", 6, true},
        {"SELECT * FROM X WHERE PerceivedSeverity = 6", 2, false},
        {"SELECT * FROM X WHERE PerceivedSeverity <> 6", 2, true},
        {"SELECT * FROM X WHERE PerceivedSeverity = 06", 6, true},
        {"SELECT * FROM X WHERE Description = 'disk failed'", 2, true},
        {"SELECT * FROM X WHERE Description = \"disk failed\"", 2, true},
        {"SELECT * FROM X WHERE Urgent = true", 6, true},
        {"SELECT * FROM X WHERE Missing = 1", 6, false},
        {"SELECT * FROM X WHERE Missing <> 1", 6, false},
    };
    for (Row const& row : rows) {
        SCOPED_TRACE(row.query);
        EXPECT_EQ(WqlFilter::parse(row.query).matches(alert("X", row.severity)), row.matches);
    }
    EXPECT_EQ(WqlFilter::parse("SELECT * FROM QLN_VeldraIndication").className(),
              "QLN_VeldraIndication");
    EXPECT_EQ(WqlFilter::parse("SELECT * FROM X WHERE Description = 'it''s'")
                  .matches(alert("X", 2, "it's")),
              true);
    for (char const* bad :
         {"", "SELECT Name FROM X", "SELECT * FROM", "SELECT * FROM X WHERE A > 3",
          "SELECT * FROM X WHERE A = 1 AND B = 2", "DELETE FROM X"})
        EXPECT_THROW(WqlFilter::parse(bad), std::invalid_argument) << bad;
}

TEST(SubscriptionStore, KeepsItsStateAcrossRestartsAndRefusesDanglingOrDuplicateObjects) {
    Folder folder;
    std::string const state = folder.file("state.json");
    {
        SubscriptionStore store(state);
        store.addFilter(filter("f", "SELECT * FROM CIM_AlertIndication", "root/mwq"));
        store.addDestination({"d", "", "http://127.0.0.1:1/"});
        store.addSubscription({"f", "d"});
        EXPECT_THROW(store.addFilter(filter("F", "SELECT * FROM X")),
                     std::invalid_argument); // names ignore case
        EXPECT_THROW(store.addSubscription({"f", "nowhere"}), std::invalid_argument);
        EXPECT_THROW(store.addSubscription({"f", "d"}), std::invalid_argument);
        EXPECT_THROW(store.removeFilter("f"), std::invalid_argument); // still subscribed
        EXPECT_FALSE(store.removeDestination("nowhere"));
    }
    SubscriptionStore again(state);
    ASSERT_EQ(again.active().size(), 1u);
    EXPECT_EQ(again.active()[0].filter.sourceNamespace, "root/mwq");
    EXPECT_EQ(again.active()[0].destination.url, "http://127.0.0.1:1/");
    EXPECT_TRUE(again.removeSubscription("F", "D"));
    EXPECT_TRUE(again.removeFilter("f"));
    EXPECT_TRUE(SubscriptionStore(state).subscriptions().empty());
}

TEST(SubscriptionStore, ABrokenStateFileIsSetAsideAndAFailedSaveChangesNothing) {
    Folder folder;
    std::string const state = folder.file("state.json");
    std::ofstream(state) << "{ not json";
    SubscriptionStore store(state);
    EXPECT_TRUE(store.filters().empty());
    EXPECT_TRUE(std::filesystem::exists(state + ".broken"));

    // A state file whose folder is a plain file cannot be written.
    std::ofstream(folder.file("plain")) << "x";
    SubscriptionStore unsaved(folder.file("plain") + "/state.json");
    EXPECT_THROW(unsaved.addFilter(filter("f", "SELECT * FROM X")), std::runtime_error);
    EXPECT_TRUE(unsaved.filters().empty());
}

// Before any listener answers, the provider's thread must not wait; the
// queue keeps the order through retries and gives up after its attempts.
TEST(ListenerQueue, RetriesInOrderGivesUpAfterItsAttemptsAndNeverBlocksTheCaller) {
    std::mutex mutex;
    std::vector<std::string> sent;
    std::atomic<int> failuresLeft{3};
    std::atomic<bool> hold{true};
    ListenerQueue::Settings settings;
    settings.attempts = 4;
    settings.firstPause = 1ms;
    ListenerQueue queue("http://listener/", settings,
                        [&](std::string const&, std::string const& body) -> std::string {
                            while (hold)
                                std::this_thread::sleep_for(1ms);
                            if (failuresLeft-- > 0)
                                return "refused";
                            std::lock_guard lock(mutex);
                            sent.push_back(body);
                            return "";
                        });
    auto start = std::chrono::steady_clock::now();
    for (int i = 1; i <= 3; ++i)
        queue.push(alert("A" + std::to_string(i), 2));
    EXPECT_LT(std::chrono::steady_clock::now() - start, 100ms) << "push waited for the listener";
    hold = false;
    ASSERT_TRUE(eventually([&] { return queue.pending() == 0; }));
    ASSERT_EQ(sent.size(), 3u);
    for (int i = 0; i < 3; ++i)
        EXPECT_NE(sent[i].find("CLASSNAME=\"A" + std::to_string(i + 1) + "\""), std::string::npos)
            << sent[i];
    EXPECT_NE(sent[0].find("<EXPMETHODCALL NAME=\"ExportIndication\"><EXPPARAMVALUE "
                           "NAME=\"NewIndication\"><INSTANCE"),
              std::string::npos);

    // A listener that never answers costs the indication after four attempts, not the queue.
    failuresLeft = 1000;
    queue.push(alert("Lost", 2));
    ASSERT_TRUE(eventually([&] { return queue.pending() == 0; }));
    failuresLeft = 0;
    queue.push(alert("Next", 2));
    ASSERT_TRUE(eventually([&] { return queue.pending() == 0; }));
    std::lock_guard lock(mutex);
    ASSERT_EQ(sent.size(), 4u);
    EXPECT_NE(sent.back().find("CLASSNAME=\"Next\""), std::string::npos);
}

TEST(ListenerQueue, AFullQueueDropsTheOldest) {
    std::atomic<bool> hold{true}, taken{false};
    std::vector<std::string> sent;
    std::mutex mutex;
    ListenerQueue::Settings settings;
    settings.capacity = 2;
    ListenerQueue queue("http://listener/", settings,
                        [&](std::string const&, std::string const& body) -> std::string {
                            taken = true;
                            while (hold)
                                std::this_thread::sleep_for(1ms);
                            std::lock_guard lock(mutex);
                            sent.push_back(body);
                            return "";
                        });
    queue.push(alert("First", 2));
    ASSERT_TRUE(eventually([&] { return taken.load(); })); // First is with the held sender
    for (char const* name : {"B", "C", "D"})
        queue.push(alert(name, 2));
    EXPECT_EQ(queue.pending(), 3u);
    hold = false;
    ASSERT_TRUE(eventually([&] { return queue.pending() == 0; }));
    std::lock_guard lock(mutex);
    ASSERT_EQ(sent.size(), 3u);
    EXPECT_NE(sent[0].find("CLASSNAME=\"First\""), std::string::npos);
    EXPECT_NE(sent[1].find("CLASSNAME=\"C\""), std::string::npos);
    EXPECT_NE(sent[2].find("CLASSNAME=\"D\""), std::string::npos);
}

TEST(IndicationDispatcher, SendsEachIndicationToTheDestinationsWhoseFiltersTakeIt) {
    Folder folder;
    SubscriptionStore store("");
    store.addFilter(filter("all", "SELECT * FROM CIM_AlertIndication"));
    store.addFilter(
        filter("severe", "SELECT * FROM CIM_AlertIndication WHERE PerceivedSeverity = 6"));
    store.addFilter(filter("cimv2", "SELECT * FROM CIM_AlertIndication", "root/cimv2"));
    store.addFilter(filter("also-all", "SELECT * FROM QLN_VeldraIndication"));
    store.addDestination({"a", "", "http://a/"});
    store.addDestination({"b", "", "http://b/"});
    store.addDestination({"c", "", "http://c/"});
    store.addSubscription({"all", "a"});
    store.addSubscription({"also-all", "a"}); // a second way to the same listener
    store.addSubscription({"severe", "b"});
    store.addSubscription({"cimv2", "c"});
    std::mutex mutex;
    std::multiset<std::string> got;
    ListenerQueue::Settings settings;
    IndicationDispatcher dispatcher(
        store,
        [](std::string const&, std::string const& cls, std::string const& base) {
            return base == "CIM_AlertIndication" && cls.rfind("QLN_", 0) == 0;
        },
        settings,
        [&](std::string const& url, std::string const&) -> std::string {
            std::lock_guard lock(mutex);
            got.insert(url);
            return "";
        });
    dispatcher.deliver("root/mwq", alert("QLN_VeldraIndication", 2));
    dispatcher.deliver("root/mwq", alert("QLN_VeldraIndication", 6));
    dispatcher.deliver("root/mwq", alert("Other_Indication", 6));
    ASSERT_TRUE(eventually([&] { return dispatcher.pending() == 0; }));
    std::lock_guard lock(mutex);
    EXPECT_EQ(got.count("http://a/"), 2u);
    EXPECT_EQ(got.count("http://b/"), 1u);
    EXPECT_EQ(got.count("http://c/"), 0u);
}
