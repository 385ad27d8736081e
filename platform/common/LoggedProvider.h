#pragma once
// The outermost decorator: one info line for every provider call that passes
// through, naming the operation and what it is about.
#include "ProviderDecorator.h"

namespace QLN {

class LoggedProvider : public ProviderDecorator {
public:
    LoggedProvider(CmpiCpp::CmpiBroker const& broker, Logger& logger, ProviderFactory factory);
    ~LoggedProvider() override;

protected:
    void _callStarted(Call const& call) override;
    void _callEnded(Call const& call, std::chrono::nanoseconds elapsed, bool failed) override;
};

} // namespace QLN
