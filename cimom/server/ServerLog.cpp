#include "ServerLog.h"

#include <atomic>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <mutex>

namespace Cimom {

namespace {
std::atomic<int> currentLevel{static_cast<int>(ServerLog::Level::Info)};
std::mutex writeMutex;
} // namespace

void ServerLog::setLevel(Level level) {
    currentLevel = static_cast<int>(level);
}

bool ServerLog::parseLevel(std::string const& text, Level& level) {
    if (text == "error")
        level = Level::Error;
    else if (text == "warn")
        level = Level::Warn;
    else if (text == "info")
        level = Level::Info;
    else if (text == "debug")
        level = Level::Debug;
    else
        return false;
    return true;
}

bool ServerLog::enabled(Level level) {
    return static_cast<int>(level) <= currentLevel.load();
}

// Log lines carry text from requests (headers, key values): a CR or LF in
// them must not start a line of its own that a reader would take for ours.
std::string ServerLog::escaped(std::string const& text) {
    std::string out;
    out.reserve(text.size());
    for (unsigned char c : text) {
        if (c == '\n')
            out += "\\n";
        else if (c == '\r')
            out += "\\r";
        else if (c < 0x20 || c == 0x7f) {
            char hex[8];
            std::snprintf(hex, sizeof hex, "\\x%02x", c);
            out += hex;
        } else
            out += static_cast<char>(c);
    }
    return out;
}

void ServerLog::_write(Level level, std::string const& line) {
    if (!enabled(level))
        return;
    char const* name = "";
    switch (level) {
    case Level::Error:
        name = "ERROR";
        break;
    case Level::Warn:
        name = "WARN";
        break;
    case Level::Info:
        name = "INFO";
        break;
    case Level::Debug:
        name = "DEBUG";
        break;
    }
    std::time_t now = std::chrono::system_clock::to_time_t(std::chrono::system_clock::now());
    std::tm tm{};
    gmtime_r(&now, &tm);
    char stamp[32];
    std::strftime(stamp, sizeof stamp, "%Y-%m-%dT%H:%M:%SZ", &tm);
    std::lock_guard<std::mutex> lock(writeMutex);
    std::fprintf(stderr, "%s veldra-cimd %s %s\n", stamp, name, escaped(line).c_str());
}

void ServerLog::error(std::string const& line) {
    _write(Level::Error, line);
}
void ServerLog::warn(std::string const& line) {
    _write(Level::Warn, line);
}
void ServerLog::info(std::string const& line) {
    _write(Level::Info, line);
}
void ServerLog::debug(std::string const& line) {
    _write(Level::Debug, line);
}

} // namespace Cimom
