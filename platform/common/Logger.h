#pragma once
// The one logging facility of the framework. Every class copies a logger from
// the one its creator passed down and extends the source name, so that a line
// tells which object wrote it ("QLNVeldra:QLN_VDArraySystem").
//
// Destination and level come from the framework configuration
// (VELDRA_LOG: "stderr", "syslog" or a file path; VELDRA_LOG_LEVEL: "info",
// "warn" or "error"). A line carries time, level, source and text:
//   2026-11-23T00:38:16.123Z WARN QLNVeldra:QLN_VDArraySystem: text
// Loggers are cheap values; all of them share one thread-safe sink. The
// source names are kept once for the process: every instance of the model
// has a logger, and they share a few hundred names.
#include <cstdarg>
#include <string>

class Logger {
public:
    Logger();
    explicit Logger(std::string const& name);
    Logger(Logger const& other);
    Logger& operator=(Logger const& other);
    ~Logger();

    void appendLogSource(std::string const& text);
    std::string const& getLogSource() const { return *_source; }

    void info(char const* format, ...) const __attribute__((format(printf, 2, 3)));
    void warn(char const* format, ...) const __attribute__((format(printf, 2, 3)));
    void error(char const* format, ...) const __attribute__((format(printf, 2, 3)));

private:
    void _log(int level, char const* format, va_list args) const;
    static std::string const* _intern(std::string name);

    std::string const* _source;
};
