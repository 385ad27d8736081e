#include "CimdProcess.h"

#include <gtest/gtest.h>
#include <httplib.h>
#include <pugixml.hpp>

#include <netinet/in.h>
#include <signal.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <regex>
#include <sstream>
#include <thread>

// Alerts as an operator receives them: the subscription made with wbemcli
// (and a raw CreateInstance for the references wbemcli cannot write), the
// real provider's heartbeat, the real veldra-listen, a restart between.
namespace {

using namespace std::chrono_literals;
namespace fs = std::filesystem;

int freePort() {
    int fd = socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in addr{};
    addr.sin_family = AF_INET;
    addr.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    bind(fd, reinterpret_cast<sockaddr*>(&addr), sizeof addr);
    socklen_t length = sizeof addr;
    getsockname(fd, reinterpret_cast<sockaddr*>(&addr), &length);
    close(fd);
    return ntohs(addr.sin_port);
}

std::string readFile(fs::path const& path) {
    std::ifstream in(path);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

// veldra-listen on a given port, its lines in a file.
class Listener {
public:
    Listener(int port, fs::path output) : _output(std::move(output)) {
        _pid = fork();
        if (_pid == 0) {
            std::freopen(_output.c_str(), "a", stdout);
            std::freopen("/dev/null", "w", stderr);
            std::string bin = std::string(VELDRA_BIN_DIR) + "/veldra-listen",
                        p = std::to_string(port);
            execl(bin.c_str(), bin.c_str(), "--port", p.c_str(), "--json",
                  static_cast<char*>(nullptr));
            _exit(127);
        }
    }
    ~Listener() {
        kill(_pid, SIGTERM);
        waitpid(_pid, nullptr, 0);
    }
    // Lines naming `what`, waiting up to `bound` for at least `count` of them.
    int lines(std::string const& what, int count = 1, std::chrono::seconds bound = 30s) const {
        auto until = std::chrono::steady_clock::now() + bound;
        int n = 0;
        do {
            std::istringstream in(readFile(_output));
            n = 0;
            for (std::string line; std::getline(in, line);)
                n += line.find(what) != std::string::npos;
            if (n >= count)
                break;
            std::this_thread::sleep_for(100ms);
        } while (std::chrono::steady_clock::now() < until);
        return n;
    }

private:
    fs::path _output;
    pid_t _pid = -1;
};

class SubscriptionDelivery : public ::testing::Test {
protected:
    void SetUp() override {
        dir = fs::temp_directory_path() / ("subscription-e2e-" + std::to_string(getpid()));
        fs::create_directories(dir);
        // A pass a second, each with its heartbeat.
        setenv("VELDRA_WORKER_INTERVAL_MS", "1000", 1);
        setenv("VELDRA_WORKER_STAGGER_MS", "300", 1);
        setenv("VELDRA_HEARTBEAT", "1", 1);
    }
    void TearDown() override { fs::remove_all(dir); }

    std::unique_ptr<CimdProcess> start() {
        return std::make_unique<CimdProcess>(std::vector<std::string>{
            "--scenario", VELDRA_DATA_DIR "/scenarios/demo.yaml", "--state-file",
            (dir / "state.json").string(), "--delivery-pause-ms", "200"});
    }

    static std::string wbemcli(std::string const& args) {
        CommandResult r = runCommand("wbemcli " + args);
        EXPECT_EQ(r.exitCode, 0) << args << "\n" << r.out;
        return r.out;
    }

    // Filter and destination with wbemcli, the subscription with a raw request.
    static void subscribe(int cimd, int listener) {
        std::string const url = "'http://127.0.0.1:" + std::to_string(cimd) + "/root/interop:";
        std::string const system =
            "SystemCreationClassName=\"CIM_ComputerSystem\",SystemName=\"here\",";
        std::string filter =
            wbemcli("ci " + url + "CIM_IndicationFilter." + system +
                    "CreationClassName=\"CIM_IndicationFilter\",Name=\"f\"' "
                    "'Query=\"SELECT * FROM QLN_VeldraIndication\",QueryLanguage=\"WQL\","
                    "SourceNamespace=\"root/mwq\"'");
        std::string destination =
            wbemcli("ci " + url + "CIM_ListenerDestinationCIMXML." + system +
                    "CreationClassName=\"CIM_ListenerDestinationCIMXML\",Name=\"d\"' "
                    "'Destination=\"http://127.0.0.1:" +
                    std::to_string(listener) + "/\"'");
        std::smatch f, d;
        ASSERT_TRUE(std::regex_search(filter, f, std::regex("Name=\"([^\"]+)\"\\s*$"))) << filter;
        ASSERT_TRUE(std::regex_search(destination, d, std::regex("Name=\"([^\"]+)\"\\s*$")))
            << destination;
        auto name = [](char const* cls, std::string const& n, std::string const& systemName) {
            return std::string("<INSTANCENAME CLASSNAME=\"") + cls +
                   "\"><KEYBINDING "
                   "NAME=\"SystemCreationClassName\"><KEYVALUE>CIM_ComputerSystem</KEYVALUE></"
                   "KEYBINDING>"
                   "<KEYBINDING NAME=\"SystemName\"><KEYVALUE>" +
                   systemName +
                   "</KEYVALUE></KEYBINDING>"
                   "<KEYBINDING NAME=\"CreationClassName\"><KEYVALUE>" +
                   cls +
                   "</KEYVALUE></KEYBINDING>"
                   "<KEYBINDING NAME=\"Name\"><KEYVALUE>" +
                   n + "</KEYVALUE></KEYBINDING></INSTANCENAME>";
        };
        std::smatch s;
        std::regex_search(filter, s, std::regex("SystemName=\"([^\"]+)\""));
        std::string const host = s[1];
        std::string body =
            "<?xml version=\"1.0\" encoding=\"utf-8\"?><CIM CIMVERSION=\"2.0\" "
            "DTDVERSION=\"2.0\"><MESSAGE ID=\"1\" "
            "PROTOCOLVERSION=\"1.0\"><SIMPLEREQ><IMETHODCALL "
            "NAME=\"CreateInstance\"><LOCALNAMESPACEPATH>"
            "<NAMESPACE NAME=\"root\"/><NAMESPACE "
            "NAME=\"interop\"/></LOCALNAMESPACEPATH><IPARAMVALUE NAME=\"NewInstance\">"
            "<INSTANCE CLASSNAME=\"CIM_IndicationSubscription\"><PROPERTY.REFERENCE "
            "NAME=\"Filter\"><VALUE.REFERENCE>" +
            name("CIM_IndicationFilter", f[1], host) +
            "</VALUE.REFERENCE></PROPERTY.REFERENCE><PROPERTY.REFERENCE "
            "NAME=\"Handler\"><VALUE.REFERENCE>" +
            name("CIM_ListenerDestinationCIMXML", d[1], host) +
            "</VALUE.REFERENCE></PROPERTY.REFERENCE></INSTANCE></IPARAMVALUE></IMETHODCALL></"
            "SIMPLEREQ></MESSAGE></CIM>";
        httplib::Client client("127.0.0.1", cimd);
        auto reply = client.Post("/cimom",
                                 {{"CIMOperation", "MethodCall"},
                                  {"CIMMethod", "CreateInstance"},
                                  {"CIMObject", "root%2Finterop"}},
                                 body, "application/xml; charset=\"utf-8\"");
        ASSERT_TRUE(reply);
        ASSERT_EQ(reply->status, 200);
        ASSERT_EQ(reply->body.find("<ERROR"), std::string::npos) << reply->body;
        EXPECT_NE(reply->body.find("CIM_IndicationSubscription"), std::string::npos) << reply->body;
    }

    fs::path dir;
};

} // namespace

TEST_F(SubscriptionDelivery, TheHeartbeatReachesASubscribedListenerAndSurvivesARestart) {
    int const port = freePort();
    Listener listener(port, dir / "listened.jsonl");
    auto cimd = start();
    subscribe(cimd->port(), port);
    std::string const heartbeat = "\"class\":\"QLN_VeldraIndication\"";
    EXPECT_GE(listener.lines(heartbeat), 1) << cimd->log();
    EXPECT_NE(cimd->log().find("enableIndications"), std::string::npos);

    cimd->stop();
    int before = listener.lines(heartbeat, 0, 0s);
    cimd = start();
    std::string const url = "'http://127.0.0.1:" + std::to_string(cimd->port()) + "/root/interop:";
    EXPECT_NE(wbemcli("ein " + url + "CIM_IndicationSubscription'")
                  .find("CIM_IndicationSubscription.Filter="),
              std::string::npos);
    EXPECT_GE(listener.lines(heartbeat, before + 1), before + 1)
        << "no heartbeat after the restart";

    // Unsubscribed, the provider is told to stop sending.
    std::string subscription = wbemcli("ein " + url + "CIM_IndicationSubscription'");
    subscription = subscription.substr(subscription.find(":CIM_IndicationSubscription") + 1);
    subscription.erase(subscription.find_last_not_of("\n") + 1);
    wbemcli("di " + url + subscription + "'");
    EXPECT_EQ(wbemcli("ein " + url + "CIM_IndicationSubscription'"), "");
    for (int i = 0; i < 50 && cimd->log().find("disableIndications") == std::string::npos; ++i)
        std::this_thread::sleep_for(100ms);
    EXPECT_NE(cimd->log().find("disableIndications"), std::string::npos);
}

TEST_F(SubscriptionDelivery, AListenerThatWasDownReceivesWhatWasSentMeanwhile) {
    int const port = freePort();
    auto cimd = start();
    subscribe(cimd->port(), port);
    // Wait for a heartbeat to be sent while nobody listens.
    for (int i = 0; i < 100 && cimd->log().find("Send heartbeat indication") == std::string::npos;
         ++i)
        std::this_thread::sleep_for(100ms);
    ASSERT_NE(cimd->log().find("Send heartbeat indication"), std::string::npos) << cimd->log();
    std::this_thread::sleep_for(500ms);
    Listener late(port, dir / "late.jsonl");
    // The first heartbeat carries identifier 1 and arrives after the retries.
    EXPECT_GE(late.lines("\"IndicationIdentifier\":\"1\""), 1) << cimd->log();
}

TEST_F(SubscriptionDelivery, BadSubscriptionsAreRefusedWithCimErrors) {
    auto cimd = start();
    std::string const url = "'http://127.0.0.1:" + std::to_string(cimd->port()) + "/root/interop:";
    std::string const keys = "SystemCreationClassName=\"CIM_ComputerSystem\",SystemName=\"h\",";
    CommandResult r = runCommand(
        "wbemcli ci " + url + "CIM_IndicationFilter." + keys +
        "CreationClassName=\"CIM_IndicationFilter\",Name=\"f\"' 'Query=\"SELECT Name FROM X\"'");
    EXPECT_NE(r.exitCode, 0);
    EXPECT_NE(r.out.find("CIM_ERR_INVALID_PARAMETER"), std::string::npos) << r.out;
    r = runCommand("wbemcli ci " + url + "CIM_ListenerDestinationCIMXML." + keys +
                   "CreationClassName=\"CIM_ListenerDestinationCIMXML\",Name=\"d\"' "
                   "'Destination=\"ftp://x/\"'");
    EXPECT_NE(r.out.find("CIM_ERR_INVALID_PARAMETER"), std::string::npos) << r.out;
    EXPECT_TRUE(cimd->running());
}
