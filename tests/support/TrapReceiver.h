#pragma once
// snmptrapd started for one test on a free loopback UDP port, printing each
// notification on one line, and stopped at the end. It is the receiver an
// operator would run, so the tests see what they would: numeric OIDs
// without MIBs, names ("QLN-VELDRA-MIB::zrqHoTrapFlags") with them.
#include <netinet/in.h>
#include <signal.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

class TrapReceiver {
public:
    struct Variable {
        std::string oid;   // ".1.3.6.1.2.1.1.5", or "SNMPv2-MIB::sysName" with MIBs loaded
        std::string type;  // as snmptrapd names it: "INTEGER", "STRING", "OID", "Timeticks"
        std::string value; // quotes of strings removed
    };
    using Trap = std::vector<Variable>;

    // mibDirs: folders to load every MIB from (snmptrapd -M ... -m ALL);
    // empty loads none and prints OIDs as numbers.
    explicit TrapReceiver(std::string const& mibDirs = "") {
        char pattern[] = "/tmp/veldra-traps-XXXXXX";
        if (mkdtemp(pattern) == nullptr)
            throw std::runtime_error("mkdtemp failed");
        _dir = pattern;
        std::string why;
        // The port was free a moment ago; another process may have taken it since.
        for (int attempt = 0; attempt < 3; ++attempt) {
            if (_start(mibDirs, why))
                return;
        }
        _cleanup();
        throw std::runtime_error(why);
    }

    ~TrapReceiver() { _cleanup(); }

    TrapReceiver(TrapReceiver const&) = delete;
    TrapReceiver& operator=(TrapReceiver const&) = delete;

    int port() const { return _port; }
    std::string destination() const { return "127.0.0.1:" + std::to_string(_port); }

    // The traps received so far, waiting up to a generous bound for `count`.
    std::vector<Trap> waitFor(std::size_t count) const {
        std::vector<Trap> traps;
        for (int i = 0; i < 200; ++i) {
            traps = received();
            if (traps.size() >= count)
                break;
            std::this_thread::sleep_for(std::chrono::milliseconds(25));
        }
        return traps;
    }

    std::vector<Trap> received() const {
        std::vector<Trap> traps;
        std::istringstream lines(_read("traps.log"));
        std::string line;
        while (std::getline(lines, line)) {
            if (line.rfind("TRAP ", 0) != 0)
                continue;
            Trap trap;
            std::istringstream fields(line.substr(5));
            std::string field;
            while (std::getline(fields, field, '\t')) {
                auto const eq = field.find(" = ");
                if (eq == std::string::npos)
                    continue;
                Variable v;
                v.oid = field.substr(0, eq);
                std::string rest = field.substr(eq + 3);
                auto const colon = rest.find(": ");
                v.type = colon == std::string::npos ? rest : rest.substr(0, colon);
                v.value = colon == std::string::npos ? "" : rest.substr(colon + 2);
                if (v.value.size() >= 2 && v.value.front() == '"' && v.value.back() == '"') {
                    v.value = v.value.substr(1, v.value.size() - 2);
                }
                trap.push_back(v);
            }
            traps.push_back(trap);
        }
        return traps;
    }

    std::string output() const { return _read("traps.log") + _read("stderr.log"); }

    // A UDP port that was free a moment ago on loopback.
    static int freeUdpPort() {
        int fd = socket(AF_INET, SOCK_DGRAM, 0);
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t length = sizeof address;
        if (fd < 0 || bind(fd, reinterpret_cast<sockaddr*>(&address), sizeof address) != 0 ||
            getsockname(fd, reinterpret_cast<sockaddr*>(&address), &length) != 0) {
            throw std::runtime_error("no free UDP port");
        }
        close(fd);
        return ntohs(address.sin_port);
    }

private:
    bool _start(std::string const& mibDirs, std::string& why) {
        _port = freeUdpPort();
        std::string const out = _dir + "/traps.log";
        std::vector<std::string> args = {
            "snmptrapd", "-f",       "-Lo", "-C", "-c", "/dev/null", "--disableAuthorization=yes",
            "-F",        "TRAP %v\n"};
        if (mibDirs.empty()) {
            args.insert(args.end(), {"-On", "-m", ""});
        } else {
            args.insert(args.end(), {"-M", mibDirs, "-m", "ALL"});
        }
        args.push_back("udp:127.0.0.1:" + std::to_string(_port));
        _pid = fork();
        if (_pid == 0) {
            setenv("SNMP_PERSISTENT_DIR", _dir.c_str(), 1);
            if (std::freopen(out.c_str(), "w", stdout) == nullptr)
                _exit(126);
            if (std::freopen((_dir + "/stderr.log").c_str(), "w", stderr) == nullptr)
                _exit(126);
            std::vector<char*> argv;
            for (auto& a : args)
                argv.push_back(a.data());
            argv.push_back(nullptr);
            execvp(argv[0], argv.data());
            _exit(127);
        }
        // snmptrapd says its version once it listens.
        for (int i = 0; i < 200; ++i) {
            if (_read("traps.log").find("NET-SNMP version") != std::string::npos)
                return true;
            int status = 0;
            if (waitpid(_pid, &status, WNOHANG) == _pid) {
                _pid = -1;
                why = "snmptrapd exited at start-up: " + _read("stderr.log") + _read("traps.log");
                return false;
            }
            std::this_thread::sleep_for(std::chrono::milliseconds(50));
        }
        why = "snmptrapd did not start: " + _read("stderr.log");
        _stopProcess();
        return false;
    }

    void _stopProcess() {
        if (_pid > 0) {
            kill(_pid, SIGTERM);
            int status = 0;
            waitpid(_pid, &status, 0);
            _pid = -1;
        }
    }

    void _cleanup() {
        _stopProcess();
        std::error_code ec;
        std::filesystem::remove_all(_dir, ec);
    }

    std::string _read(std::string const& name) const {
        std::ifstream in(_dir + "/" + name);
        std::stringstream text;
        text << in.rdbuf();
        return text.str();
    }

    std::string _dir;
    int _port = 0;
    int _pid = -1;
};
