#pragma once

#include <string>

namespace Cimom {

// The object manager's own log lines on stderr. Providers log through their
// framework; this is only for the host (start-up, refused requests, shutdown).
class ServerLog {
public:
    enum class Level { Error, Warn, Info, Debug };

    static void setLevel(Level level);
    static bool parseLevel(std::string const& text, Level& level);
    static bool enabled(Level level);

    static void error(std::string const& line);
    static void warn(std::string const& line);
    static void info(std::string const& line);
    static void debug(std::string const& line);
    // Control characters as escapes, so that one call is one line.
    static std::string escaped(std::string const& text);

private:
    static void _write(Level level, std::string const& line);
};

} // namespace Cimom
