#pragma once
// Counts and times every provider call that passes through, per operation,
// and logs a summary when the provider chain is torn down.
#include "ProviderDecorator.h"

#include <array>
#include <atomic>
#include <cstdint>

namespace QLN {

class PerfmonDecorator : public ProviderDecorator {
public:
    struct Figures {
        std::uint64_t calls;
        std::uint64_t failures;
        std::uint64_t totalNanoseconds;
        std::uint64_t maxNanoseconds;
    };

    PerfmonDecorator(CmpiCpp::CmpiBroker const& broker, Logger& logger, ProviderFactory factory);
    ~PerfmonDecorator() override;

    Figures figures(Operation operation) const;
    void logSummary() const;

protected:
    void _callEnded(Call const& call, std::chrono::nanoseconds elapsed, bool failed) override;

private:
    // Lock-free, since request threads and the worker pass record at once.
    struct Counters {
        std::atomic<std::uint64_t> calls{0};
        std::atomic<std::uint64_t> failures{0};
        std::atomic<std::uint64_t> totalNanoseconds{0};
        std::atomic<std::uint64_t> maxNanoseconds{0};
    };
    std::array<Counters, operationCount> _counters;
};

} // namespace QLN
