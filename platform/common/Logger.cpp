#include "Logger.h"

#include "LogSink.h"

#include <cstdio>
#include <mutex>
#include <unordered_set>
#include <vector>

std::string const* Logger::_intern(std::string name) {
    // Never destroyed: loggers of objects torn down at exit still point here.
    static auto* names = new std::unordered_set<std::string>();
    static auto* mutex = new std::mutex();
    std::lock_guard<std::mutex> lock(*mutex);
    return &*names->insert(std::move(name)).first;
}

Logger::Logger() : _source(_intern(std::string())) {}

Logger::Logger(std::string const& name) : _source(_intern(name)) {}

Logger::Logger(Logger const& other) = default;

Logger& Logger::operator=(Logger const& other) = default;

Logger::~Logger() = default;

void Logger::appendLogSource(std::string const& text) {
    _source = _intern(*_source + text);
}

void Logger::_log(int level, char const* format, va_list args) const {
    LogLevel logLevel = static_cast<LogLevel>(level);
    LogSink& sink = LogSink::instance();
    // Filter before formatting: info lines of the worker are many.
    if (!sink.accepts(logLevel)) {
        return;
    }
    char small[512];
    va_list again;
    va_copy(again, args);
    int needed = std::vsnprintf(small, sizeof small, format, args);
    std::string text;
    if (needed < 0) {
        text = format;
    } else if (static_cast<std::size_t>(needed) < sizeof small) {
        text.assign(small, static_cast<std::size_t>(needed));
    } else {
        std::vector<char> big(static_cast<std::size_t>(needed) + 1);
        std::vsnprintf(big.data(), big.size(), format, again);
        text.assign(big.data(), static_cast<std::size_t>(needed));
    }
    va_end(again);
    while (!text.empty() && text.back() == '\n') {
        text.pop_back();
    }
    sink.write(logLevel, *_source, text);
}

void Logger::info(char const* format, ...) const {
    va_list args;
    va_start(args, format);
    _log(static_cast<int>(LogLevel::Info), format, args);
    va_end(args);
}

void Logger::warn(char const* format, ...) const {
    va_list args;
    va_start(args, format);
    _log(static_cast<int>(LogLevel::Warn), format, args);
    va_end(args);
}

void Logger::error(char const* format, ...) const {
    va_list args;
    va_start(args, format);
    _log(static_cast<int>(LogLevel::Error), format, args);
    va_end(args);
}
