#include "CimdProcess.h"

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <thread>

CimdProcess::CimdProcess(std::vector<std::string> args) {
    char pattern[] = "/tmp/cimd-test-XXXXXX";
    if (!mkdtemp(pattern))
        throw std::runtime_error("mkdtemp failed");
    _dir = pattern;
    std::string portFile = _dir + "/port";
    std::string logFile = _dir + "/stderr.log";
    args.insert(args.begin(), {std::string(VELDRA_BIN_DIR) + "/veldra-cimd", "--port", "0",
                               "--port-file", portFile});
    _pid = fork();
    if (_pid == 0) {
        FILE* log = std::freopen(logFile.c_str(), "w", stderr);
        (void)log;
        std::freopen("/dev/null", "w", stdout);
        std::vector<char*> argv;
        for (auto& a : args)
            argv.push_back(a.data());
        argv.push_back(nullptr);
        execv(argv[0], argv.data());
        _exit(127);
    }
    // Start-up reads MOF and loads providers; give it a generous while.
    for (int i = 0; i < 300; ++i) {
        std::ifstream in(portFile);
        if (in >> _port && _port > 0)
            return;
        int status = 0;
        if (waitpid(_pid, &status, WNOHANG) == _pid) {
            _pid = -1;
            throw std::runtime_error("veldra-cimd exited at start-up: " + log());
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
    }
    stop();
    throw std::runtime_error("veldra-cimd did not report a port: " + log());
}

CimdProcess::~CimdProcess() {
    stop();
    std::error_code ec;
    std::filesystem::remove_all(_dir, ec);
}

bool CimdProcess::running() const {
    if (_pid <= 0)
        return false;
    int status = 0;
    return waitpid(_pid, &status, WNOHANG) == 0;
}

int CimdProcess::stop(int signal) {
    if (_pid <= 0)
        return _exitStatus;
    kill(_pid, signal);
    int status = 0;
    for (int i = 0; i < 200; ++i) {
        if (waitpid(_pid, &status, WNOHANG) == _pid) {
            _pid = -1;
            _exitStatus = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
            return _exitStatus;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
    }
    kill(_pid, SIGKILL);
    waitpid(_pid, &status, 0);
    _pid = -1;
    _exitStatus = -1;
    return _exitStatus;
}

std::string CimdProcess::log() const {
    std::ifstream in(_dir + "/stderr.log");
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

CommandResult runCommand(std::string const& commandLine) {
    CommandResult result;
    FILE* pipe = popen((commandLine + " 2>&1").c_str(), "r");
    if (!pipe)
        return result;
    std::array<char, 4096> buffer{};
    size_t n = 0;
    while ((n = fread(buffer.data(), 1, buffer.size(), pipe)) > 0)
        result.out.append(buffer.data(), n);
    int status = pclose(pipe);
    result.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return result;
}
