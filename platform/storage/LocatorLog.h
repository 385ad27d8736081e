#pragma once
// Where the simulated controllers record requests to light disk locators: a
// text file beside the scenario ("<scenario>.locate"), one line a request.
// It is kept apart from the scenario so that a request does not look like a
// change of the hardware.
#include <cstddef>
#include <string>
#include <vector>

class LocatorLog {
public:
    static std::string sidecarPath(std::string const& scenarioPath);
    // Appends one line (a newline is added) in a single write, so concurrent
    // writers never interleave. False when the file cannot be written.
    static bool append(std::string const& scenarioPath, std::string const& line);
    // All lines so far; empty when there is no file yet.
    static std::vector<std::string> read(std::string const& scenarioPath);

    // Size at which the log is rotated.
    static constexpr std::size_t maxBytes = 256 * 1024;
};
