#pragma once

#include "EnumerationContexts.h"

#include <chrono>
#include <cstdint>

class CimOperationHandler;
class CimRequest;
class CimXmlWriter;
class InstanceOperations;

// The pulled enumerations: an Open operation answers the first objects and
// keeps the rest in an enumeration context, from which the client pulls the
// next ones in batches of its choosing until the end of the sequence.
class PullOperations {
public:
    struct Settings {
        std::size_t maxContextsPerClient = 16;
        // When the client names no OperationTimeout, and the most it may name.
        std::chrono::seconds defaultTimeout{60};
        std::chrono::seconds maxTimeout{600};
    };

    PullOperations(const InstanceOperations& instances, Settings settings);

    void registerWith(CimOperationHandler& handler);

    const EnumerationContexts& contexts() const { return _contexts; }

private:
    using Kind = EnumerationContexts::Kind;
    // Runs the enumeration, keeps what the first answer does not carry, and
    // writes that answer.
    template <typename Enumerate>
    void _open(const CimRequest& request, CimXmlWriter& out, Kind kind, Enumerate&& enumerate);
    void _pull(const CimRequest& request, CimXmlWriter& out, Kind kind);
    void _enumerationCount(const CimRequest& request, CimXmlWriter& out);
    void _close(const CimRequest& request, CimXmlWriter& out);

    // Reads the parameters every Open shares and refuses what is not offered.
    std::chrono::seconds _openOptions(const CimRequest& request) const;
    static void _writeBatch(CimXmlWriter& out, const EnumerationContexts::Batch& batch);

    const InstanceOperations& _instances;
    Settings _settings;
    EnumerationContexts _contexts;
};
