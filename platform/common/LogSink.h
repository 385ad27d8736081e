#pragma once
// Where log lines go: one process-wide sink shared by every Logger. It reads
// its destination and level from the framework configuration on first use
// and again after FrameworkConfig::reload(), so that a filtered call costs an
// atomic load and no formatting.
#include <atomic>
#include <cstdio>
#include <mutex>
#include <string>

enum class LogLevel { Info = 0, Warn = 1, Error = 2 };

class LogSink {
public:
    static LogSink& instance();

    bool accepts(LogLevel level);
    void write(LogLevel level, std::string const& source, std::string const& text);

    static char const* levelName(LogLevel level);

private:
    enum class Destination { Stderr, File, Syslog };

    LogSink() = default;
    void _configureIfStale();
    void _configure();
    void _closeDestination();
    void _emit(LogLevel level, std::string const& source, std::string const& text);
    void _appendTimestamp(std::string& out);

    std::mutex _mutex;
    std::atomic<unsigned long> _generation{~0UL};
    std::atomic<int> _minLevel{0};
    Destination _destination = Destination::Stderr;
    std::FILE* _file = nullptr;
    // A graph build logs hundreds of thousands of lines: each is put
    // together in one reused buffer, and the date part is made once a second.
    std::string _line;
    long long _stampSecond = -1;
    char _stamp[24] = {};
};
