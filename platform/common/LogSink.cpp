#include "LogSink.h"

#include "FrameworkConfig.h"

#include <syslog.h>

#include <algorithm>
#include <cctype>
#include <chrono>
#include <ctime>
#include <stdexcept>

namespace {

std::string lower(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return text;
}

} // namespace

LogSink& LogSink::instance() {
    // Never destroyed: objects torn down at process exit may still log.
    static LogSink* sink = new LogSink();
    return *sink;
}

char const* LogSink::levelName(LogLevel level) {
    switch (level) {
    case LogLevel::Info:
        return "INFO";
    case LogLevel::Warn:
        return "WARN";
    case LogLevel::Error:
        return "ERROR";
    }
    return "?";
}

bool LogSink::accepts(LogLevel level) {
    _configureIfStale();
    return static_cast<int>(level) >= _minLevel.load(std::memory_order_relaxed);
}

void LogSink::_configureIfStale() {
    unsigned long current = QLN::FrameworkConfig::generation();
    if (_generation.load(std::memory_order_acquire) == current) {
        return;
    }
    std::lock_guard<std::mutex> lock(_mutex);
    if (_generation.load(std::memory_order_relaxed) != current) {
        _configure();
        _generation.store(current, std::memory_order_release);
    }
}

void LogSink::_closeDestination() {
    if (_file) {
        std::fclose(_file);
        _file = nullptr;
    }
    if (_destination == Destination::Syslog) {
        closelog();
    }
    _destination = Destination::Stderr;
}

void LogSink::_configure() {
    _closeDestination();
    std::string target = "stderr";
    std::string level = "info";
    std::string problem;
    try {
        target = QLN::FrameworkConfig::getString("VELDRA_LOG", "stderr");
        level = lower(QLN::FrameworkConfig::getString("VELDRA_LOG_LEVEL", "info"));
    } catch (std::exception const& e) {
        // Logging must keep working when the configuration is broken; the
        // error itself reaches whoever reads the configuration next.
        problem = std::string("log settings unusable, using stderr: ") + e.what();
    }

    if (level == "warn" || level == "warning") {
        _minLevel = static_cast<int>(LogLevel::Warn);
    } else if (level == "error") {
        _minLevel = static_cast<int>(LogLevel::Error);
    } else {
        if (level != "info" && problem.empty()) {
            problem = "VELDRA_LOG_LEVEL \"" + level + "\" unknown, using info";
        }
        _minLevel = static_cast<int>(LogLevel::Info);
    }

    if (target.empty() || target == "stderr") {
        _destination = Destination::Stderr;
    } else if (target == "syslog") {
        openlog("veldra", LOG_PID | LOG_NDELAY, LOG_DAEMON);
        _destination = Destination::Syslog;
    } else {
        _file = std::fopen(target.c_str(), "a");
        if (_file) {
            _destination = Destination::File;
        } else {
            problem = "cannot open log file " + target + ", using stderr";
        }
    }
    if (!problem.empty()) {
        _emit(LogLevel::Error, "LogSink", problem);
    }
}

void LogSink::_appendTimestamp(std::string& out) {
    auto const now = std::chrono::system_clock::now();
    auto const millis =
        std::chrono::duration_cast<std::chrono::milliseconds>(now.time_since_epoch()).count();
    long long const second = millis / 1000;
    if (second != _stampSecond) {
        std::time_t const seconds = static_cast<std::time_t>(second);
        std::tm utc{};
        gmtime_r(&seconds, &utc);
        std::strftime(_stamp, sizeof _stamp, "%Y-%m-%dT%H:%M:%S", &utc);
        _stampSecond = second;
    }
    char fraction[8];
    std::snprintf(fraction, sizeof fraction, ".%03dZ", static_cast<int>(millis % 1000));
    out += _stamp;
    out += fraction;
}

void LogSink::write(LogLevel level, std::string const& source, std::string const& text) {
    _configureIfStale();
    std::lock_guard<std::mutex> lock(_mutex);
    _emit(level, source, text);
}

void LogSink::_emit(LogLevel level, std::string const& source, std::string const& text) {
    switch (_destination) {
    case Destination::Syslog: {
        int priority = LOG_INFO;
        switch (level) {
        case LogLevel::Info:
            priority = LOG_INFO;
            break;
        case LogLevel::Warn:
            priority = LOG_WARNING;
            break;
        case LogLevel::Error:
            priority = LOG_ERR;
            break;
        }
        syslog(priority, "%s %s: %s", levelName(level), source.c_str(), text.c_str());
        return;
    }
    case Destination::File:
    case Destination::Stderr: {
        std::FILE* out = _file ? _file : stderr;
        _line.clear();
        _appendTimestamp(_line);
        _line += ' ';
        _line += levelName(level);
        _line += ' ';
        _line += source;
        _line += ": ";
        _line += text;
        _line += '\n';
        std::fwrite(_line.data(), 1, _line.size(), out);
        std::fflush(out);
        return;
    }
    }
}
