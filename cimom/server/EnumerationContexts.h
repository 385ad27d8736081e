#pragma once

#include "CimXmlWriter.h"

#include <chrono>
#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <mutex>
#include <string>
#include <vector>

namespace Cimom {

// The open pulled enumerations. Each holds the rest of its answer as written
// CIM-XML, one span per object, and belongs to the client and namespace that
// opened it: any other client sees it as unknown. A context not used within
// its timeout is dropped, and a client holds only so many at once, so that a
// client which stops pulling cannot keep answers in memory for ever.
class EnumerationContexts {
public:
    using Clock = std::chrono::steady_clock;

    // What an open holds: instances with their paths, or paths alone.
    enum class Kind { instances, paths };

    struct Owner {
        std::string client;
        std::string nameSpace;
    };

    struct Results {
        Kind kind = Kind::instances;
        std::string text; // the objects, one after another
        std::vector<CimXmlWriter::Span> objects;
    };

    struct Batch {
        std::string xml;
        std::string context; // empty once the last object has gone out
        bool endOfSequence() const { return context.empty(); }
    };

    EnumerationContexts(std::size_t maxPerClient,
                        std::function<Clock::time_point()> now = Clock::now);

    // Hands out up to `max` objects at once and keeps the rest for later
    // pulls. Throws CimOperationError (server limits exceeded) when something
    // is left and the client already holds its share of contexts.
    Batch open(Owner const& owner, Results results, std::chrono::seconds timeout,
               std::uint32_t max);
    // Up to `max` objects from the front. The context closes when the last one
    // goes out. Throws CimOperationError (invalid enumeration context) for a
    // context unknown to this owner, expired, or of the other kind.
    Batch pull(Owner const& owner, std::string const& id, Kind kind, std::uint32_t max);
    std::uint64_t remaining(Owner const& owner, std::string const& id);
    void close(Owner const& owner, std::string const& id);

    std::size_t openCount() const;

private:
    struct Context {
        Owner owner;
        Results results;
        std::size_t next = 0; // the first object not yet pulled
        std::chrono::seconds timeout;
        Clock::time_point expires;
    };

    // Drops what has expired, remembering the names to say so later.
    void _expire(Clock::time_point now);
    Context& _find(Owner const& owner, std::string const& id, Clock::time_point now);
    // Takes up to `max` objects from the front of the context.
    static std::string _take(Context& context, std::uint32_t max);
    // Gives back the memory of what has been pulled, once it is most of the text.
    static void _compact(Context& context);

    std::size_t const _maxPerClient;
    std::function<Clock::time_point()> const _now;
    mutable std::mutex _mutex;
    std::map<std::string, Context> _contexts;
    std::deque<std::string> _expired; // the latest few, for a clearer error
    std::uint64_t _serial = 0;
    std::uint64_t _salt;
};

} // namespace Cimom
