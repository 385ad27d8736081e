#include "PerfmonDecorator.h"

namespace QLN {

PerfmonDecorator::PerfmonDecorator(CmpiCpp::CmpiBroker const& broker, Logger& logger,
                                   ProviderFactory factory)
    : ProviderDecorator(broker, logger, factory) {
    _logger.appendLogSource(":");
    _logger.appendLogSource("PerfmonDecorator");
    _logger.info("cxtor()");
}

PerfmonDecorator::~PerfmonDecorator() {
    logSummary();
    _logger.info("dxtor()");
}

void PerfmonDecorator::_callEnded(Call const& call, std::chrono::nanoseconds elapsed, bool failed) {
    Counters& counters = _counters[static_cast<std::size_t>(call.operation)];
    auto nanoseconds = static_cast<std::uint64_t>(elapsed.count() < 0 ? 0 : elapsed.count());
    counters.calls.fetch_add(1, std::memory_order_relaxed);
    if (failed) {
        counters.failures.fetch_add(1, std::memory_order_relaxed);
    }
    counters.totalNanoseconds.fetch_add(nanoseconds, std::memory_order_relaxed);
    std::uint64_t seen = counters.maxNanoseconds.load(std::memory_order_relaxed);
    while (nanoseconds > seen && !counters.maxNanoseconds.compare_exchange_weak(
                                     seen, nanoseconds, std::memory_order_relaxed)) {
    }
}

PerfmonDecorator::Figures PerfmonDecorator::figures(Operation operation) const {
    Counters const& counters = _counters[static_cast<std::size_t>(operation)];
    return {counters.calls.load(), counters.failures.load(), counters.totalNanoseconds.load(),
            counters.maxNanoseconds.load()};
}

void PerfmonDecorator::logSummary() const {
    bool any = false;
    for (int i = 0; i < operationCount; ++i) {
        auto operation = static_cast<Operation>(i);
        Figures f = figures(operation);
        if (f.calls == 0) {
            continue;
        }
        any = true;
        _logger.info("perfmon %s: %llu calls, %llu failed, mean %.3f ms, max %.3f ms",
                     operationName(operation), static_cast<unsigned long long>(f.calls),
                     static_cast<unsigned long long>(f.failures),
                     static_cast<double>(f.totalNanoseconds) / static_cast<double>(f.calls) / 1e6,
                     static_cast<double>(f.maxNanoseconds) / 1e6);
    }
    if (!any) {
        _logger.info("perfmon: no calls");
    }
}

} // namespace QLN
