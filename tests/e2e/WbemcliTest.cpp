#include "CimdProcess.h"
#include "PasswordFile.h"

#include <gtest/gtest.h>

#include <chrono>
#include <thread>

#include <csignal>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <sstream>

using namespace Cimom;

// The real client against veldra-cimd hosting the C test provider through
// CMPI: every operation wbemcli offers, the errors it must see, typed method
// arguments, authentication and the provider's unloading at shutdown.
namespace {

std::string const providerDir = VELDRA_SOURCE_DIR "/tests/unit/broker/testprovider";

std::string readFile(std::string const& path) {
    std::ifstream in(path);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

// "127.0.0.1:41234/root/test:..." becomes "HOST/root/test:..." so rows can be exact.
std::string normalized(std::string text, int port) {
    std::string host = "127.0.0.1:" + std::to_string(port);
    for (size_t at = text.find(host); at != std::string::npos; at = text.find(host, at))
        text.replace(at, host.size(), "HOST");
    return text;
}

class Wbemcli : public ::testing::Test {
protected:
    static void SetUpTestSuite() {
        dir = std::filesystem::temp_directory_path() / ("wbemcli-e2e-" + std::to_string(getpid()));
        std::filesystem::create_directories(dir);
        trace = (dir / "provider.trace").string();
        // The provider appends what reached it here; the child inherits it.
        setenv("VELDRA_TEST_PROVIDER_TRACE", trace.c_str(), 1);
        PasswordFile::setUser((dir / "users").string(), "ops", "s3cret pass");
    }
    static void TearDownTestSuite() { std::filesystem::remove_all(dir); }

    static std::vector<std::string> args() {
        return {"--registration", providerDir + "/TestProvider.registration.yaml",
                "--mof",          providerDir + "/TestProvider.mof",
                "--mof-dir",      "",
                "--provider-dir", VELDRA_LIB_DIR};
    }

    static inline std::filesystem::path dir;
    static inline std::string trace;
};

struct Row {
    std::string command; // after "wbemcli"; URL is the namespace URL
    int exitCode;
    std::string output; // exact, after normalizing host and port
};

} // namespace

TEST_F(Wbemcli, EveryOperationAndItsErrors) {
    CimdProcess cimd(args());
    std::string const url = "http://127.0.0.1:" + std::to_string(cimd.port()) + "/root/test";
    std::string const d1 = "'" + url + ":Test_Disk.Name=\"d1\"'";
    std::string const d1Line =
        "HOST/root/test:Test_Disk.Name=\"d1\" Name=\"d1\",Size=1000,Slot=1,Tags=\"fast\",\"d1\","
        "Created=20260101000000.000000+000,Healthy=TRUE\n";
    std::string const poolLine =
        "HOST/root/test:Test_Pool.InstanceID=\"p1\" InstanceID=\"p1\",ElementName=\"Pool One\"\n";
    std::string const ends = "Antecedent=root/test:Test_Pool.InstanceID=\"p1\",Dependent=root/"
                             "test:Test_Disk.Name=\"d1\"";
    std::string const link = "HOST/root/test:Test_PoolDisk." + ends;
    Row const rows[] = {
        {"ecn " + url, 0,
         "HOST/root/test:Test_Alert\nHOST/root/test:Test_Disk\nHOST/root/test:Test_Pool\nHOST/root/"
         "test:Test_PoolDisk\n"},
        {"gc " + url + ":Test_Disk", 0,
         "HOST/root/test:Test_Disk Name=,Size=,Slot=,Tags=,Created=,Healthy=\n"},
        {"ein " + url + ":Test_Disk", 0,
         "HOST/root/test:Test_Disk.Name=\"d1\"\nHOST/root/test:Test_Disk.Name=\"d2\"\nHOST/root/"
         "test:Test_Disk.Name=\"d3\"\n"},
        {"ei " + url + ":Test_Pool", 0, poolLine},
        {"ei " + url + ":Test_Disk Size,Healthy", 0,
         "HOST/root/test:Test_Disk.Name=\"d1\" Size=1000,Healthy=TRUE\n"
         "HOST/root/test:Test_Disk.Name=\"d2\" Size=2000,Healthy=TRUE\n"
         "HOST/root/test:Test_Disk.Name=\"d3\" Size=3000,Healthy=FALSE\n"},
        {"gi " + d1, 0, d1Line},
        {"gi " + d1 + " Slot", 0, "HOST/root/test:Test_Disk.Name=\"d1\" Slot=1\n"},
        {"ai " + d1, 0, poolLine},
        {"ai -ac Test_PoolDisk -arc Test_Pool -ar Dependent -arr Antecedent " + d1, 0, poolLine},
        {"ai -arc Test_Disk " + d1, 0, ""},
        {"ai -ar Antecedent " + d1, 0, ""},
        {"ain " + d1, 0, "HOST/root/test:Test_Pool.InstanceID=\"p1\"\n"},
        {"ri " + d1, 0, link + " " + ends + "\n"},
        {"rin -arc Test_PoolDisk " + d1, 0, link + "\n"},
        // Sent untyped; the provider answers INVALID_PARAMETER unless it gets a CMPI uint32.
        {"cm " + d1 + " Identify.Duration=7", 0,
         "HOST/root/test:Test_Disk.Name=\"d1\" Identify: 7, Echo (uint32): 7\n"},
        {"gi '" + url + ":Test_Disk.Name=\"d9\"'", 16,
         "*\n* wbemcli: Cim: (6) CIM_ERR_NOT_FOUND: no such disk\n*\n"},
        {"ein " + url + ":Test_Nope", 16,
         "*\n* wbemcli: Cim: (5) CIM_ERR_INVALID_CLASS: class Test_Nope does not exist\n*\n"},
        {"gi '" + url + ":Test_Nope.Name=\"x\"'", 16,
         "*\n* wbemcli: Cim: (5) CIM_ERR_INVALID_CLASS: class Test_Nope does not exist\n*\n"},
        {"ein 'http://127.0.0.1:" + std::to_string(cimd.port()) + "/root/nowhere:Test_Disk'", 16,
         "*\n* wbemcli: Cim: (3) CIM_ERR_INVALID_NAMESPACE: namespace root/nowhere does not "
         "exist\n*\n"},
        {"gi 'http://127.0.0.1:" + std::to_string(cimd.port()) +
             "/root/nowhere:Test_Disk.Name=\"d1\"'",
         16,
         "*\n* wbemcli: Cim: (3) CIM_ERR_INVALID_NAMESPACE: namespace root/nowhere does not "
         "exist\n*\n"},
        {"cm " + d1 + " Identify.Duration=minus", 16,
         "*\n* wbemcli: Cim: (4) CIM_ERR_INVALID_PARAMETER: \"minus\" is not a valid uint32\n*\n"},
    };
    for (Row const& row : rows) {
        SCOPED_TRACE("wbemcli " + row.command);
        CommandResult r = runCommand("wbemcli " + row.command);
        EXPECT_EQ(r.exitCode, row.exitCode) << r.out;
        EXPECT_EQ(normalized(r.out, cimd.port()), row.output);
    }
    EXPECT_NE(readFile(trace).find("Identify 7"), std::string::npos) << readFile(trace);
}

// A reference as wbemcli prints it, pasted behind the server's URL, names the
// instance again (an INSTANCEPATH printed as "host/root/testTest_Pool..." did not).
TEST_F(Wbemcli, PrintedReferencesPasteBack) {
    CimdProcess cimd(args());
    std::string const server = "http://127.0.0.1:" + std::to_string(cimd.port()) + "/";
    CommandResult listed = runCommand("wbemcli ei " + server + "root/test:Test_PoolDisk");
    ASSERT_EQ(listed.exitCode, 0) << listed.out;
    // "<path> Antecedent=<ref>,Dependent=<ref>"
    std::string const line = listed.out.substr(0, listed.out.find('\n'));
    std::string const properties = line.substr(line.find(' ') + 1);
    size_t const split = properties.find(",Dependent=");
    ASSERT_EQ(properties.rfind("Antecedent=", 0), 0u) << line;
    ASSERT_NE(split, std::string::npos) << line;
    std::string const antecedent = properties.substr(11, split - 11);
    std::string const dependent = properties.substr(split + 11);
    for (std::string const& reference : {antecedent, dependent}) {
        SCOPED_TRACE(reference);
        CommandResult got = runCommand("wbemcli gi '" + server + reference + "'");
        EXPECT_EQ(got.exitCode, 0) << got.out;
        EXPECT_EQ(got.out.rfind(server.substr(7) + reference + " ", 0), 0u) << got.out;
    }
}

// Catches a provider that is never cleaned up: SIGINT (as Ctrl-C in the demo)
// must drain, call the provider's cleanup and unload it, and exit 0.
TEST_F(Wbemcli, ShutdownUnloadsTheProvider) {
    std::filesystem::remove(trace);
    CimdProcess cimd(args());
    CommandResult r = runCommand("wbemcli ein http://127.0.0.1:" + std::to_string(cimd.port()) +
                                 "/root/test:Test_Disk");
    ASSERT_EQ(r.exitCode, 0) << r.out;
    EXPECT_EQ(cimd.stop(SIGINT), 0) << cimd.log();
    std::string traced = readFile(trace);
    EXPECT_NE(traced.find("cleanup instance"), std::string::npos) << traced;
    EXPECT_NE(traced.find("unloaded"), std::string::npos) << traced;
    EXPECT_NE(cimd.log().find("stopped"), std::string::npos) << cimd.log();
}

// Catches credentials not being enforced, or wbemcli not being told so.
TEST_F(Wbemcli, WrongPasswordIsRefused) {
    auto a = args();
    a.insert(a.end(), {"--users", (dir / "users").string()});
    CimdProcess cimd(a);
    std::string where = "@127.0.0.1:" + std::to_string(cimd.port()) + "/root/test:Test_Disk";
    CommandResult wrong = runCommand("wbemcli ein 'http://ops:wrong@" + where.substr(1) + "'");
    EXPECT_EQ(wrong.exitCode, 16) << wrong.out;
    CommandResult none = runCommand("wbemcli ein 'http://127.0.0.1:" + std::to_string(cimd.port()) +
                                    "/root/test:Test_Disk'");
    EXPECT_EQ(none.exitCode, 16) << none.out;
    CommandResult right = runCommand("wbemcli ein 'http://ops:s3cret pass" + where + "'");
    EXPECT_EQ(right.exitCode, 0) << right.out;
    EXPECT_NE(right.out.find("Test_Disk.Name=\"d3\""), std::string::npos) << right.out;
}

// The product provider under the same host: it must load through its four
// entry points and log its unloading line when the server stops.
TEST_F(Wbemcli, VeldraProviderLoadsAndUnloads) {
    std::string registration = (dir / "veldra.yaml").string();
    std::ofstream(registration)
        << "providers:\n  - name: QLNVeldra\n    library: QLNVeldra\n"
           "    namespaces: [root/mwq]\n    classes: [QLN_AutoStartVeldra]\n"
           "    kinds: [instance, method]\n";
    CimdProcess cimd({"--registration", registration, "--mof-dir", VELDRA_DATA_DIR "/mof",
                      "--provider-dir", VELDRA_LIB_DIR, "--scenario",
                      VELDRA_DATA_DIR "/scenarios/demo.yaml"});
    CommandResult r = runCommand("wbemcli ein http://127.0.0.1:" + std::to_string(cimd.port()) +
                                 "/root/mwq:QLN_AutoStartVeldra");
    EXPECT_EQ(r.exitCode, 0) << r.out;
    EXPECT_NE(r.out.find("QLN_AutoStartVeldra.ProviderName="), std::string::npos) << r.out;
    EXPECT_EQ(cimd.stop(), 0);
    EXPECT_NE(cimd.log().find("dxtor() unloading provider"), std::string::npos) << cimd.log();
}

// Before: SIGTERM waited for ever on a provider call that never returned.
TEST_F(Wbemcli, ShutdownGivesUpOnAStuckProviderCallAndSaysWhich) {
    std::vector<std::string> a = args();
    a.insert(a.end(), {"--shutdown-grace", "1"});
    CimdProcess cimd(a);
    std::string const url = "http://127.0.0.1:" + std::to_string(cimd.port()) + "/root/test";
    std::thread stuck(
        [&] { runCommand("timeout 20 wbemcli cm '" + url + ":Test_Disk.Name=\"d1\"' Hang"); });
    for (int i = 0; i < 100 && readFile(trace).find("Hang") == std::string::npos; ++i)
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
    auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(cimd.stop(), 3);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10));
    EXPECT_NE(cimd.log().find("waiting for requests still running: Hang on root%2Ftest"),
              std::string::npos)
        << cimd.log();
    stuck.join();
}
