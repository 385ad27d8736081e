// The hardware event table as an operator meets it: veldra-cimd with a short
// worker interval on a copy of the demo scenario, veldra-listen subscribed to
// every alert indication, snmptrapd receiving the traps. For each row the
// scenario is changed with veldra-sim, and the alerts of the passes after it
// must be exactly those of the row: the indication with its trap fields, and
// the trap itself. Between rows the demo is put back and its own alerts are
// let go.
#include "CimdProcess.h"
#include "HardwareEventRows.h"
#include "TrapReceiver.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <thread>

namespace {

using namespace std::chrono_literals;
namespace fs = std::filesystem;
using hardware_events::Alert;

std::string readFile(fs::path const& path) {
    std::ifstream in(path);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

std::vector<std::string> linesOf(fs::path const& path) {
    std::vector<std::string> lines;
    std::istringstream in(readFile(path));
    for (std::string line; std::getline(in, line);) {
        if (!line.empty())
            lines.push_back(line);
    }
    return lines;
}

int occurrences(std::string const& text, std::string const& needle) {
    int n = 0;
    for (auto at = text.find(needle); at != std::string::npos; at = text.find(needle, at + 1))
        ++n;
    return n;
}

// veldra-listen subscribing itself to every alert indication of root/mwq.
class Listener {
public:
    Listener(int cimdPort, fs::path const& dir)
        : _output(dir / "alerts.jsonl"), _errors(dir / "listen.log") {
        _pid = fork();
        if (_pid == 0) {
            std::freopen(_output.c_str(), "w", stdout);
            std::freopen(_errors.c_str(), "w", stderr);
            std::string const bin = std::string(VELDRA_BIN_DIR) + "/veldra-listen";
            std::string const cimom = "http://127.0.0.1:" + std::to_string(cimdPort);
            execl(bin.c_str(), bin.c_str(), "--port", "0", "--json", "--subscribe", cimom.c_str(),
                  "--filter", "SELECT * FROM CIM_AlertIndication", "--source-namespace", "root/mwq",
                  static_cast<char*>(nullptr));
            _exit(127);
        }
    }
    ~Listener() {
        kill(_pid, SIGTERM);
        waitpid(_pid, nullptr, 0);
    }
    bool subscribed() const {
        for (int i = 0; i < 300; ++i) {
            if (readFile(_errors).find("subscribed to") != std::string::npos)
                return true;
            std::this_thread::sleep_for(20ms);
        }
        return false;
    }
    std::vector<std::string> received() const { return linesOf(_output); }
    std::string errors() const { return readFile(_errors); }

private:
    fs::path _output;
    fs::path _errors;
    pid_t _pid = -1;
};

class WorkerEvents : public ::testing::Test {
protected:
    static void SetUpTestSuite() {
        dir = fs::temp_directory_path() / ("worker-events-e2e-" + std::to_string(getpid()));
        fs::remove_all(dir);
        fs::create_directories(dir);
        scenario = dir / "scenario.yaml";
        fs::copy_file(VELDRA_DATA_DIR "/scenarios/demo.yaml", scenario);
        traps = std::make_unique<TrapReceiver>();
        // The first pass waits for the subscription; later ones come quickly.
        setenv("VELDRA_WORKER_STAGGER_MS", "3000", 1);
        setenv("VELDRA_WORKER_INTERVAL_MS", "200", 1);
        setenv("VELDRA_HEARTBEAT", "false", 1);
        setenv("VELDRA_TRAP_DESTINATIONS", traps->destination().c_str(), 1);
        cimd = std::make_unique<CimdProcess>(std::vector<std::string>{
            "--scenario", scenario.string(), "--state-file", (dir / "state.json").string()});
        listener = std::make_unique<Listener>(cimd->port(), dir);
    }
    static void TearDownTestSuite() {
        listener.reset();
        cimd.reset();
        traps.reset();
        for (char const* name : {"VELDRA_WORKER_STAGGER_MS", "VELDRA_WORKER_INTERVAL_MS",
                                 "VELDRA_HEARTBEAT", "VELDRA_TRAP_DESTINATIONS"}) {
            unsetenv(name);
        }
        fs::remove_all(dir);
    }

    // Passes begun, by the line each logs first.
    static int passes() { return occurrences(cimd->log(), "::_backgroundWorker"); }
    // The start of the second pass after now: the first of them saw all that
    // changed before it, and had ended. One more gives its deliveries time.
    static void awaitPasses(int count) {
        int const from = passes();
        for (int i = 0; i < 600 && passes() < from + count; ++i)
            std::this_thread::sleep_for(50ms);
        ASSERT_GE(passes(), from + count) << "the worker stopped passing";
    }
    static void sim(std::string const& command) {
        CommandResult const r = runCommand(std::string(VELDRA_BIN_DIR) + "/veldra-sim --scenario " +
                                           scenario.string() + " " + command);
        ASSERT_EQ(r.exitCode, 0) << command << "\n" << r.out;
    }
    static void restoreDemo() {
        fs::path const next = dir / "scenario.next";
        fs::copy_file(VELDRA_DATA_DIR "/scenarios/demo.yaml", next,
                      fs::copy_options::overwrite_existing);
        fs::rename(next, scenario);
    }

    // The indications and traps received since the last call, once `count`
    // of each arrived (or a bound passed), and a quiet pass after them.
    static std::pair<std::vector<std::string>, std::vector<std::string>>
    alertsSince(std::vector<Alert> const& want) {
        awaitPasses(2);
        std::size_t const traps =
            std::count_if(want.begin(), want.end(), [](Alert const& a) { return a.trap != 0; });
        for (int i = 0; i < 200; ++i) {
            if (listener->received().size() >= seenIndications + want.size() &&
                WorkerEvents::traps->received().size() >= seenTraps + traps) {
                break;
            }
            std::this_thread::sleep_for(50ms);
        }
        awaitPasses(1);

        auto const lines = listener->received();
        std::vector<Alert> indications;
        for (std::size_t i = seenIndications; i < lines.size(); ++i) {
            auto const json = nlohmann::json::parse(lines[i]);
            auto const& properties = json["properties"];
            indications.push_back(hardware_events::observed(
                json["class"].get<std::string>(), want,
                [&properties](std::string const& name) -> std::optional<std::string> {
                    if (!properties.contains(name))
                        return std::nullopt;
                    return properties[name].get<std::string>();
                }));
        }
        seenIndications = lines.size();

        auto const received = WorkerEvents::traps->received();
        std::vector<std::string> trapLines;
        for (std::size_t i = seenTraps; i < received.size(); ++i)
            trapLines.push_back(trapLine(received[i]));
        std::sort(trapLines.begin(), trapLines.end());
        seenTraps = received.size();
        return {hardware_events::described(indications), trapLines};
    }
    // "trap N flags F" from the varbinds snmptrapd printed numerically.
    static std::string trapLine(TrapReceiver::Trap const& trap) {
        std::string number = "?", flags = "?";
        for (auto const& variable : trap) {
            if (variable.oid == ".1.3.6.1.6.3.1.1.4.1.0")
                number = variable.value.substr(variable.value.rfind('.') + 1);
            if (variable.oid == ".1.3.6.1.4.1.57913.11.2.11.1")
                flags = variable.value;
        }
        return "trap " + number + " flags " + flags;
    }
    static std::vector<std::string> trapsOf(std::vector<Alert> const& alerts) {
        std::vector<std::string> lines;
        for (Alert const& alert : alerts) {
            if (alert.trap != 0)
                lines.push_back("trap " + std::to_string(alert.trap) + " flags " +
                                std::to_string(alert.flags));
        }
        std::sort(lines.begin(), lines.end());
        return lines;
    }

    static inline fs::path dir;
    static inline fs::path scenario;
    static inline std::unique_ptr<TrapReceiver> traps;
    static inline std::unique_ptr<CimdProcess> cimd;
    static inline std::unique_ptr<Listener> listener;
    static inline std::size_t seenIndications = 0;
    static inline std::size_t seenTraps = 0;
};

} // namespace

// One test, rows in order: each row starts from the demo again, and the
// first pass (what the demo starts with) has to come before any of them.
TEST_F(WorkerEvents, EveryRowSendsItsIndicationAndTrapAndNothingElse) {
    ASSERT_TRUE(listener->subscribed()) << listener->errors();
    auto const& first = hardware_events::firstPassOfDemo();
    auto const [firstIndications, firstTraps] = alertsSince(first);
    EXPECT_EQ(firstIndications, hardware_events::described(first));
    EXPECT_EQ(firstTraps, trapsOf(first));

    for (auto const& row : hardware_events::rows()) {
        SCOPED_TRACE(row.command);
        if (row.setup != nullptr) {
            sim(row.setup);
            alertsSince({});
        }
        sim(row.command);
        auto const [indications, traps] = alertsSince(row.sent);
        EXPECT_EQ(indications, hardware_events::described(row.sent));
        EXPECT_EQ(traps, trapsOf(row.sent));

        // Back to the demo; what that tells is not this table's business.
        restoreDemo();
        alertsSince({});
    }
    EXPECT_TRUE(cimd->running());
}
