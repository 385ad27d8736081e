// Provider hosting end to end below the server: the C test provider is
// loaded through its registration file and every ProviderManager operation
// goes through the real CMPI tables.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <thread>

#include "CimError.h"
#include "MemoryIndicationSink.h"
#include "ProviderManager.h"
#include "RegistrationFile.h"

using namespace Cimom;

namespace {

std::string const registrationFile =
    std::string(VELDRA_SOURCE_DIR) +
    "/tests/unit/broker/testprovider/TestProvider.registration.yaml";

std::string readFile(std::string const& path) {
    std::ifstream in(path);
    std::stringstream s;
    s << in.rdbuf();
    return s.str();
}

CimObjectPath diskPath(std::string const& name) {
    CimObjectPath p("root/test", "Test_Disk");
    p.addKey("Name", CimValue::string(name));
    return p;
}

CimObjectPath poolPath() {
    CimObjectPath p("root/test", "Test_Pool");
    p.addKey("InstanceID", CimValue::string("p1"));
    return p;
}

class ProviderManagerTest : public ::testing::Test {
protected:
    void SetUp() override {
        _trace = std::filesystem::temp_directory_path() /
                 ("veldra-trace-" + std::to_string(::getpid()) + "-" +
                  ::testing::UnitTest::GetInstance()->current_test_info()->name());
        std::filesystem::remove(_trace);
        ::setenv("VELDRA_TEST_PROVIDER_TRACE", _trace.c_str(), 1);
        _sink = std::make_shared<MemoryIndicationSink>();
        ProviderManager::Options opts;
        opts.libraryDirs = {VELDRA_LIB_DIR};
        opts.indicationSink = _sink;
        opts.log = [](int, std::string const&) {};
        _pm = std::make_unique<ProviderManager>(opts);
        _pm->loadRegistrationFile(registrationFile);
    }
    void TearDown() override {
        _pm.reset();
        std::filesystem::remove(_trace);
    }
    std::string trace() const { return readFile(_trace); }

    std::filesystem::path _trace;
    std::shared_ptr<MemoryIndicationSink> _sink;
    std::unique_ptr<ProviderManager> _pm;
};

CMPIrc codeOf(std::function<void()> const& f, std::string* message = nullptr) {
    try {
        f();
    } catch (CimError const& e) {
        if (message) {
            *message = e.description();
        }
        return e.code();
    }
    return CMPI_RC_OK;
}

} // namespace

TEST_F(ProviderManagerTest, LoadsThroughTheGenericEntryPoints) {
    EXPECT_EQ(_pm->providerNames(), std::vector<std::string>{"TestProvider"});
    EXPECT_TRUE(_pm->hasInstanceProvider("ROOT/TEST", "test_disk"));
    EXPECT_TRUE(_pm->hasMethodProvider("root/test", "Test_Disk"));
    EXPECT_TRUE(_pm->hasAssociationProvider("root/test", "Test_PoolDisk"));
    EXPECT_TRUE(_pm->hasAssociationProvider("root/test", ""));
    EXPECT_FALSE(_pm->hasInstanceProvider("root/other", "Test_Disk"));
    std::string const t = trace();
    for (char const* line :
         {"create instance as TestProvider", "create association as TestProvider",
          "create method as TestProvider", "create indication as TestProvider"}) {
        EXPECT_NE(t.find(line), std::string::npos) << line;
    }
}

TEST_F(ProviderManagerTest, EnumeratesAndGetsInstancesWithTypesAndOrder) {
    auto const names = _pm->enumerateInstanceNames(CimObjectPath("root/test", "Test_Disk"));
    ASSERT_EQ(names.size(), 3u);
    EXPECT_EQ(names[0], diskPath("d1"));
    EXPECT_EQ(names[2].nameSpace(), "root/test");

    CimInstance const d2 = _pm->getInstance(diskPath("d2"), nullptr);
    ASSERT_EQ(d2.properties().size(), 6u);
    char const* order[] = {"Name", "Size", "Slot", "Tags", "Created", "Healthy"};
    for (std::size_t i = 0; i < 6; ++i) {
        EXPECT_EQ(d2.properties()[i].name, order[i]);
    }
    EXPECT_EQ(d2.property("Size")->type(), CMPI_uint64);
    EXPECT_EQ(d2.property("Size")->asUnsigned(), 2000u);
    EXPECT_EQ(d2.property("Slot")->type(), CMPI_uint16);
    CimValue const& tags = *d2.property("Tags");
    ASSERT_EQ(tags.type(), CMPI_stringA);
    ASSERT_EQ(tags.elements().size(), 2u);
    EXPECT_EQ(tags.elements()[1].asString(), "d2");
    EXPECT_EQ(d2.property("Created")->asString(), "20260102000000.000000+000");
    EXPECT_TRUE(d2.property("Healthy")->asBoolean());
    EXPECT_EQ(d2.path(), diskPath("d2"));

    std::vector<std::string> const list{"size"};
    auto const filtered = _pm->enumerateInstances(CimObjectPath("root/test", "Test_Disk"), &list);
    ASSERT_EQ(filtered.size(), 3u);
    ASSERT_EQ(filtered[0].properties().size(), 1u);
    EXPECT_EQ(filtered[0].properties()[0].name, "Size");
    EXPECT_EQ(filtered[0].path(), diskPath("d1"));
}

TEST_F(ProviderManagerTest, ProviderErrorsArriveWithCodeAndMessage) {
    std::string msg;
    EXPECT_EQ(codeOf([&] { _pm->getInstance(diskPath("nope"), nullptr); }, &msg),
              CMPI_RC_ERR_NOT_FOUND);
    EXPECT_EQ(msg, "no such disk");
    EXPECT_EQ(codeOf([&] {
                  _pm->enumerateInstances(CimObjectPath("root/test", "Test_Nothing"), nullptr);
              }),
              CMPI_RC_ERR_INVALID_CLASS);
    EXPECT_EQ(codeOf([&] { _pm->invokeMethod(diskPath("d1"), "Explode", {}); }, &msg),
              CMPI_RC_ERR_METHOD_NOT_FOUND);
    EXPECT_EQ(msg, "TestProvider has no such method");
    EXPECT_EQ(codeOf([&] { _pm->invokeMethod(diskPath("d1"), "Identify", {}); }),
              CMPI_RC_ERR_INVALID_PARAMETER);
}

TEST_F(ProviderManagerTest, AssociationsHonourClassRoleAndResultFilters) {
    auto const pools = _pm->associators(diskPath("d1"), "", "", "", "", nullptr);
    ASSERT_EQ(pools.size(), 1u);
    EXPECT_EQ(pools[0].path(), poolPath());
    EXPECT_EQ(pools[0].property("ElementName")->asString(), "Pool One");

    EXPECT_EQ(
        _pm->associatorNames(poolPath(), "Test_PoolDisk", "Test_Disk", "Antecedent", "Dependent")
            .size(),
        3u);
    EXPECT_TRUE(_pm->associatorNames(poolPath(), "", "", "Dependent", "").empty());
    EXPECT_TRUE(_pm->associatorNames(diskPath("d1"), "", "Test_Disk", "", "").empty());
    EXPECT_TRUE(_pm->associatorNames(diskPath("d1"), "Test_Other", "", "", "").empty());

    auto const refs = _pm->references(diskPath("d3"), "Test_PoolDisk", "Dependent", nullptr);
    ASSERT_EQ(refs.size(), 1u);
    EXPECT_EQ(refs[0].path().key("Dependent")->asReference(), diskPath("d3"));
    EXPECT_EQ(refs[0].path().key("Antecedent")->asReference(), poolPath());
    EXPECT_EQ(_pm->referenceNames(poolPath(), "", "").size(), 3u);
    EXPECT_TRUE(_pm->referenceNames(poolPath(), "", "Dependent").empty());
}

TEST_F(ProviderManagerTest, MethodsReturnValueOutArgsAndUpcalls) {
    MethodResult r =
        _pm->invokeMethod(diskPath("d1"), "Identify", {{"Duration", CimValue::uint32(7)}});
    EXPECT_EQ(r.returnValue, CimValue::uint32(7));
    ASSERT_EQ(r.outArgs.size(), 1u);
    EXPECT_EQ(r.outArgs[0].first, "Echo");
    EXPECT_EQ(r.outArgs[0].second, CimValue::uint32(7));
    EXPECT_NE(trace().find("Identify 7"), std::string::npos);

    // The provider counts disks by calling back into the broker mid-request.
    r = _pm->invokeMethod(diskPath("d1"), "CountDisks", {});
    EXPECT_EQ(r.returnValue, CimValue::uint32(3));
    r = _pm->invokeMethod(diskPath("d2"), "RelayIdentify", {{"Duration", CimValue::uint32(4)}});
    EXPECT_EQ(r.returnValue, CimValue::uint32(5));
    std::string msg;
    EXPECT_EQ(codeOf([&] { _pm->invokeMethod(diskPath("d2"), "RelayIdentify", {}); }, &msg),
              CMPI_RC_ERR_INVALID_PARAMETER);
    EXPECT_EQ(msg, "Identify needs a uint32 Duration");
    // Nothing made for those requests outlives them.
    EXPECT_EQ(_pm->broker().registry().liveObjects(), 0u);
    EXPECT_EQ(_pm->broker().registry().liveBlocks(), 0u);
}

TEST_F(ProviderManagerTest, IndicationsFromAProviderThreadReachTheSink) {
    MethodResult const r =
        _pm->invokeMethod(diskPath("d1"), "FireIndication", {{"Count", CimValue::uint32(3)}});
    EXPECT_EQ(r.returnValue, CimValue::uint32(0));
    auto const got = _sink->delivered();
    ASSERT_EQ(got.size(), 3u);
    EXPECT_EQ(got[0].nameSpace, "root/test");
    EXPECT_EQ(got[0].indication.className(), "Test_Alert");
    EXPECT_EQ(got[2].indication.property("Sequence")->asUnsigned(), 3u);
    EXPECT_EQ(got[2].indication.property("Message")->asString(), "test alert");
    EXPECT_EQ(_pm->broker().registry().liveObjects(), 0u);

    _pm->activateFilter("root/test", "Test_Alert", true);
    _pm->enableIndications();
    _pm->disableIndications();
    _pm->deActivateFilter("root/test", "Test_Alert", true);
    std::string const t = trace();
    EXPECT_LT(t.find("activateFilter Test_Alert first"), t.find("enableIndications"));
    EXPECT_LT(t.find("disableIndications"), t.find("deActivateFilter Test_Alert last"));
}

TEST_F(ProviderManagerTest, ShutdownCleansUpEveryMiThenUnloads) {
    _pm->shutdown();
    std::string const t = trace();
    auto const unloaded = t.find("unloaded");
    ASSERT_NE(unloaded, std::string::npos);
    for (char const* kind : {"cleanup instance\n", "cleanup association\n", "cleanup method\n",
                             "cleanup indication\n"}) {
        auto const at = t.find(kind);
        ASSERT_NE(at, std::string::npos) << kind;
        EXPECT_LT(at, unloaded) << kind;
    }
    EXPECT_EQ(codeOf([&] { _pm->enumerateInstanceNames(CimObjectPath("root/test", "Test_Disk")); }),
              CMPI_RC_ERR_FAILED);
    _pm->shutdown(); // twice is harmless
}

TEST_F(ProviderManagerTest, ConcurrentRequestsShareTheProvider) {
    std::vector<std::thread> threads;
    std::atomic<int> failures{0};
    for (int t = 0; t < 4; ++t) {
        threads.emplace_back([&, t] {
            for (int i = 0; i < 50; ++i) {
                try {
                    CimInstance const inst =
                        _pm->getInstance(diskPath(t % 2 ? "d1" : "d3"), nullptr);
                    auto const assoc = _pm->associators(diskPath("d2"), "", "", "", "", nullptr);
                    auto const r = _pm->invokeMethod(diskPath("d1"), "CountDisks", {});
                    if (inst.properties().size() != 6 || assoc.size() != 1 ||
                        r.returnValue != CimValue::uint32(3)) {
                        ++failures;
                    }
                } catch (std::exception const&) {
                    ++failures;
                }
            }
        });
    }
    for (auto& th : threads) {
        th.join();
    }
    EXPECT_EQ(failures.load(), 0);
    EXPECT_EQ(_pm->broker().registry().liveObjects(), 0u);
}

TEST_F(ProviderManagerTest, ShutdownDuringRequestsRefusesNewOnesAndWaitsForOthers) {
    std::atomic<int> served{0};
    std::vector<std::thread> threads;
    std::vector<CMPIrc> endedWith(4, CMPI_RC_OK);
    for (int t = 0; t < 4; ++t) {
        threads.emplace_back([&, t] {
            while (true) {
                try {
                    auto const r = _pm->invokeMethod(diskPath("d1"), "CountDisks", {});
                    if (r.returnValue == CimValue::uint32(3)) {
                        ++served;
                    }
                } catch (CimError const& e) {
                    endedWith[t] = e.code();
                    return;
                }
            }
        });
    }
    while (served.load() < 20) {
        std::this_thread::yield();
    }
    _pm->shutdown();
    for (auto& th : threads) {
        th.join();
    }
    for (CMPIrc rc : endedWith) {
        EXPECT_EQ(rc, CMPI_RC_ERR_FAILED);
    }
    EXPECT_NE(trace().find("unloaded"), std::string::npos);
}

namespace {

std::string loadError(std::string const& yaml,
                      std::vector<std::string> const& dirs = {VELDRA_LIB_DIR}) {
    auto const file = std::filesystem::temp_directory_path() /
                      ("veldra-reg-" + std::to_string(::getpid()) + ".yaml");
    {
        std::ofstream out(file);
        out << yaml;
    }
    ProviderManager::Options opts;
    opts.libraryDirs = dirs;
    opts.log = [](int, std::string const&) {};
    ProviderManager pm(opts);
    std::string error;
    try {
        pm.loadRegistrationFile(file.string());
    } catch (CimError const& e) {
        EXPECT_EQ(e.code(), CMPI_RC_ERR_FAILED);
        error = e.description();
    }
    std::filesystem::remove(file);
    EXPECT_TRUE(pm.providerNames().empty()) << "a failed provider stayed loaded";
    return error;
}

std::string provider(std::string const& name, std::string const& library,
                     std::string const& kinds = "[instance, method]") {
    return "providers:\n  - name: " + name + "\n    library: " + library +
           "\n    namespaces: [root/test]\n    classes: [Test_Disk]\n    kinds: " + kinds + "\n";
}

} // namespace

TEST(ProviderLoading, BadLibrariesAndProvidersAreRefusedClearly) {
    std::string e = loadError(provider("TestProvider", "no_such_library"));
    EXPECT_NE(e.find("libno_such_library.so not found"), std::string::npos) << e;
    EXPECT_NE(e.find(VELDRA_LIB_DIR), std::string::npos) << e;

    e = loadError(provider("TestProvider", "veldra_no_entry_provider"));
    EXPECT_NE(e.find("has no entry point _Generic_Create_InstanceMI"), std::string::npos) << e;

    e = loadError(provider("TestProviderNull", "veldra_test_provider"));
    EXPECT_NE(e.find("_Generic_Create_InstanceMI returned no function table"), std::string::npos)
        << e;

    e = loadError(provider("TestProviderBadStatus", "veldra_test_provider"));
    EXPECT_NE(e.find("failed with status 1: TestProviderBadStatus refuses to start"),
              std::string::npos)
        << e;
}

TEST(ProviderLoading, MalformedRegistrationFilesNameTheProblem) {
    struct {
        std::string yaml;
        char const* expected;
    } const cases[] = {
        {"providers: [", "is not valid YAML"},
        {"- just a list", "must be a mapping"},
        {"providers: []", "'providers' must be a non-empty list"},
        {"providers:\n  - name: X\n", "'library' must be a non-empty text"},
        {provider("X", "veldra_test_provider", "[instance, teleport]"), "unknown kind 'teleport'"},
        {provider("X", "veldra_test_provider") + "    colour: blue\n", "unknown field 'colour'"},
        {provider("X", "a") + provider("x", "b").substr(std::string("providers:\n").size()),
         "registered twice"},
    };
    for (auto const& c : cases) {
        std::string error;
        try {
            RegistrationFile::parse(c.yaml, "test.yaml", "/tmp");
        } catch (CimError const& e) {
            error = e.description();
        }
        EXPECT_NE(error.find(c.expected), std::string::npos) << c.yaml << " -> " << error;
        EXPECT_NE(error.find("test.yaml"), std::string::npos) << error;
    }
    auto const contents = RegistrationFile::parse(
        "libraryPath: [lib, /abs]\n" + provider("X", "y").substr(0), "t.yaml", "/base");
    EXPECT_EQ(contents.libraryDirs, (std::vector<std::string>{"/base/lib", "/abs"}));
    ASSERT_EQ(contents.providers.size(), 1u);
    EXPECT_TRUE(contents.providers[0].has(ProviderRegistration::Kind::Method));
    EXPECT_FALSE(contents.providers[0].has(ProviderRegistration::Kind::Association));
}
