#pragma once

#include <string>

// The object manager's own log lines on stderr. Providers log through their
// framework; this is only for the host (start-up, refused requests, shutdown).
class ServerLog {
public:
    enum class Level { Error, Warn, Info, Debug };

    static void setLevel(Level level);
    static bool parseLevel(const std::string& text, Level& level);
    static bool enabled(Level level);

    static void error(const std::string& line);
    static void warn(const std::string& line);
    static void info(const std::string& line);
    static void debug(const std::string& line);
    // Control characters as escapes, so that one call is one line.
    static std::string escaped(const std::string& text);

private:
    static void _write(Level level, const std::string& line);
};
