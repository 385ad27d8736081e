#pragma once
// Holds the scenario file's current state and the live counters of every
// controller. At each counter read the store checks, with one stat of the
// file, whether the file changed; a changed file is read anew, and only the
// counters whose part of the hardware differs move. A bad file is logged
// once and the last good state stays in force.
#include "Logger.h"
#include "VeldraScenario.h"

#include <atomic>
#include <deque>
#include <memory>
#include <mutex>
#include <string>

class ScenarioStore {
public:
    struct Counters {
        std::atomic<u32> controllerData{1};
        std::atomic<u32> diskVector{1};
        std::atomic<u32> significantDisk{1};
    };

    // Reads the file; throws ScenarioError when it is missing or bad.
    ScenarioStore(std::string path, Logger const& logger);

    std::string const& path() const { return _path; }
    // Re-reads the file if it changed since the last look.
    void refresh();
    std::shared_ptr<VeldraScenario const> current() const;
    size_t controllerCount() const;
    Counters& counters(size_t index);

    // What one stat tells about the file; a rename or a write changes it.
    struct Signature {
        unsigned long long device = 0, inode = 0, size = 0;
        long long mtimeSec = 0, mtimeNsec = 0;
        bool operator==(Signature const&) const = default;
    };

private:
    // Reads the file through one descriptor, so that the signature belongs
    // to the text that was read.
    static std::string _readFile(std::string const& path, Signature& signature);
    static bool _statFile(std::string const& path, Signature& signature);
    void _adopt(std::shared_ptr<VeldraScenario const> next);
    static void _releaseParserMemory();

    std::string _path;
    Logger _logger;
    mutable std::mutex _mutex;
    std::shared_ptr<VeldraScenario const> _current;
    Signature _seen;
    std::deque<Counters> _counters; // deque: handles keep their address as it grows
};
