#pragma once

#include "EnumerationContexts.h"

#include <chrono>
#include <cstdint>

namespace Cimom {

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

    PullOperations(InstanceOperations const& instances, Settings settings);

    void registerWith(CimOperationHandler& handler);

    EnumerationContexts const& contexts() const { return _contexts; }

private:
    using Kind = EnumerationContexts::Kind;
    // Runs the enumeration, keeps what the first answer does not carry, and
    // writes that answer.
    template <typename Enumerate>
    void _open(CimRequest const& request, CimXmlWriter& out, Kind kind, Enumerate&& enumerate);
    void _pull(CimRequest const& request, CimXmlWriter& out, Kind kind);
    void _enumerationCount(CimRequest const& request, CimXmlWriter& out);
    void _close(CimRequest const& request, CimXmlWriter& out);

    // Reads the parameters every Open shares and refuses what is not offered.
    std::chrono::seconds _openOptions(CimRequest const& request) const;
    static void _writeBatch(CimXmlWriter& out, EnumerationContexts::Batch const& batch);

    InstanceOperations const& _instances;
    Settings _settings;
    EnumerationContexts _contexts;
};

} // namespace Cimom
