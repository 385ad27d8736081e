#pragma once

#include <string>
#include <vector>

// veldra-cimd started on a free loopback port for one test, stopped with
// SIGTERM at the end; its stderr is kept for checks on log lines.
class CimdProcess {
public:
    explicit CimdProcess(std::vector<std::string> args);
    ~CimdProcess();

    int port() const { return _port; }
    // Sends the signal (SIGTERM by default) and waits; returns the exit
    // status, or -1 when the process died of a signal or had to be killed.
    int stop(int signal = 15);
    std::string log() const;
    bool running() const;

private:
    int _pid = -1;
    int _port = 0;
    std::string _dir;
    int _exitStatus = -1;
};

struct CommandResult {
    int exitCode = -1;
    std::string out; // stdout and stderr together
};

// Runs a command line through /bin/sh and collects its output.
CommandResult runCommand(std::string const& commandLine);
