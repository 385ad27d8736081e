#pragma once

#include <functional>
#include <mutex>
#include <string>
#include <vector>

#include "IndicationSink.h"

namespace Cimom {

// The default sink: keeps every indication in memory (for tests and for a
// server without listeners) and logs one line per indication.
class MemoryIndicationSink : public IndicationSink {
public:
    struct Delivered {
        std::string nameSpace;
        CimInstance indication;
    };
    using LogFunction = std::function<void(std::string const&)>;

    // Without a log function the lines go nowhere.
    explicit MemoryIndicationSink(LogFunction log = nullptr);

    void deliver(std::string const& nameSpace, CimInstance const& indication) override;
    std::vector<Delivered> delivered() const;
    std::size_t count() const;
    void clear();

private:
    LogFunction _log;
    mutable std::mutex _mutex;
    std::vector<Delivered> _delivered;
};

} // namespace Cimom
